#include "core/line_reader.h"
#include "core/text.h"
#include "formats/implementations.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

#include <array>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// The place of the arrow that a time line has; 0 for another line. One character is found much
/// sooner than three.
qsizetype arrowAt(QStringView line)
{
    qsizetype at = line.indexOf(u'-');
    while (at >= 0 && !line.sliced(at).startsWith(u"-->"))
        at = line.indexOf(u'-', at + 1);
    return at + 1;
}

/// A text line without its style marks, and the style that they name.
struct StyledLine
{
    QStringView text;
    enum Style { Regular, Bold, Italic } style = Regular;
};

/// The cut is blind to where a mark stands: a line that holds one loses the length of an opening
/// mark at its head and that of a closing one at its end. Italic wins over bold.
StyledLine cutMarks(QStringView line)
{
    StyledLine cut;
    qsizetype skipped = 0;
    qsizetype dropped = 0;
    const auto take = [&](QStringView mark, StyledLine::Style style) {
        if (!line.contains(mark))
            return;
        skipped += 3;
        dropped += 7;
        cut.style = style;
    };
    if (line.contains(u'<')) {
        take(u"<b>", StyledLine::Bold);
        take(u"<i>", StyledLine::Italic);
    }
    cut.text = Mid(line, 1 + skipped, line.size() - dropped);
    return cut;
}

class Reader
{
public:
    explicit Reader(ReadFrame &frame)
        : m_frame(frame),
          m_entries{entry(frame.regularWord()), entry(frame.boldWord()), entry(frame.italicWord())}
    {}

    void read()
    {
        while (!m_frame.atEnd() && m_frame.readLine()) {
            const QStringView line = leftTrimmed(m_frame.line());
            if (line.isEmpty())
                m_blankBefore = true;
            else
                readText(line);
        }
        if (m_hasText)
            m_frame.curFontName = u"Arial"_s;
    }

private:
    static QString entry(const QString &style) { return u"Arial;Western;" % style % u";16"; }

    void readText(QStringView line)
    {
        const qsizetype at = arrowAt(line);
        if (at == 0 && !m_textAwaited && m_blankBefore && Val(line) > 0)
            m_frame.newRow();
        else if (at > 0)
            readTimes(line, at);
        else
            readStyled(line);
        m_blankBefore = false;
    }

    /// What stands behind the end time goes to `TimeCodeAdd` with it, which reads by position.
    void readTimes(QStringView line, qsizetype at)
    {
        m_frame.setStart(Left(line, at - 2));
        m_frame.setEnd(Mid(line, at + 4));
        m_textAwaited = true;
        m_column = FirstTextColumn;
    }

    void readStyled(QStringView line)
    {
        const StyledLine cut = cutMarks(line);
        if (m_frame.setText(m_column++, cut.text)) {
            m_frame.setFontEntry(m_entries[cut.style]);
            m_hasText = true;
        }
        m_textAwaited = false;
    }

    ReadFrame &m_frame;
    std::array<QString, 3> m_entries; ///< by style
    bool m_blankBefore = true;
    bool m_textAwaited = false;
    bool m_hasText = false;
    int m_column = FirstTextColumn;
};

void putStyled(WriteFrame &frame, QStringView line)
{
    if (frame.isItalic())
        frame.put(u"<i>");
    if (frame.isBold())
        frame.put(u"<b>");
    frame.put(line);
    if (frame.isBold())
        frame.put(u"</b>");
    if (frame.isItalic())
        frame.put(u"</i>");
    frame.endLine();
}

class SubRipFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        FileCount count;
        while (!lines.atEnd()) {
            if (arrowAt(lines.readLine()) > 0)
                ++count.subtitles;
        }
        return count;
    }

    void read(ReadFrame &frame) const override { Reader(frame).read(); }

    void writeRow(WriteFrame &frame) const override
    {
        frame.writeLine(QString::number(frame.outNumber()));
        frame.put(frame.start());
        frame.put(u" --> ");
        frame.writeLine(frame.end());
        for (const QStringView line : frame.lines())
            putStyled(frame, line);
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *subRipFormat()
{
    static const SubRipFormat format;
    return &format;
}

} // namespace kavro
