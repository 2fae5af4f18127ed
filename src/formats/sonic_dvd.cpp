#include "core/line_reader.h"
#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

namespace kavro {

namespace {

/// "hh:mm:ss:ff" at a place of the line. The hundredths are neither padded nor made whole: one
/// frame at 25 is "4", which with its "0" is read as no millisecond at all.
QString timeOf(QStringView line, qsizetype at, double frameRate)
{
    const double hundredths = Val(Mid(line, at + 9, 2)) / frameRate * 100;
    return Mid(line, at, 8) % u',' % numberText(hundredths) % u'0';
}

class SonicDvdFormat final : public SubtitleFormat
{
public:
    [[nodiscard]] FileCount count(LineReader &lines) const override
    {
        FileCount count;
        while (!lines.atEnd()) {
            if (Mid(lines.readLine(), 5, 2) == u"  ")
                ++count.subtitles;
        }
        return count;
    }

    void read(ReadFrame &frame) const override
    {
        const double rate = frame.frameRate();
        while (!frame.atEnd() && frame.readLine()) {
            frame.newRow();
            frame.setStart(timeOf(frame.line(), 7, rate));
            frame.setEnd(timeOf(frame.line(), 20, rate));
            frame.setText(FirstTextColumn, Mid(frame.line(), 32));
            int column = FirstTextColumn;
            while (frame.readLine() && !frame.line().isEmpty())
                frame.setText(++column, frame.line());
        }
    }

    void writeRow(WriteFrame &frame) const override
    {
        frame.put(QString::number(frame.outNumber()).rightJustified(4, u'0'));
        putTime(frame, frame.start());
        putTime(frame, frame.end());
        frame.put(u"  ");
        frame.putLines(u"\r\n");
        frame.endLine();
        frame.endLine();
    }

private:
    /// The frames keep their fraction: fifty hundredths at 25 are "12.5", and what stands behind
    /// them moves on.
    static void putTime(WriteFrame &frame, QStringView code)
    {
        frame.put(u"  ");
        frame.put(Left(code, 8));
        frame.put(u":");
        frame.put(numberText(framesInSecond(code, frame.frameRate())));
    }
};

} // namespace

const SubtitleFormat *sonicDvdFormat()
{
    static const SonicDvdFormat format;
    return &format;
}

} // namespace kavro
