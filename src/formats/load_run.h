#pragma once

#include "formats/load_subfile.h"
#include "formats/read_frame.h"

#include <QString>

#include <optional>

namespace kavro {

/// One run of the read path: its steps, and what stands between them.
class LoadRun
{
public:
    LoadRun(const SubtitleLoader::Parts &parts, LoadRequest &request);

    LoadResult run();
    void bringBack(const KeptDocument &kept);

private:
    using Kind = LoadResult::Kind;

    /// The steps between the opening of the progress window and its closing.
    LoadResult load();

    [[nodiscard]] bool isMovie() const;
    /// Opens the movie of the request, and puts the subtitle beside it in its place. None when the
    /// load goes on with that.
    std::optional<LoadResult> openMovie();
    [[nodiscard]] QString subtitleBeside() const;
    void showMovie();

    bool mayReplaceDocument();
    [[nodiscard]] ReadOptions readOptions() const;
    /// Finds the format and counts the subtitles; the document isn't touched. None when all is
    /// well.
    std::optional<LoadResult> examineFile();
    int formatOfFile();
    bool fileHasText();
    int formatOfLines(int believed);
    /// False when a fault of the file ended the count.
    bool countSubtitles(int format);

    [[nodiscard]] bool isAboveLimit() const;
    LoadResult refuseForLimit();
    LoadResult readDocument();
    void logRead();
    void logEnd();

    // The end: the document becomes what was read.

    void replaceDocument(ReadFrame &frame);
    void takeKept(const KeptDocument &kept);
    void nameDocument();
    void selectFormat();
    void clearDocument();
    void fill(ReadFrame &frame);
    void setNodes();
    void showDocument();
    void fillPlayerList();
    void fillRangeFields();
    void enableControls();

    /// Tells why nothing was read.
    LoadResult fail(const QString &error);
    [[nodiscard]] const QString &report(int item) const;
    [[nodiscard]] QString logHead(int item) const;

    const SubtitleLoader::Parts &m_parts;
    LoadRequest &m_request;
    LineReader m_reader;
    const int m_firstRow; ///< where the first subtitle goes
    int m_format = UnknownFormat;
    int m_believed = UnknownFormat; ///< the format before a look at the lines
    QString m_lastLine;             ///< that the detection looked at
    FileCount m_fileCount;
    int m_counted = UnknownFormat; ///< the format that counted it
    /// The row behind the last subtitle as the count pass foresees it. Formats that count lines
    /// foresee more than there will be.
    int m_count = 0;
};

} // namespace kavro
