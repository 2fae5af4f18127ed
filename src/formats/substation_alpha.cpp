#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

constexpr QStringView header[] = {
    u"Synch Point: Side 1 0m00s",
    u"Collisions: Normal",
    u"Timer: 100.0000",
    u"Style: Default,Arial,26,253436,0,16777215,0,-1,0,2,2,2,20,20,10,0,0",
};

constexpr int fieldsAheadOfText = 9;

class SubStationAlphaFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        return countLinesHolding(lines, u"dialogue");
    }

    /// Takes "Dialogue: Marked=0," and an hour of one digit for granted.
    void read(ReadFrame &frame) const override
    {
        frame.skipHeader();
        while (!frame.atEnd() && frame.readLine()) {
            QStringView rest = frame.line();
            if (!rest.startsWith(u"dialogue:", Qt::CaseInsensitive))
                continue;
            frame.newRow();
            frame.setStart(timeWithOneHourDigit(rest, 20));
            frame.setEnd(timeWithOneHourDigit(rest, 31));
            for (int i = 0; i < fieldsAheadOfText; ++i)
                rest = Mid(rest, InStr(rest, u",") + 1);
            frame.setPieces(rest, u"\\n");
        }
    }

    void writeHeader(WriteFrame &frame) const override { frame.writeLines(header); }

    void writeRow(WriteFrame &frame) const override
    {
        frame.put(u"Dialogue: Marked=0,");
        putOneHourDigitTime(frame, frame.start());
        frame.put(u",");
        putOneHourDigitTime(frame, frame.end());
        frame.put(u",Default,,0000,0000,0000,!Effect,");
        frame.putLines(u"\\n");
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *subStationAlphaFormat()
{
    static const SubStationAlphaFormat format;
    return &format;
}

} // namespace kavro
