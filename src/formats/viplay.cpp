#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

class ViPlayFormat final : public SubtitleFormat
{
public:
    /// Counts all lines, the header's among them.
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        return {.subtitles = countAllLines(lines).subtitles, .headerLines = 1};
    }

    void read(ReadFrame &frame) const override
    {
        frame.skipHeader();
        while (!frame.atEnd() && frame.readLine()) {
            const QStringView line = frame.line();
            frame.newRow();
            frame.setStart(Left(line, 12));
            frame.setEnd(Mid(line, 14, 12));
            frame.setPieces(Mid(line, InStr(line, u"=") + 1), u"|");
        }
    }

    void writeHeader(WriteFrame &frame) const override
    {
        frame.writeLine(u"{* VIPLAY SUBTITLE FILE *}");
    }

    void writeRow(WriteFrame &frame) const override
    {
        frame.put(frame.start());
        frame.put(u"-");
        frame.put(frame.end());
        frame.put(u"=");
        frame.putLines(u"|");
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *viPlayFormat()
{
    static const ViPlayFormat format;
    return &format;
}

} // namespace kavro
