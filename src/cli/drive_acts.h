#pragma once

#include "cli/drive_commands.h"

namespace kavro {

// The commands that are a person's act on one control. `rest` is what stands behind the command's
// word, the control's name first. A control that is disabled or hidden, or whose form isn't open,
// refuses, and so does an index, row, column or node that isn't there.

Outcome pressControl(Driven &driven, QStringView rest);
Outcome setText(Driven &driven, QStringView rest);
Outcome focusControl(Driven &driven, QStringView rest);
Outcome pressKey(Driven &driven, QStringView rest);
Outcome selectEntry(Driven &driven, QStringView rest);
Outcome checkBox(Driven &driven, QStringView rest);
Outcome clickTab(Driven &driven, QStringView rest);
Outcome moveToCell(Driven &driven, QStringView rest);
Outcome clickCell(Driven &driven, QStringView rest);
Outcome scrollGrid(Driven &driven, QStringView rest);
Outcome clickNode(Driven &driven, QStringView rest);
Outcome moveSlider(Driven &driven, QStringView rest);
Outcome fireTimer(Driven &driven, QStringView rest);
/// The option button of that frame rate.
Outcome pickFrameRate(Driven &driven, QStringView rest);

} // namespace kavro
