#include "core/line_reader.h"
#include "core/text.h"
#include "formats/implementations.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

namespace kavro {

namespace {

// The licence names the program: a person's name has no place in a file that is passed on.
constexpr QStringView header[] = {
    u"{HEAD",
    u"DISCID=",
    u"DVDTITLE=",
    u"CODEPAGE=1250",
    u"FORMAT=ASCII",
    u"LANG=EN",
    u"TITLE=1",
    u"ORIGINAL=ORIGINAL",
    u"AUTHOR=",
    u"WEB=Kavro",
    u"INFO=",
    u"LICENSE=Kavro",
    u"}",
};

class DvdSubtitleFormat final : public SubtitleFormat
{
public:
    /// A subtitle has two blocks; the header ends with the first closing brace.
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        FileCount count;
        bool inHeader = true;
        while (!lines.atEnd()) {
            const QStringView line = lines.readLine();
            if (line.startsWith(u"{t", Qt::CaseInsensitive))
                count.subtitles += 0.5;
            if (inHeader) {
                ++count.headerLines;
                inHeader = !line.startsWith(u'}');
            }
        }
        return count;
    }

    void read(ReadFrame &frame) const override
    {
        frame.skipHeader();
        while (!frame.atEnd() && frame.readLine()) {
            frame.newRow();
            frame.setStart(
                QString(Mid(frame.line(), 4, 8) % u',' % Mid(frame.line(), 13, 2) % u'0'));
            int column = FirstTextColumn;
            bool more = frame.readLine();
            for (; more && !frame.line().startsWith(u'}'); more = frame.readLine())
                frame.setText(column++, frame.line());
            if (!more || !frame.readLine())
                return;
            // The seconds' last digit is left out: players of this format expect it so.
            frame.setEnd(QString(Mid(frame.line(), 4, 7) % u',' % Mid(frame.line(), 13, 2) % u'0'));
            if (!frame.readLine() || !frame.readLine())
                return;
        }
    }

    void writeHeader(WriteFrame &frame) const override { frame.writeLines(header); }

    void writeRow(WriteFrame &frame) const override
    {
        putTime(frame, frame.start());
        frame.writeLines(frame.lines());
        frame.writeLine(u"}");
        putTime(frame, frame.end());
        frame.endLine();
        frame.writeLine(u"}");
    }

private:
    static void putTime(WriteFrame &frame, QStringView code)
    {
        frame.put(u"{T ");
        frame.put(Left(code, 8));
        frame.put(u":");
        frame.writeLine(Mid(code, 10, 2));
    }
};

} // namespace

const SubtitleFormat *dvdSubtitleFormat()
{
    static const DvdSubtitleFormat format;
    return &format;
}

} // namespace kavro
