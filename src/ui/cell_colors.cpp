#include "ui/cell_colors.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace kavro {

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

/// Text on a background can be read from this contrast on.
constexpr double readable = 4.5;
constexpr double step = 0.05;

} // namespace

QColor mix(const QColor &first, const QColor &second, double share)
{
    const auto channel = [share](int a, int b) {
        return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return {channel(first.red(), second.red()), channel(first.green(), second.green()),
            channel(first.blue(), second.blue())};
}

double contrast(const QColor &first, const QColor &second)
{
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

CellColors cellColors(QRgb color, const QPalette &palette)
{
    constexpr double strongest = 0.45;
    const QColor base = palette.color(QPalette::Base);
    const QColor own = palette.color(QPalette::Text);
    const QColor other = luminance(own) > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
    CellColors colors{.background = base, .text = own};
    for (double strength = strongest; strength > 0; strength -= step) {
        colors.background = mix(QColor(color), base, strength);
        const bool keepOwn = contrast(own, colors.background) >= contrast(other, colors.background);
        colors.text = keepOwn ? own : other;
        if (contrast(colors.text, colors.background) >= readable) {
            break;
        }
    }
    return colors;
}

QColor textColor(QRgb color, const QPalette &palette)
{
    const QColor background = palette.color(QPalette::Window);
    const QColor own = palette.color(QPalette::WindowText);
    for (double share = 1; share > 0; share -= step) {
        const QColor mixed = mix(QColor(color), own, share);
        if (contrast(mixed, background) >= readable) {
            return mixed;
        }
    }
    return own;
}

} // namespace kavro
