#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

namespace kavro {

namespace {

class PowerDivXFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override { return countAllLines(lines); }

    void read(ReadFrame &frame) const override
    {
        while (!frame.atEnd() && frame.readLine()) {
            const QStringView line = frame.line();
            frame.newRow();
            frame.setStart(QString(Mid(line, 2, 8) % u",000"));
            frame.setEnd(QString(Mid(line, 12, 8) % u",000"));
            frame.setPieces(Mid(line, 21), u"|");
        }
    }

    /// The milliseconds are dropped, not rounded.
    void writeRow(WriteFrame &frame) const override
    {
        frame.put(u"{");
        frame.put(Left(frame.start(), 8));
        frame.put(u"}{");
        frame.put(Left(frame.end(), 8));
        frame.put(u"}");
        frame.putLines(u"|");
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *powerDivXFormat()
{
    static const PowerDivXFormat format;
    return &format;
}

} // namespace kavro
