#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

namespace kavro {

namespace {

class PhoenixFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override { return countAllLines(lines); }

    void read(ReadFrame &frame) const override
    {
        const double rate = frame.frameRate();
        while (!frame.atEnd() && frame.readLine()) {
            const QStringView line = frame.line();
            frame.newRow();
            frame.setStart(timeOfFrame(Left(line, 7), rate));
            frame.setEnd(timeOfFrame(Mid(line, 9, 7), rate));
            // The line's last character is taken for the closing quote, whatever it is.
            frame.setPieces(Mid(Left(line, line.size() - 1), InStr(line, u"\"") + 1), u"|");
        }
    }

    void writeRow(WriteFrame &frame) const override
    {
        putFrame(frame, frame.start());
        putFrame(frame, frame.end());
        frame.put(u" \"");
        frame.putLines(u"|");
        frame.writeLine(u"\"");
    }

private:
    static void putFrame(WriteFrame &frame, QStringView code)
    {
        constexpr QStringView blanks = u"       ";
        const QString number = frameText(code, frame.frameRate());
        frame.put(Mid(blanks, number.size() + 1));
        frame.put(number);
        frame.put(u",");
    }
};

} // namespace

const SubtitleFormat *phoenixFormat()
{
    static const PhoenixFormat format;
    return &format;
}

} // namespace kavro
