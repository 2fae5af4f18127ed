#include "core/document.h"
#include "core/editor_page.h"

#include <QStringBuilder>

#include <algorithm>

namespace kavro {

namespace {

constexpr Color firstRowColor = Color::fromBgr(0x00FF00);
constexpr Color lastRowColor = Color::fromBgr(0x0000FF);

QString nodeName(std::size_t number)
{
    return u"Part_" % QString::number(number);
}

void moveNode(const Node &from, Node &to)
{
    to.firstRow = from.firstRow;
    to.lastRow = from.lastRow;
    to.name = from.name;
}

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

void SubtitleDocument::unmarkFirstRow(int row)
{
    if (isSubtitle(row)) {
        Grid &grid = editor.grdSubEdit;
        grid.setText(row, NumberColumn, QString::number(row));
        grid.setCellColor(row, StartColumn, {});
    }
}

void SubtitleDocument::unmarkLastRow(int row)
{
    if (isSubtitle(row)) {
        Grid &grid = editor.grdSubEdit;
        grid.setText(row, NumberColumn, QString::number(row));
        grid.setCellColor(row, EndColumn, {});
    }
}

void SubtitleDocument::clearNodeMarks()
{
    for (int number = 1; number <= nodeCount; ++number) {
        const Node &node = nodes[static_cast<std::size_t>(number)];
        unmarkFirstRow(node.firstRow);
        unmarkLastRow(node.lastRow);
    }
}

bool SubtitleDocument::toggleNode(int row)
{
    if (row < 1 || row >= editor.grdSubEdit.rows()) {
        return false;
    }
    const auto first = nodes.begin() + 1;
    const auto end = first + nodeCount;
    const auto next = std::find_if(first, end, [row](const Node &n) { return n.firstRow >= row; });
    const auto found = std::find_if(first, end, [row](const Node &n) { return n.firstRow == row; });
    if (found == end && nodeCount >= maxNodes) {
        return false;
    }
    const Act act(*this);
    const Grid::Batch batch(editor.grdSubEdit);
    const int topRow = editor.grdSubEdit.topRow();
    if (found == end) {
        startNode(static_cast<std::size_t>(next - nodes.begin()), row);
    } else {
        joinNode(static_cast<std::size_t>(found - nodes.begin()));
    }
    ShowNodeMarks(topRow);
    return true;
}

// Rows and name of a node move, its flag belongs to its number.
void SubtitleDocument::startNode(std::size_t number, int row)
{
    for (auto n = static_cast<std::size_t>(nodeCount); n >= number; --n) {
        moveNode(nodes[n], nodes[n + 1]);
    }
    Node &before = nodes[number - 1];
    moveNode({.firstRow = row, .lastRow = before.lastRow, .name = nodeName(number)}, nodes[number]);
    before.lastRow = row - 1;
    ++nodeCount;
}

void SubtitleDocument::joinNode(std::size_t number)
{
    Node &before = nodes[number - 1];
    const int row = nodes[number].firstRow;
    // Node 1 leaves its marks behind, until something paints its rows anew.
    if (row > 1) {
        unmarkFirstRow(row);
        unmarkLastRow(row - 1);
    }
    before.lastRow = nodes[number].lastRow;
    for (std::size_t n = number; n < static_cast<std::size_t>(nodeCount); ++n) {
        moveNode(nodes[n + 1], nodes[n]);
    }
    --nodeCount;
}

} // namespace kavro
