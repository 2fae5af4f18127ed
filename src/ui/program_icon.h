#pragma once

class QIcon;

namespace kavro {

/// The program's picture in its sizes, built in: the desktop's theme may not know it.
QIcon programIcon();

} // namespace kavro
