#include "core/line_reader.h"
#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

constexpr QStringView headerHead[] = {u"#T100", u"", u"# Directive entries", u"#D"};
constexpr int directives = 29;

/// One text line with its marks cut away, and the style that it leaves to the lines behind it.
struct Piece
{
    QStringView text;
    QString style;
};

/// At most four characters are taken off the length, so that a line with both styles keeps its two
/// closing marks.
Piece cutMarks(QStringView piece, QString style)
{
    const bool bold = piece.contains(u"\\B");
    const bool italic = piece.contains(u"\\I");
    qsizetype skipped = 0;
    qsizetype dropped = 0;
    // The words are these in every language.
    if (bold) {
        style = u" Bold"_s;
        skipped += 2;
    }
    if (italic) {
        style += u" Italic";
        skipped += 2;
    }
    if (piece.contains(u"\\i") || piece.contains(u"\\b"))
        dropped = bold || italic ? 4 : 2;
    return {Mid(piece, skipped + 1, piece.size() - dropped), style};
}

class JacoSubFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        FileCount count;
        bool inHeader = true;
        while (!lines.atEnd()) {
            const QStringView line = lines.readLine();
            inHeader = inHeader && (line.isEmpty() || line.startsWith(u'#'));
            if (inHeader)
                ++count.headerLines;
            if (indexOfTag(line, u"{ntp}") >= 0)
                ++count.subtitles;
        }
        return count;
    }

    void read(ReadFrame &frame) const override
    {
        frame.skipHeader();
        while (!frame.atEnd() && frame.readLine()) {
            const QStringView line = frame.line();
            frame.newRow();
            frame.setStart(timeWithOneHourDigit(line, 1));
            frame.setEnd(timeWithOneHourDigit(line, 12));
            frame.curFontName = frame.selectedFont();
            readText(frame, Mid(line, InStr(line, u"}") + 2));
        }
    }

    void writeHeader(WriteFrame &frame) const override
    {
        frame.writeLines(headerHead);
        for (int number = 1; number <= directives; ++number)
            frame.writeLine(QString(u'#' % QString::number(number)));
    }

    /// The marks stand round the whole text, the italic ones outside.
    void writeRow(WriteFrame &frame) const override
    {
        putOneHourDigitTime(frame, frame.start());
        frame.put(u" ");
        putOneHourDigitTime(frame, frame.end());
        frame.put(u" {NTP} ");
        frame.put(frame.isItalic() ? u"\\I" : u"");
        frame.put(frame.isBold() ? u"\\B" : u"");
        frame.putLines(u"\\n");
        frame.put(frame.isBold() ? u"\\b" : u"");
        frame.writeLine(frame.isItalic() ? u"\\i" : u"");
    }

private:
    static void readText(ReadFrame &frame, QStringView text)
    {
        int column = FirstTextColumn;
        QString style;
        for (const QStringView part : text.split(u"\\n"_s)) {
            const Piece piece = cutMarks(part, style);
            if (!frame.setText(column++, piece.text))
                continue; // a line without a place gives no style either
            style = piece.style.isEmpty() ? frame.regularWord() : piece.style;
            frame.setFontEntry(frame.curFontName % u";Western;" % trimmed(style) % u';');
        }
    }
};

} // namespace

const SubtitleFormat *jacoSubFormat()
{
    static const JacoSubFormat format;
    return &format;
}

} // namespace kavro
