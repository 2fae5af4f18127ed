#pragma once

#include <QString>

namespace kavro {

/// The time of a scaled number of seconds, 0 or more: its shortest decimal text, cut behind the
/// third decimal and never rounded.
QString scaledTime(double seconds);

} // namespace kavro
