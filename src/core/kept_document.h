#pragma once

#include "controls/grid.h"
#include "core/document.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>

namespace kavro {

/// A document with all that makes it one, to be brought back later. Copies share what they hold, so
/// that one costs next to nothing.
struct KeptDocument
{
    /// What `document` is now.
    static KeptDocument of(const SubtitleDocument &document, const QDateTime &now);

    QDateTime time; ///< when it was kept
    QString subFileName;
    int formatId = 0;
    TextEncoding encoding;
    QString savedPath;
    int savedFormatId = 0;
    QString frameRate;
    QString fontName;
    QList<GridRow> rows; ///< of the grid, the header and the end row included
    QStringList fonts;   ///< entry 0 included
    QList<Node> nodes;   ///< element 0 and the nodes
    int curNode = 0;

    [[nodiscard]] int subtitleCount() const
    {
        return std::max(static_cast<int>(rows.size()) - 2, 0);
    }
};

} // namespace kavro
