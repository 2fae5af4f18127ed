#include "tools/basic_edit.h"

#include "core/action_trace.h"
#include "core/diagnose_host.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/font_lists.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/text.h"
#include "core/time_page.h"
#include "core/timecode.h"

#include <QStringBuilder>

#include <algorithm>
#include <span>
#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum ActionCode { InsertCode = 501, DeleteCode = 502, ChangeCode = 504 };

/// The cells of a row that aren't empty: each with its name and its text.
template <class CellName>
QString cellsOf(const Grid &grid, int row, const LanguageTable &language, CellName cellName)
{
    const QString pattern = language.ownText(u"[Cel %1:=%2]"_s);
    QString cells;
    for (int col = StartColumn; col <= LastTextColumn; ++col) {
        if (const QString &text = grid.text(row, col); !text.isEmpty()) {
            cells += u' ' % pattern.arg(cellName(col), text);
        }
    }
    return trimmed(cells).toString();
}

/// Element 0 stands for the whole document and moves with the nodes.
std::span<Node> nodesOf(SubtitleDocument &document)
{
    return std::span(document.nodes).first(static_cast<std::size_t>(document.nodeCount) + 1);
}

} // namespace

BasicEdit::BasicEdit(const Parts &parts) : m_parts(parts), m_editor(parts.document.editor)
{
    const auto run = [this](Button &button, auto command) {
        QObject::connect(&button, &Button::clicked, &button,
                         [this, command] { (this->*command)(); });
    };
    run(m_editor.Command10, &BasicEdit::insertRow);
    run(m_editor.Command11, &BasicEdit::deleteRow);
    run(m_editor.Command14, &BasicEdit::changeCell);
}

void BasicEdit::insertRow()
{
    SubtitleDocument &document = m_parts.document;
    Grid &grid = m_editor.grdSubEdit;
    const int row = grid.row();
    if (row < 1 || row > document.subtitleCount()) {
        return;
    }
    if (document.subtitleCount() >= SubtitleDocument::maxSubtitles) {
        m_parts.messages.ShowMessage(u"A subtitle can't have more than 9999 lines. No line was "
                                     "inserted."_s,
                                     Answer::Ok, u"ok"_s, u"Insert"_s);
        return;
    }
    const SubtitleDocument::Act act(document);
    const int top = grid.topRow();
    {
        const Grid::Batch batch(grid);
        moveRowsDown(row);
        clearPreview();
        showEdited();
        moveNodesDown(row);
        document.ShowNodeMarks(1);
    }
    if (document.errorCount > 0) {
        m_parts.diagnose.GoDiagnose();
    }
    grid.setTopRow(top);
    m_parts.trace.RecordAction({}, InsertCode);
}

QString BasicEdit::newStart(int row) const
{
    const QString before =
        row > 1 ? m_editor.grdSubEdit.text(row - 1, EndColumn) : u"-1:59:59,000"_s;
    return TimeCodeAdd(before, u"00:00:01,000", u'+');
}

// The third text stays in its grid row, and the rows from here on belong to other third texts.
void BasicEdit::moveRowsDown(int row)
{
    SubtitleDocument &document = m_parts.document;
    const QString start = newStart(row);
    m_editor.grdSubEdit.rewrite([row, &start](QList<GridRow> &rows) {
        rows.append(GridRow(ColumnCount));
        for (qsizetype r = rows.size() - 2; r > row; --r) {
            GridRow &below = rows[r];
            GridRow &above = rows[r - 1];
            below[NumberColumn] = QString::number(r);
            for (int col = StartColumn; col < LastTextColumn; ++col) {
                below[col] = std::move(above[col]);
            }
        }
        GridRow &inserted = rows[row];
        inserted[NumberColumn] = QString::number(row);
        inserted[StartColumn] = start;
        inserted[EndColumn] = u"00:00:00,000"_s;
        inserted[FirstTextColumn] = QString();
        inserted[FirstTextColumn + 1] = QString();
    });
    const auto &[font, style] = document.fonts.Combo9;
    m_editor.lstFont.insertItem(row, font.selectedText() % u";Western;" % style.selectedText());
    // The end row is a new one, without the font that the old one may have had.
    m_editor.lstFont.setItem(m_editor.grdSubEdit.rows() - 1, {});
    // The finding of the row above is copied into the new row.
    QStringList errors = document.rowErrors();
    if (row <= errors.size()) {
        errors.insert(row, document.rowErrorText(row - 1));
        document.setRowErrors(errors);
    }
}

// A line that is inserted at the first row of a node falls into the node ahead of it; one at the
// last row stays in the node.
void BasicEdit::moveNodesDown(int row)
{
    Grid &grid = m_editor.grdSubEdit;
    for (Node &node : nodesOf(m_parts.document)) {
        if (node.firstRow > row) {
            grid.setCellColor(node.firstRow++, StartColumn, {});
        }
    }
    for (Node &node : nodesOf(m_parts.document)) {
        if (node.lastRow >= row) {
            grid.setCellColor(node.lastRow++, EndColumn, {});
        }
    }
}

