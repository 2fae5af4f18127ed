#pragma once

namespace kavro {

class LineReader;
class ReadFrame;
class WriteFrame;

/// What the count pass over a file found.
struct FileCount
{
    int subtitles = 0;   ///< as the format counts; some count lines
    int headerLines = 0; ///< lines that the read pass skips
};

/// One subtitle format: its reader and its writer side by side. Formats keep nothing between calls.
class SubtitleFormat
{
public:
    virtual ~SubtitleFormat() = default;

    /// Counts subtitles, and header lines where the format has a header, from the first line on.
    /// Holds one line at a time.
    [[nodiscard]] virtual FileCount count(LineReader &lines) const = 0;

    /// Reads the subtitles into the document; the frame stands behind the header lines counted.
    virtual void read(ReadFrame &frame) const = 0;

    virtual void writeHeader(WriteFrame &frame) const;
    /// Writes the subtitle that the frame stands on.
    virtual void writeRow(WriteFrame &frame) const = 0;
    virtual void writeTrailer(WriteFrame &frame) const;
};

} // namespace kavro
