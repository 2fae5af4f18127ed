#include "controls/color.h"

namespace kavro {

QString Color::text() const
{
    if (isDesktop()) {
        return {};
    }
    return QString::number(rgb(), 16).toUpper().rightJustified(6, QLatin1Char('0'));
}

} // namespace kavro
