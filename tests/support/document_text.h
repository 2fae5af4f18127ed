#pragma once

#include "controls/grid.h"
#include "core/document.h"

#include <QString>
#include <QStringList>

namespace kavro::test {

/// "row,col=RRGGBB" of the cells with a colour.
inline QStringList colourLines(const Grid &grid)
{
    QStringList cells;
    for (const auto &[row, col] : grid.coloredCells()) {
        cells.append(
            QStringLiteral("%1,%2=%3").arg(row).arg(col).arg(grid.cellColor(row, col).text()));
    }
    return cells;
}

/// "name: first-last flag" of the nodes, element 0 first.
inline QStringList nodeLines(const SubtitleDocument &document)
{
    QStringList lines;
    for (int n = 0; n <= document.nodeCount; ++n) {
        const Node &node = document.nodes[static_cast<std::size_t>(n)];
        lines.append(QStringLiteral("%1: %2-%3 %4")
                         .arg(node.name)
                         .arg(node.firstRow)
                         .arg(node.lastRow)
                         .arg(node.flag));
    }
    return lines;
}

} // namespace kavro::test
