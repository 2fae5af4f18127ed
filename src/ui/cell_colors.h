#pragma once

#include <QColor>

class QPalette;

namespace kavro {

struct CellColors
{
    QColor background;
    QColor text;
};

/// The program's colour of a cell as it is shown: softened towards the desktop's own background, so
/// that it suits a light and a dark desktop, with the text colour that reads best on it.
CellColors cellColors(QRgb color, const QPalette &palette);

/// A colour of the program for text, drawn towards the desktop's own text colour until it can be
/// read on the desktop's window.
QColor textColor(QRgb color, const QPalette &palette);

/// A mixture of two colours; `share` of the first, 0 to 1.
QColor mix(const QColor &first, const QColor &second, double share);

/// How well two colours can be told apart: 1 for the same, 21 for black and white.
double contrast(const QColor &first, const QColor &second);

} // namespace kavro
