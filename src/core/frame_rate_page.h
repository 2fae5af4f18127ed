#pragma once

#include "controls/control_array.h"
#include "controls/drop_list.h"

#include <array>

namespace kavro {

/// The frame rate in force and the two rates of a conversion.
struct FrameRatePage
{
    explicit FrameRatePage(Form &frmMain);

    /// The five rates in the order of the buttons and lists.
    static const QStringList &rates();

    ControlArray<OptionButton, 0, 4> optFrameRate; ///< 23.970, 24.000, 25.000, 29.970, 30.000
    std::array<DropList, 2> Combo14;               ///< from, to; the same five rates
};

} // namespace kavro
