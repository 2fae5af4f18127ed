#include "formats/read_frame.h"

#include "core/control_window.h"
#include "core/document.h"
#include "core/font_lists.h"
#include "core/language.h"
#include "core/line_reader.h"
#include "core/messages.h"
#include "core/text.h"
#include "formats/moved_time.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace kavro {

ReadFrame::ReadFrame(const Source &source)
    : m_source(source),
      m_line(m_source.lastLine),
      m_offset(u"00:00:00,000"_s),
      m_firstRow(source.nextRow),
      m_answer(Answer::Yes)
{
    const Grid &grid = source.document.editor.grdSubEdit;
    m_rows = grid.allRows().first(std::min(m_firstRow, grid.rows()));
    m_rows.reserve(m_firstRow + static_cast<int>(source.count.subtitles) + 1);
    m_fonts = source.document.editor.lstFont.items().first(
        std::min<qsizetype>(m_firstRow, source.document.editor.lstFont.items().size()));
    m_fonts.resize(m_firstRow);
    if (m_firstRow > 1)
        m_offset = grid.text(m_firstRow - 1, EndColumn);
    else
        m_fonts[0].clear();
    m_regularEntry = source.document.regularFontEntry();
}

bool ReadFrame::atEnd() const
{
    return m_source.lines.atEnd() || m_full;
}

bool ReadFrame::readLine()
{
    if (m_full)
        return false;
    if (m_source.lines.atEnd()) {
        fault();
        return false;
    }
    m_line = m_source.lines.readLine();
    return true;
}

void ReadFrame::skipHeader()
{
    for (int i = 0; i < m_source.count.headerLines && !atEnd(); ++i)
        readLine();
}

void ReadFrame::newRow()
{
    if (nextRow() > SubtitleDocument::maxSubtitles) {
        m_full = true;
        return;
    }
    GridRow cells(ColumnCount);
    cells[NumberColumn] = QString::number(nextRow());
    m_rows.append(std::move(cells));
    m_fonts.append(m_regularEntry);
    showProgress();
}

void ReadFrame::setStart(QStringView code)
{
    row()[StartColumn] = movedTime(code, m_offset, u'+');
}

void ReadFrame::setEnd(QStringView code)
{
    row()[EndColumn] = movedTime(code, m_offset, u'+');
}

bool ReadFrame::setText(int column, QStringView text)
{
    if (column > LastTextColumn) {
        fault();
        return false;
    }
    const QStringView piece = trimmed(text);
    row()[column] = piece.isEmpty() ? QString() : u' ' % piece;
    return true;
}

void ReadFrame::setPieces(QStringView text, QStringView separator)
{
    int column = FirstTextColumn;
    for (;;) {
        const qsizetype end = text.indexOf(separator);
        setText(column++, end < 0 ? text : text.first(end));
        if (end < 0)
            return;
        text = text.sliced(end + separator.size());
    }
}

void ReadFrame::setFontEntry(const QString &entry)
{
    m_fonts.last() = entry;
}

double ReadFrame::frameRate() const
{
    return Val(m_source.document.frameRate);
}

QString ReadFrame::selectedFont() const
{
    return m_source.document.fonts.Combo9[0].selectedText();
}

QString ReadFrame::regularWord() const
{
    return m_source.language.text(LangGroup::Common, 25);
}

QString ReadFrame::boldWord() const
{
    return m_source.language.text(LangGroup::Common, 26);
}

QString ReadFrame::italicWord() const
{
    return m_source.language.text(LangGroup::Common, 27);
}

QList<GridRow> ReadFrame::takeRows()
{
    m_rows.append(GridRow(ColumnCount));
    return std::move(m_rows);
}

// A line that has no place is skipped whatever the answer is; a no only ends the asking.
void ReadFrame::fault()
{
    ++m_skippedLines;
    if (!m_source.showLog)
        return;
    const auto text = [this](int item) { return m_source.language.text(LangGroup::Report, item); };
    m_source.control.setCaption(text(9));
    if (m_answer == Answer::No)
        return;
    m_answer = m_source.messages.ShowMessage(
        {text(7) % u"/n" % m_source.language.ownText(u"Line #%1 = '%2'"_s) % u"/n/n" % text(8),
         {QString::number(nextRow() - 1), m_line.toString()}},
        Answer::Yes, u"yesno"_s, text(13));
}

void ReadFrame::showProgress()
{
    if (!m_source.showLog || m_source.count.subtitles < 1)
        return;
    const int read = nextRow() - m_firstRow;
    m_source.control.ProgressBar1.setValue(static_cast<int>(read * 100 / m_source.count.subtitles));
}

} // namespace kavro
