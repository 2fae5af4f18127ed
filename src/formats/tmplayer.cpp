#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

namespace kavro {

namespace {

QString timeOf(QStringView line)
{
    return Left(line, 10) % u"00";
}

class TmPlayerFormat final : public SubtitleFormat
{
public:
    /// Counts lines, two a subtitle.
    [[nodiscard]] FileCount count(LineReader &lines) const override { return countAllLines(lines); }

    void read(ReadFrame &frame) const override
    {
        while (!frame.atEnd() && frame.readLine()) {
            frame.newRow();
            frame.setStart(timeOf(frame.line()));
            frame.setPieces(Mid(frame.line(), InStr(frame.line(), u"=") + 1), u"|");
            if (!frame.readLine())
                return;
            frame.setEnd(timeOf(frame.line()));
        }
    }

    /// A time is cut behind its tenths.
    void writeRow(WriteFrame &frame) const override
    {
        frame.put(Left(frame.start(), 10));
        frame.put(u"=");
        frame.putLines(u"|");
        frame.endLine();
        frame.put(Left(frame.end(), 10));
        frame.writeLine(u"=");
    }
};

} // namespace

const SubtitleFormat *tmPlayerFormat()
{
    static const TmPlayerFormat format;
    return &format;
}

} // namespace kavro
