#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

// The keys of width and height are misspelt in every file of this program; that stays.
constexpr QStringView header[] = {
    u"<Window",
    u"  With     = \"640\"",
    u"  Heigth   = \"480\"",
    u"  WordWrap = \"true\"",
    u"  Loop     = \"true\"",
    u"  bgcolor  = \"black\"",
    u">",
    u"<Font",
    u"  Color = \"white\"",
    u"  Face  = \"Arial\"",
    u"  Size  = \"+2\"",
    u">",
    u"<center>",
    u"<b>",
};

class RealTimeFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        return countLinesHolding(lines, u"<time begin=");
    }

    void read(ReadFrame &frame) const override
    {
        frame.skipHeader();
        while (!frame.atEnd() && frame.readLine()) {
            const QStringView line = frame.line();
            if (line.compare(u"</b>", Qt::CaseInsensitive) == 0)
                return;
            frame.newRow();
            frame.setStart(timeWithOneHourDigit(line, 14));
            frame.setEnd(timeWithOneHourDigit(line, 31));
            frame.setPieces(Mid(line, InStr(line, u"<clear/>") + 9), u"<br>");
        }
    }

    void writeHeader(WriteFrame &frame) const override { frame.writeLines(header); }

    void writeRow(WriteFrame &frame) const override
    {
        frame.put(u"<Time begin=\"");
        putOneHourDigitTime(frame, frame.start());
        frame.put(u"\" end=\"");
        putOneHourDigitTime(frame, frame.end());
        frame.put(u"\" /><clear/> ");
        frame.putLines(u"<br>");
        frame.endLine();
    }

    void writeTrailer(WriteFrame &frame) const override
    {
        frame.writeLine(u"</b>");
        frame.writeLine(u"</center>");
    }
};

} // namespace

const SubtitleFormat *realTimeFormat()
{
    static const RealTimeFormat format;
    return &format;
}

} // namespace kavro
