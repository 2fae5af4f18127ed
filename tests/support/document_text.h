#pragma once

#include "controls/grid.h"
#include "core/document.h"
#include "core/editor_page.h"

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

/// The rows, the nodes with the current one, and the colours, a line each.
inline QStringList contentLines(const SubtitleDocument &document)
{
    const Grid &grid = document.editor.grdSubEdit;
    QStringList lines;
    for (const GridRow &row : grid.allRows()) {
        lines.append(row.join(QChar(u'|')));
    }
    lines += nodeLines(document);
    lines.append(QStringLiteral("node %1").arg(document.curNode));
    return lines + colourLines(grid);
}

} // namespace kavro::test
