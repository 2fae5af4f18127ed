#pragma once

namespace kavro {

class LineReader;
class ReadFrame;
class WriteFrame;

/// What the count pass over a file found.
struct FileCount
{
    double subtitles = 0; ///< as the format counts: some count lines, some halves
    int headerLines = 0;  ///< lines ahead of the first subtitle
};

/// One subtitle format: its reader and its writer side by side. Formats keep nothing between calls.
class SubtitleFormat
{
public:
    virtual ~SubtitleFormat() = default;

    /// Counts subtitles, and header lines where the format has a header, from the first line on.
    /// Holds one line at a time.
    [[nodiscard]] virtual FileCount count(LineReader &lines) const = 0;

    /// Reads the subtitles into the frame, which stands ahead of the first line; the header lines
    /// that were counted are the format's to skip.
    virtual void read(ReadFrame &frame) const = 0;

    virtual void writeHeader(WriteFrame &frame) const;
    /// Writes the subtitle that the frame stands on.
    virtual void writeRow(WriteFrame &frame) const = 0;
    virtual void writeTrailer(WriteFrame &frame) const;
};

} // namespace kavro
