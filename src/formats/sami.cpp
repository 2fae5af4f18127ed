#include "core/text.h"
#include "core/timecode.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

// The closing tag of the style has no bracket of its own in the files of this program; that stays.
constexpr QStringView header[] = {
    u"<SAMI>",
    u"<HEAD>",
    u"   <STYLE TYPE=\"Text/css\">",
    u"   <!--",
    u"      P {margin-left: 29pt; margin-right: 29pt; font-size: 29pt;",
    u"      text-align: center; font-family: tahoma, arial, sans-serif;",
    u"      font-weight: bold; color: white; background-color: black;}",
    u"      .SUBTTL {Name: 'Subtitles'; Lang: en-US; SAMIType: CC;}",
    u"   -->",
    u"   </STYLE",
    u"</HEAD>",
    u"<BODY>",
};

/// Reads the header lines; the font entry that they give to all rows.
QString readHeader(ReadFrame &frame)
{
    QString size = u"16"_s;
    for (int i = 0; i < frame.count().headerLines && frame.readLine(); ++i) {
        if (frame.line().contains(u"font-size: ", Qt::CaseInsensitive))
            size = digitsOf(Left(valueBehind(frame.line(), u"font-size: "), 2)).toString();
    }
    return u"Arial;Western;" % frame.regularWord() % u';' % size;
}

/// The milliseconds of a line "<SYNC START=1500>": from character 13 on, less the last one.
QString timeOf(QStringView line)
{
    const QStringView sync = trimmed(line);
    return SecondsToTimeCode(secondsText(Val(Mid(Left(sync, sync.size() - 1), 13)) / 1000));
}

class SamiFormat final : public SubtitleFormat
{
public:
    /// A subtitle has a line for its start and one for its end.
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        return countLinesHolding(lines, u"<sync start=", 0.5);
    }

    /// Takes four lines a subtitle for granted: start, text, end, empty text.
    void read(ReadFrame &frame) const override
    {
        const QString font = readHeader(frame);
        while (!frame.atEnd() && frame.readLine()) {
            if (trimmed(frame.line()).compare(u"</body>", Qt::CaseInsensitive) == 0)
                return;
            frame.newRow();
            frame.setStart(timeOf(frame.line()));
            frame.setFontEntry(font);
            if (!frame.readLine())
                return;
            frame.setPieces(textBehind(trimmed(frame.line()), u"<p>", 3), u"<br>");
            if (!frame.readLine())
                return;
            frame.setEnd(timeOf(frame.line()));
            if (!frame.readLine())
                return;
        }
    }

    void writeHeader(WriteFrame &frame) const override { frame.writeLines(header); }

    void writeRow(WriteFrame &frame) const override
    {
        putSync(frame, frame.start());
        frame.putLines(u"<br>");
        frame.endLine();
        putSync(frame, frame.end());
        frame.put(u"&nbsp;\r\n");
    }

    void writeTrailer(WriteFrame &frame) const override
    {
        frame.writeLine(u"</BODY>");
        frame.writeLine(u"</SAMI>");
    }

private:
    /// The line of a time, and the head of the text's line behind it.
    static void putSync(WriteFrame &frame, QStringView code)
    {
        frame.put(u"   <SYNC START=");
        frame.put(numberText(TimeCodeToMs(code)));
        frame.put(u">\r\n      <P>");
    }
};

} // namespace

const SubtitleFormat *samiFormat()
{
    static const SamiFormat format;
    return &format;
}

} // namespace kavro
