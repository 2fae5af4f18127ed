#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

class TurboTitlerFormat final : public SubtitleFormat
{
public:
    /// Any line with these letters counts; the format has no header.
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        return {.subtitles = countLinesHolding(lines, u"ntp").subtitles};
    }

    void read(ReadFrame &frame) const override
    {
        while (!frame.atEnd() && frame.readLine()) {
            frame.newRow();
            frame.setStart(timeWithOneHourDigit(frame.line(), 1));
            frame.setEnd(timeWithOneHourDigit(frame.line(), 12));
            frame.setPieces(textBehind(frame.line(), u",ntp ", 5), u"|");
        }
    }

    void writeRow(WriteFrame &frame) const override
    {
        putOneHourDigitTime(frame, frame.start());
        frame.put(u",");
        putOneHourDigitTime(frame, frame.end());
        frame.put(u",NTP ");
        frame.putLines(u"|");
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *turboTitlerFormat()
{
    static const TurboTitlerFormat format;
    return &format;
}

} // namespace kavro
