#include "formats/write_frame.h"

#include "core/document.h"
#include "core/editor_page.h"
#include "core/font_lists.h"
#include "core/language.h"
#include "core/text.h"
#include "formats/moved_time.h"

namespace kavro {

WriteFrame::WriteFrame(const SubtitleDocument &document, const LanguageTable &language)
    : m_document(document),
      m_frameRate(Val(document.frameRate)),
      m_boldWord(language.text(LangGroup::Common, 26)),
      m_italicWord(language.text(LangGroup::Common, 27))
{}

void WriteFrame::startFile(const QString &partOffset)
{
    m_text.resize(0);
    m_partOffset = partOffset;
    m_outNumber = 0;
}

void WriteFrame::moveTo(int row)
{
    const Grid &grid = m_document.editor.grdSubEdit;
    ++m_outNumber;
    m_start = movedTime(trimmed(grid.text(row, StartColumn)), m_partOffset, u'-');
    m_end = movedTime(trimmed(grid.text(row, EndColumn)), m_partOffset, u'-');
    findLines(row);
    findStyle(m_document.fontEntry(row));
}

// Most rows share one entry, the very same text in memory.
void WriteFrame::findStyle(const QString &fontEntry)
{
    if (fontEntry.constData() == m_fontEntry.constData())
        return;
    m_fontEntry = fontEntry;
    m_bold = !m_boldWord.isEmpty() && fontEntry.contains(m_boldWord);
    m_italic = !m_italicWord.isEmpty() && fontEntry.contains(m_italicWord);
}

void WriteFrame::findLines(int row)
{
    m_lineCount = 0;
    m_textBehindGap = false;
    bool gap = false;
    for (int column = FirstTextColumn; column <= LastTextColumn; ++column) {
        const QStringView line = trimmed(m_document.editor.grdSubEdit.text(row, column));
        if (line.isEmpty())
            gap = gap || column > FirstTextColumn;
        else if (gap)
            m_textBehindGap = true;
        else
            m_lines[m_lineCount++] = line;
    }
}

std::span<const QStringView> WriteFrame::lines() const
{
    return std::span(m_lines).first(m_lineCount);
}

QString WriteFrame::selectedFont() const
{
    return m_document.fonts.Combo9[0].selectedText();
}

void WriteFrame::writeLine(QStringView line)
{
    put(line);
    endLine();
}

void WriteFrame::writeLines(std::span<const QStringView> lines)
{
    for (const QStringView line : lines)
        writeLine(line);
}

void WriteFrame::replaceHalves()
{
    if (!m_text.isValidUtf16())
        m_text = QString::fromUtf8(m_text.toUtf8());
}

void WriteFrame::putLines(QStringView separator)
{
    for (std::size_t i = 0; i < m_lineCount; ++i) {
        if (i > 0)
            put(separator);
        put(m_lines[i]);
    }
}

} // namespace kavro
