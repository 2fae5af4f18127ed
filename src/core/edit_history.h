#pragma once

#include "controls/control_array.h"
#include "controls/list_box.h"

namespace kavro {

class Form;

/// The list of what was changed since the document was opened, in `frmHistory`.
class EditHistory
{
public:
    explicit EditHistory(Form &frmHistory);

    /// A document was opened, started or named: its list begins anew.
    void reset();

    ListBox List1;                       ///< one line an action
    ListBox List2;                       ///< the detail of each line
    Label lblHistComment;                ///< detail of the selected line
    ControlArray<Button, 0, 1> Command1; ///< 0 closes, 1 restores
};

} // namespace kavro
