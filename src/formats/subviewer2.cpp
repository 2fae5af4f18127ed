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

constexpr QStringView header[] = {
    u"[INFORMATION]", u"[AUTHOR]",  u"[SOURCE]",          u"[PRG]",      u"[FILEPATH]", u"[DELAY]0",
    u"[CD TRACK]0",   u"[COMMENT]", u"[END INFORMATION]", u"[SUBTITLE]",
};

bool holds(QStringView line, QStringView tag)
{
    return line.contains(tag, Qt::CaseInsensitive);
}

/// Reads the header lines; the font entry that they give to all rows.
QString readHeader(ReadFrame &frame)
{
    QString font = u"Arial"_s;
    QString size = u"16"_s;
    for (int i = 0; i < frame.count().headerLines && frame.readLine(); ++i) {
        const QStringView line = frame.line();
        if (holds(line, u"[size]"))
            size = digitsOf(Left(valueBehind(line, u"[size]"), 2)).toString();
        if (holds(line, u"[font]")) {
            const QStringView value = valueBehind(line, u"[font]");
            font =
                value.first(value.contains(u',') ? value.indexOf(u',') : value.size()).toString();
        }
    }
    return font % u";Western;" % frame.regularWord() % u';' % size;
}

/// "hh:mm:ss.cc" from a place of the line on.
QString timeOf(QStringView line, qsizetype at)
{
    return Mid(line, at, 8) % u',' % Mid(line, at + 9, 2) % u'0';
}

class SubViewer2Format final : public SubtitleFormat
{
public:
    /// Counts the lines behind the header, three a subtitle.
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        FileCount count;
        bool inHeader = true;
        double others = 0;
        while (!lines.atEnd()) {
            const QStringView line = lines.readLine();
            if (inHeader && line.startsWith(u'[')) {
                ++count.headerLines;
            } else if (inHeader && line.isEmpty() && count.headerLines > 0) {
                // The empty line that our own writer puts behind its header.
                ++count.headerLines;
                inHeader = false;
            } else {
                inHeader = false;
                ++others;
            }
        }
        count.subtitles = others / 3;
        return count;
    }

    void read(ReadFrame &frame) const override
    {
        const QString font = readHeader(frame);
        while (!frame.atEnd() && frame.readLine()) {
            frame.newRow();
            frame.setStart(timeOf(frame.line(), 1));
            frame.setEnd(timeOf(frame.line(), 13));
            frame.setFontEntry(font);
            if (!frame.readLine())
                return;
            frame.setPieces(frame.line(), u"[br]");
            frame.readLine();
        }
    }

    void writeHeader(WriteFrame &frame) const override
    {
        frame.writeLines(header);
        frame.put(u"[COLF]&HFFFFFF,[STYLE]no,[SIZE]29, [Font]");
        frame.writeLine(frame.selectedFont());
        frame.endLine();
    }

    void writeRow(WriteFrame &frame) const override
    {
        putTime(frame, frame.start());
        frame.put(u",");
        putTime(frame, frame.end());
        frame.endLine();
        frame.putLines(u"[br]");
        frame.endLine();
        frame.endLine();
    }

private:
    /// The last digit of the milliseconds is dropped.
    static void putTime(WriteFrame &frame, QStringView code)
    {
        frame.put(Left(code, 8));
        frame.put(u".");
        frame.put(Mid(code, 10, 2));
    }
};

} // namespace

const SubtitleFormat *subViewer2Format()
{
    static const SubViewer2Format format;
    return &format;
}

} // namespace kavro
