#include "core/document.h"

#include "controls/form.h"
#include "core/editor_page.h"
#include "core/font_lists.h"
#include "core/language.h"
#include "core/player_page.h"
#include "core/settings_page.h"

#include <QStringBuilder>
#include <QStringList>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

SubtitleDocument::SubtitleDocument(EditorPage &editorPage, TimePage &timePage, FontLists &fontLists,
                                   PlayerPage &playerPage, SettingsPage &settings,
                                   const LanguageTable &language, ActionTrace &trace)
    : editor(editorPage),
      times(timePage),
      fonts(fontLists),
      player(playerPage),
      m_settings(settings),
      m_language(language),
      m_trace(trace)
{
    connectGrid();
    connectCellEditor();
    connectEditBox();
    hideCellTools();
}

int SubtitleDocument::subtitleCount() const
{
    return std::max(editor.grdSubEdit.rows() - 2, 0);
}

bool SubtitleDocument::isSubtitle(int row) const
{
    return row >= 1 && row <= subtitleCount();
}

QString SubtitleDocument::rowErrorText(int row) const
{
    return row >= 0 && row < m_rowErrorText.size() ? m_rowErrorText.at(row) : QString();
}

void SubtitleDocument::setRowErrorText(int row, const QString &text)
{
    if (row < 0 || row > maxSubtitles || (text.isEmpty() && row >= m_rowErrorText.size())) {
        return;
    }
    if (row >= m_rowErrorText.size()) {
        m_rowErrorText.resize(row + 1);
    }
    m_rowErrorText[row] = text;
}

void SubtitleDocument::setRowErrors(const QStringList &texts)
{
    m_rowErrorText = texts.mid(0, maxSubtitles + 1);
}

void SubtitleDocument::clearRowErrors()
{
    m_rowErrorText.clear();
}

void SubtitleDocument::setFileChanged(bool changed)
{
    if (m_fileChanged != changed) {
        m_fileChanged = changed;
        emit fileChangedChanged(changed);
    }
}

void SubtitleDocument::markEdited()
{
    setFileChanged(true);
    subtitleChanged = false;
}

void SubtitleDocument::markSaved(bool whole)
{
    setFileChanged(!whole);
    if (!whole) {
        emit savedInPart();
    }
}

SubtitleDocument::Act::Act(SubtitleDocument &document) : m_document(document)
{
    if (m_document.m_acts++ == 0 && m_document.actBegins) {
        m_document.actBegins();
    }
}

SubtitleDocument::Act::~Act()
{
    if (--m_document.m_acts == 0 && m_document.actEnded) {
        m_document.actEnded();
    }
}

void SubtitleDocument::fillColumnCaptions()
{
    const QString text = m_language.text(LangGroup::Common, 12);
    gridColCaption = {QString(),
                      m_language.text(LangGroup::Common, 10),
                      m_language.text(LangGroup::Common, 11),
                      text % u" #1",
                      text % u" #2",
                      text % u" #3"};
    Grid &grid = editor.grdSubEdit;
    grid.setText(0, NumberColumn, u"#"_s);
    for (int col = StartColumn; col < ColumnCount; ++col) {
        grid.setText(0, col, gridColCaption[static_cast<std::size_t>(col)]);
    }
}

void SubtitleDocument::ClearGrid()
{
    Grid &grid = editor.grdSubEdit;
    const Grid::Batch batch(grid);
    // The texts go first: cutting the rows may move the current cell, which shows what is there.
    for (int col = 0; col < ColumnCount; ++col) {
        grid.setText(1, col, {});
    }
    grid.setRows(2);
}

void SubtitleDocument::startNew()
{
    editorBlocked = true;
    clearFindings();
    {
        Grid &grid = editor.grdSubEdit;
        const Grid::Batch batch(grid);
        ClearGrid();
        grid.setRows(3);
        grid.setText(1, NumberColumn, u"1"_s);
        grid.setCurrent(1, StartColumn);
        grid.setTopRow(1);
    }
    editor.lstFont.setItems({QString(), QString()});
    nodes.fill({});
    nodes[0] = nodes[1] = {.firstRow = 1, .lastRow = 1, .name = {}, .flag = false};
    nodeCount = 1;
    curNode = 1;
    encoding = {};
    savedPath.clear();
    savedFormatId = 0;
    editorBlocked = false;
    RefreshCurrentRow();
    emit replaced();
}

void SubtitleDocument::clearFindings()
{
    clearRowErrors();
    errorCount = 0;
    editor.grdSubEdit.clearCellColors();
    emit findingsGone();
}

void SubtitleDocument::BuildPlayerList()
{
    const Form::Busy busy(editor.grdSubEdit.form());
    QStringList lines;
    lines.reserve(subtitleCount());
    for (int row = 1; row <= subtitleCount(); ++row) {
        const Grid &grid = editor.grdSubEdit;
        lines.append(grid.text(row, StartColumn) % u"; " % grid.text(row, FirstTextColumn) % u' '
                     % grid.text(row, FirstTextColumn + 1) % u' ' % grid.text(row, LastTextColumn));
    }
    player.Combo1.setSelected(-1);
    player.Combo1.setItems(lines);
    subtitleChanged = true;
}

QString SubtitleDocument::fontEntry(int row) const
{
    return editor.lstFont.item(row);
}

QString SubtitleDocument::makeFontEntry(const QString &font, const QString &style,
                                        const QString &size) const
{
    const QString &regular = m_language.text(LangGroup::Common, 25);
    return (font.isEmpty() ? u"Arial"_s : font) % u";Western;" % (style.isEmpty() ? regular : style)
           % u';' % size;
}

QString SubtitleDocument::regularFontEntry() const
{
    return makeFontEntry({}, {}, u"16"_s);
}

} // namespace kavro
