#pragma once

#include <QString>
#include <QStringView>

namespace kavro {

/// `TimeCodeAdd`, at once when the offset is nothing and the time has the form already that would
/// come out, as nearly all have.
QString movedTime(QStringView code, QStringView offset, QChar op);

} // namespace kavro
