#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

/// What stands between the line's first character and the first "}"; the line is cut behind it.
QStringView takeBraced(QStringView &line)
{
    const qsizetype brace = InStr(line, u"}");
    const QStringView braced = Mid(line, 2, brace - 2);
    line = Mid(line, brace + 1);
    return braced;
}

class MicroDvdFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override { return countAllLines(lines); }

    /// An empty line ends the script, also one that the detection looked at last.
    void read(ReadFrame &frame) const override
    {
        const double rate = frame.frameRate();
        while (!frame.atEnd() && !trimmed(frame.line()).isEmpty() && frame.readLine()) {
            QStringView rest = trimmed(frame.line());
            if (rest.isEmpty())
                return;
            frame.newRow();
            frame.setStart(timeOfFrame(takeBraced(rest), rate));
            frame.setEnd(timeOfFrame(takeBraced(rest), rate));
            frame.setPieces(rest, u"|");
        }
    }

    void writeRow(WriteFrame &frame) const override
    {
        frame.put(u"{");
        frame.put(frameText(frame.start(), frame.frameRate()));
        frame.put(u"}{");
        frame.put(frameText(frame.end(), frame.frameRate()));
        frame.put(u"}");
        frame.putLines(u"|");
        frame.endLine();
    }
};

} // namespace

const SubtitleFormat *microDvdFormat()
{
    static const MicroDvdFormat format;
    return &format;
}

} // namespace kavro
