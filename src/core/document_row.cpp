#include "core/document.h"
#include "core/editor_page.h"
#include "core/font_lists.h"
#include "core/language.h"
#include "core/settings_page.h"
#include "core/text.h"
#include "core/time_page.h"
#include "core/timecode.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

struct FontFields
{
    QStringView font;
    QStringView style;
};

/// The fields of "font;script;style;size" that the preview shows; what is missing is empty.
FontFields splitFontEntry(QStringView entry)
{
    std::array<QStringView, 3> fields;
    for (QStringView &field : fields) {
        const qsizetype end = entry.indexOf(u';');
        field = end < 0 ? entry : entry.first(end);
        entry = end < 0 ? QStringView() : entry.sliced(end + 1);
    }
    return {.font = fields[0], .style = fields[2]};
}

/// Containment, not equality: a style may hold both words. A pack's empty word is in no style.
bool holdsWord(QStringView style, const QString &word)
{
    return !word.isEmpty() && style.contains(word, Qt::CaseInsensitive);
}

/// Equality in any case of letters. Runs at each step to another row over hundreds of fonts, many
/// of which begin alike: what differs in length or at the end is told apart first.
bool equalsFolded(QStringView a, QStringView b)
{
    return a.size() == b.size()
           && (a.isEmpty()
               || (a.back().toCaseFolded() == b.back().toCaseFolded()
                   && a.compare(b, Qt::CaseInsensitive) == 0));
}

/// Selects the first entry that equals `text`, if there is one.
void selectEntry(ListBox &list, QStringView text)
{
    const QStringList &items = list.items();
    const auto found = std::ranges::find_if(
        items, [text](const QString &item) { return equalsFolded(item, text); });
    if (found != items.end()) {
        list.setSelected(static_cast<int>(found - items.begin()));
    }
}

} // namespace

void SubtitleDocument::RefreshCurrentRow()
{
    if (editorBlocked) {
        return;
    }
    showPosition();
    showRowTexts();
    showFinding();
    showCellTools();
    enableRowCommands();
}

void SubtitleDocument::showPosition()
{
    const Grid &grid = editor.grdSubEdit;
    editor.Label13.setCaption(
        m_language.text(LangGroup::Common, 0) % u':' % blankNumberText(grid.row()) % u", "
        % m_language.text(LangGroup::Common, 1) % u':' % blankNumberText(grid.col()) % u" = "
        % gridColCaption[static_cast<std::size_t>(grid.col())]);
}

void SubtitleDocument::showRowTexts()
{
    const Grid &grid = editor.grdSubEdit;
    const int row = grid.row();
    const QString start = grid.text(row, StartColumn);
    if (row > 0) {
        editor.rtfSubEditBasic.setText(trimmed(grid.text(row, grid.col())).toString());
        times.rtfTimeStart.setText(start);
        times.rtfTimeEnd.setText(grid.text(row, EndColumn));
    }
    curRow = row;
    scriptTime = static_cast<int>(std::lround(TimeCodeToMs(start) / 10 - 1));
    if (row > 0 && !start.isEmpty()) {
        editor.Label24.setCaption(start.left(11));
    }
    const QString entry = fontEntry(curRow);
    const auto [font, style] = splitFontEntry(entry);
    for (int line = 0; line < 3; ++line) {
        showLine(grid.text(row, FirstTextColumn + line), line, style);
    }
    selectFont(font, style);
    editor.rtfEdit.setText(editor.rtfSubEditBasic.text());
}

void SubtitleDocument::subShowSubtitle(const QString &text, int index)
{
    const QString entry = fontEntry(curRow);
    const auto [font, style] = splitFontEntry(entry);
    showLine(text, index, style);
    selectFont(font, style);
}

void SubtitleDocument::showLine(QStringView text, int index, QStringView style)
{
    const Grid &grid = editor.grdSubEdit;
    editor.lblSubRowCount.setCaption(blankNumberText(grid.row()) % u'/'
                                     % blankNumberText(grid.rows() - 2));
    if (index < 0 || index > 2) {
        return;
    }
    TextBox &line = editor.Label23[index];
    line.setBold(holdsWord(style, m_language.text(LangGroup::Common, 26)));
    line.setItalic(holdsWord(style, m_language.text(LangGroup::Common, 27)));
    line.setText(leftTrimmed(text).toString());
}

void SubtitleDocument::selectFont(QStringView font, QStringView style)
{
    selectEntry(fonts.Combo9[0], font);
    selectEntry(fonts.Combo9[1], style);
}

void SubtitleDocument::showFinding()
{
    const QString text = rowErrorText(editor.grdSubEdit.row());
    if (!text.isEmpty()) {
        editor.lblErrExp.setCaption(text);
    }
    editor.errExp.setVisible(!text.isEmpty());
}

void SubtitleDocument::toggleFinding()
{
    if (editor.errExp.isVisible()) {
        editor.errExp.setVisible(false);
    } else {
        showFinding();
    }
}

void SubtitleDocument::showCellTools()
{
    const Grid &grid = editor.grdSubEdit;
    showCellEditor();
    editor.cmdInvCalc.setVisible(grid.col() < FirstTextColumn);
    // Neither the first nor the last subtitle can start a node.
    editor.btnNode[0].setVisible(grid.row() > 1 && grid.row() < grid.rows() - 2);
}

void SubtitleDocument::showCellEditor()
{
    // The writing system of the setting is one that a cell's editor can't show.
    const bool textCellsOutside = m_settings.Check6[0].isOn();
    editor.rtfEdit.setVisible(!textCellsOutside || editor.grdSubEdit.col() < FirstTextColumn);
}

void SubtitleDocument::enableRowCommands()
{
    const Grid &grid = editor.grdSubEdit;
    const bool onSubtitle = grid.row() >= 1 && grid.row() <= grid.rows() - 2;
    editor.Command10.setEnabled(onSubtitle);
    editor.Command14.setEnabled(onSubtitle);
    // On row 1 Delete stays as it was, so a step from the end row to row 1 leaves it disabled.
    if (!onSubtitle || grid.row() > 1) {
        editor.Command11.setEnabled(onSubtitle);
    }
}

} // namespace kavro
