#include "ui/theme.h"

#include "ui/cell_colors.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

struct Shades
{
    QColor window;
    QColor base;
    QColor button;
    QColor text;
    QColor highlight;
    QColor link;
    QColor tip;
};

QPalette paletteOf(const Shades &shades)
{
    QPalette palette(shades.button, shades.window);
    palette.setColor(QPalette::Base, shades.base);
    palette.setColor(QPalette::AlternateBase, mix(shades.base, shades.window, 0.6));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, shades.text);
        palette.setColor(QPalette::Disabled, role, mix(shades.text, shades.window, 0.45));
    }
    palette.setColor(QPalette::PlaceholderText, mix(shades.text, shades.base, 0.6));
    palette.setColor(QPalette::Highlight, shades.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight,
                     mix(shades.highlight, shades.window, 0.4));
    palette.setColor(QPalette::Link, shades.link);
    palette.setColor(QPalette::LinkVisited, shades.link);
    palette.setColor(QPalette::ToolTipBase, shades.tip);
    palette.setColor(QPalette::ToolTipText, shades.text);
    return palette;
}

QPalette darkPalette()
{
    return paletteOf({.window = QColor(0x2b, 0x2d, 0x30),
                      .base = QColor(0x1e, 0x1f, 0x22),
                      .button = QColor(0x3a, 0x3d, 0x41),
                      .text = QColor(0xe3, 0xe5, 0xe8),
                      .highlight = QColor(0x3d, 0x6f, 0xc4),
                      .link = QColor(0x7c, 0xac, 0xf8),
                      .tip = QColor(0x3f, 0x3a, 0x26)});
}

QPalette lightPalette()
{
    return paletteOf({.window = QColor(0xf3, 0xf3, 0xf4),
                      .base = QColor(0xff, 0xff, 0xff),
                      .button = QColor(0xf8, 0xf8, 0xf9),
                      .text = QColor(0x1d, 0x1f, 0x23),
                      .highlight = QColor(0x2a, 0x64, 0xc8),
                      .link = QColor(0x1d, 0x57, 0xb8),
                      .tip = QColor(0xff, 0xf7, 0xdc)});
}

} // namespace

void applyTheme(QStringView name)
{
    const bool dark = name == u"dark"_s;
    if (!dark && name != u"light"_s) {
        return;
    }
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QPalette palette = dark ? darkPalette() : lightPalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace kavro
