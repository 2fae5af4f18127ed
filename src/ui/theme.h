#pragma once

#include <QStringView>

namespace kavro {

/// "dark" or "light" brings the style Fusion with that palette; anything else leaves the desktop's
/// style and colours.
void applyTheme(QStringView name);

} // namespace kavro
