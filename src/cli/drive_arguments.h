#pragma once

#include "cli/drive_commands.h"

#include <optional>

namespace kavro {

/// Cuts the first word and the one blank behind it off `rest`.
QStringView takeWord(QStringView &rest);

/// None for a text that is no whole number.
std::optional<int> wholeNumber(QStringView text);
/// None for a text that is no finite number; "." is the point everywhere.
std::optional<double> decimalNumber(QStringView text);

Outcome noNumber(QStringView text);

} // namespace kavro
