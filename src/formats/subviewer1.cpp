#include "core/text.h"
#include "formats/implementations.h"
#include "formats/positions.h"
#include "formats/read_frame.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

namespace kavro {

namespace {

constexpr QStringView header[] = {
    u"[TITLE]",    u"",  u"[AUTHOR]", u"",
    u"[SOURCE]",   u"",  u"[PRG]",    u"",
    u"[FILEPATH]", u"",  u"[DELAY]",  u"0",
    u"[CDTRACK]",  u"0", u"[BEGIN]",  u"******** START SCRIPT ********",
};

bool isTag(QStringView line, QStringView tag)
{
    return line.compare(tag, Qt::CaseInsensitive) == 0;
}

/// Goes to the line ahead of the first subtitle. False when the file ends before it.
bool skipHeader(ReadFrame &frame)
{
    while (frame.readLine()) {
        if (isTag(frame.line(), u"[begin]"))
            return frame.readLine();
        const bool hasValue = isTag(frame.line(), u"[title]") || isTag(frame.line(), u"[author]");
        if (hasValue && !frame.readLine())
            return false;
    }
    return false;
}

QString timeOf(QStringView line)
{
    return Mid(line, 2, 8) % u",000";
}

// Reader and writer disagree, and people's files stand on both sides: the reader takes times for
// bracketed, the writer puts no brackets; the reader ends at "[end]", the writer writes "[END]",
// which is then read as one more subtitle that the file's end cuts short.
class SubViewer1Format final : public SubtitleFormat
{
public:
    /// Counts lines, not subtitles.
    [[nodiscard]] FileCount count(LineReader &lines) const override { return countAllLines(lines); }

    void read(ReadFrame &frame) const override
    {
        if (!skipHeader(frame))
            return;
        while (!frame.atEnd() && frame.readLine()) {
            if (trimmed(frame.line()) == u"[end]")
                return;
            frame.newRow();
            frame.setStart(timeOf(frame.line()));
            if (!frame.readLine())
                return;
            frame.setPieces(frame.line(), u"|");
            if (!frame.readLine())
                return;
            frame.setEnd(timeOf(frame.line()));
            if (!frame.atEnd())
                frame.readLine();
        }
    }

    void writeHeader(WriteFrame &frame) const override { frame.writeLines(header); }

    void writeRow(WriteFrame &frame) const override
    {
        frame.writeLine(Left(frame.start(), 8));
        frame.putLines(u"|");
        frame.endLine();
        frame.writeLine(Left(frame.end(), 8));
        frame.endLine();
    }

    void writeTrailer(WriteFrame &frame) const override
    {
        frame.writeLine(u"[END]");
        frame.writeLine(u"******** END SCRIPT ********");
    }
};

} // namespace

const SubtitleFormat *subViewer1Format()
{
    static const SubViewer1Format format;
    return &format;
}

} // namespace kavro
