#pragma once

#include <array>
#include <cstddef>

namespace kavro {

/// What a run does, by the number of its check box.
enum class DiagnoseSwitch {
    CheckEmpty,
    CheckOverlapping,
    CheckInvalid,
    CheckNegative,
    CountWords,
    CountMultiLines,
    CountTime,
    RepairOverlapping,
    RepairInvalid,
    RepairEmpty
};

/// The switches as they stand when a run begins.
struct DiagnoseSwitches
{
    static constexpr int count = 10;

    [[nodiscard]] bool isOn(DiagnoseSwitch one) const { return on[static_cast<std::size_t>(one)]; }

    std::array<bool, count> on{};
};

} // namespace kavro
