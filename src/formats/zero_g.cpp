#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

class ZeroGFormat final : public SubtitleFormat
{
public:
    /// Any line with these letters counts; the header has two lines, whatever they say.
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        return {.subtitles = countLinesHolding(lines, u"ntp").subtitles, .headerLines = 2};
    }

    void read(ReadFrame &frame) const override
    {
        frame.skipHeader();
        while (!frame.atEnd() && frame.readLine()) {
            frame.newRow();
            frame.setStart(timeWithOneHourDigit(frame.line(), 5));
            frame.setEnd(timeWithOneHourDigit(frame.line(), 16));
            frame.setPieces(textBehind(frame.line(), u" ntp ", 5), u"\\n");
        }
    }

    void writeHeader(WriteFrame &frame) const override
    {
        frame.writeLine(u"% Zero G 1.0");
        frame.endLine();
    }

    void writeRow(WriteFrame &frame) const override
    {
        frame.put(u"E 1 ");
        putOneHourDigitTime(frame, frame.start());
        frame.put(u" ");
        putOneHourDigitTime(frame, frame.end());
        frame.put(u" Default NTP ");
        frame.putLines(u"\\n");
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *zeroGFormat()
{
    static const ZeroGFormat format;
    return &format;
}

} // namespace kavro
