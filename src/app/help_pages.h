#pragma once

#include <QString>

namespace kavro {

/// The file of a help page, 0 to 29; empty outside.
QString helpPage(int index);
constexpr int helpPageCount = 30;

} // namespace kavro
