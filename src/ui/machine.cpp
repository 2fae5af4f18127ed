#include "ui/machine.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>

namespace kavro {

using namespace Qt::StringLiterals;

QSize DesktopScreen::size() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? QSize() : screen->availableSize();
}

QStringList DesktopScreen::fonts() const
{
    return QFontDatabase::families();
}

double SystemRandom::next()
{
    return QRandomGenerator::global()->generateDouble();
}

QString NoPlayer::missingText() const
{
    return u"This version has no media player yet."_s;
}

} // namespace kavro
