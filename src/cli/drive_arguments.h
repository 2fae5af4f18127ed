#pragma once

#include "cli/drive_commands.h"

#include <optional>

namespace kavro {

/// Cuts the first word and the one blank behind it off `rest`.
QStringView takeWord(QStringView &rest);

/// Digits alone, one at least.
bool isDigits(QStringView text);
/// None for a text that is no whole number. One that is beyond the type is at its end: no list and
/// no grid has that many entries.
std::optional<int> wholeNumber(QStringView text);
/// None for a text that is no finite number; "." is the point everywhere.
std::optional<double> decimalNumber(QStringView text);

Outcome noNumber(QStringView text);

} // namespace kavro