void BasicEdit::deleteRow()
{
    const SubtitleDocument::Act act(m_parts.document);
    if (beginDelete()) {
        m_parts.diagnose.GoDiagnose();
    }
    endDelete();
}

bool BasicEdit::beginDelete()
{
    SubtitleDocument &document = m_parts.document;
    Grid &grid = m_editor.grdSubEdit;
    const int row = grid.row();
    const int top = grid.topRow();
    const LanguageTable &language = m_parts.language;
    m_parts.history.LogHistory(
        language.ownText(u"Row %1 deleted"_s).arg(row),
        cellsOf(grid, row, language, [row](int col) { return u"%1,%2"_s.arg(row).arg(col); }));
    const bool deleted = row >= 1 && row <= document.subtitleCount();
    m_deletions.push_back({.top = top, .deleted = deleted});
    if (!deleted) {
        return false;
    }
    const Grid::Batch batch(grid);
    whitenFindings(row);
    moveRowsUp(row);
    moveNodesUp(top);
    m_editor.lstFont.removeItem(row);
    clearPreview();
    for (const int field : {1, 3}) {
        document.times.Text1[field].setText(QString::number(grid.rows() - 2));
    }
    showEdited();
    document.ShowNodeMarks(top);
    return document.errorCount > 0;
}

void BasicEdit::endDelete()
{
    if (m_deletions.empty()) {
        return;
    }
    const Deletion deletion = m_deletions.back();
    m_deletions.pop_back();
    if (!deletion.deleted) {
        return;
    }
    Grid &grid = m_editor.grdSubEdit;
    grid.setTopRow(deletion.top);
    grid.setText(grid.rows() - 1, NumberColumn, {});
    m_parts.trace.RecordAction({}, DeleteCode);
}

void BasicEdit::whitenFindings(int row)
{
    const SubtitleDocument &document = m_parts.document;
    for (int r = row; r <= document.subtitleCount(); ++r) {
        if (document.rowErrorText(r).isEmpty()) {
            continue;
        }
        for (int col = StartColumn; col <= LastTextColumn; ++col) {
            m_editor.grdSubEdit.setCellColor(r, col, {});
        }
    }
}

// Column 0 stays with the grid row, and with it the marks of nodes.
void BasicEdit::moveRowsUp(int row)
{
    m_editor.grdSubEdit.rewrite([row](QList<GridRow> &rows) {
        for (qsizetype r = rows.size() - 1; r > row; --r) {
            std::swap(rows[r][NumberColumn], rows[r - 1][NumberColumn]);
        }
        rows.removeAt(row);
    });
    QStringList errors = m_parts.document.rowErrors();
    if (row < errors.size()) {
        errors.removeAt(row);
        m_parts.document.setRowErrors(errors);
    }
}

// Nodes from the top row of the window on move, not those from the deleted row on.
void BasicEdit::moveNodesUp(int top)
{
    Grid &grid = m_editor.grdSubEdit;
    const auto wipe = [&grid](int row, Column col) {
        grid.setCellColor(row, col, {});
        grid.setText(row, NumberColumn, QString::number(row));
    };
    for (Node &node : nodesOf(m_parts.document)) {
        if (node.firstRow >= top) {
            wipe(node.firstRow, StartColumn);
            node.firstRow -= node.firstRow > 1 ? 1 : 0;
        }
    }
    for (Node &node : nodesOf(m_parts.document)) {
        if (node.lastRow >= top) {
            wipe(node.lastRow--, EndColumn);
        }
    }
}

void BasicEdit::clearPreview()
{
    for (int line = 0; line < 3; ++line) {
        m_parts.document.subShowSubtitle({}, line);
    }
}

void BasicEdit::showEdited()
{
    m_parts.document.markEdited();
    m_parts.document.RefreshCurrentRow();
}

void BasicEdit::changeCell()
{
    SubtitleDocument &document = m_parts.document;
    const SubtitleDocument::Act act(document);
    Grid &grid = m_editor.grdSubEdit;
    const int row = grid.row();
    const int col = grid.col();
    const LanguageTable &language = m_parts.language;
    m_parts.history.LogHistory(
        language.ownText(u"Cel %1, %2 changed"_s).arg(col).arg(row),
        cellsOf(grid, row, language, [row](int cell) { return u"%1,%2"_s.arg(cell).arg(row); }));
    if (row >= 1 && row < grid.rows() - 1) {
        QString text = trimmed(m_editor.rtfSubEditBasic.text()).toString();
        if (col >= FirstTextColumn) {
            text += u' ';
        }
        grid.setText(row, col, text);
        document.markEdited();
    }
    document.RefreshCurrentRow();
    m_parts.trace.RecordAction({}, ChangeCode);
}

} // namespace kavro
