#include "ui/desktop_screen.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

namespace kavro {

QSize DesktopScreen::size() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? QSize() : screen->availableSize();
}

QStringList DesktopScreen::fonts() const
{
    return QFontDatabase::families();
}

} // namespace kavro
