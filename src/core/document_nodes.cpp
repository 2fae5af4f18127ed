#include "core/document.h"
#include "core/editor_page.h"

#include <QStringBuilder>

namespace kavro {

namespace {

constexpr Color firstRowColor = Color::fromBgr(0x00FF00);
constexpr Color lastRowColor = Color::fromBgr(0x0000FF);

} // namespace

void SubtitleDocument::ShowNodeMarks(int topRow)
{
    for (int number = 1; number <= nodeCount; ++number) {
        const Node &node = nodes[static_cast<std::size_t>(number)];
        if (node.firstRow >= editor.grdSubEdit.rows()) {
            nodeCount = number;
            break;
        }
        markNode(node);
    }
    editor.grdSubEdit.setTopRow(topRow);
}

void SubtitleDocument::markNode(const Node &node)
{
    Grid &grid = editor.grdSubEdit;
    const QString opening = u" { " % QString::number(node.firstRow);
    if (isSubtitle(node.firstRow)) {
        grid.setText(node.firstRow, NumberColumn, opening);
        grid.setCellColor(node.firstRow, StartColumn, firstRowColor);
    }
    if (isSubtitle(node.lastRow)) {
        const bool oneRow = node.lastRow == node.firstRow;
        const QString text = oneRow ? opening : u' ' % QString::number(node.lastRow);
        grid.setText(node.lastRow, NumberColumn, text % u" }");
        grid.setCellColor(node.lastRow, EndColumn, lastRowColor);
    }
}

void SubtitleDocument::clearNodeMarks()
{
    Grid &grid = editor.grdSubEdit;
    for (int number = 1; number <= nodeCount; ++number) {
        const Node &node = nodes[static_cast<std::size_t>(number)];
        if (isSubtitle(node.firstRow)) {
            grid.setText(node.firstRow, NumberColumn, QString::number(node.firstRow));
            grid.setCellColor(node.firstRow, StartColumn, {});
        }
        if (isSubtitle(node.lastRow)) {
            grid.setText(node.lastRow, NumberColumn, QString::number(node.lastRow));
            grid.setCellColor(node.lastRow, EndColumn, {});
        }
    }
}

} // namespace kavro
