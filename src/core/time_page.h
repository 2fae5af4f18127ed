#pragma once

#include "controls/control_array.h"
#include "controls/text_box.h"

namespace kavro {

/// The fields of the timing pages that loads and row changes fill.
struct TimePage
{
    explicit TimePage(Form &frmMain);

    ControlArray<TextBox, 0, 3> Text1; ///< ranges: Shift first and last row, Stretch first and last
    TextBox rtfStretchFirst;           ///< a TimeCode, as the three below
    TextBox rtfStretchLast;
    TextBox rtfTimeStart; ///< start of the current row
    TextBox rtfTimeEnd;   ///< end of the current row
};

} // namespace kavro
