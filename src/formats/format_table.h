#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <span>

namespace kavro {

class SubtitleFormat;

/// The subtitle formats, in the alphabetical order of their names. 0 is unknown.
enum FormatId {
    UnknownFormat = 0,
    DvdSubtitle = 1,
    JacoSub = 2,
    MicroDvd = 3,
    Phoenix = 4,
    PowerDivX = 5,
    RealTime = 6,
    Sami = 7,
    SonicDvd = 8,
    SubRip = 9,
    SubStationAlpha = 10,
    SubViewer1 = 11,
    SubViewer2 = 12,
    TmPlayer = 13,
    TurboTitler = 14,
    ViPlay = 15,
    ZeroG = 16
};

constexpr int formatCount = 16;

/// What the font controls offer after a load.
enum class FontSupport { None, StylePerLine, FontPerFile };

/// How exactly a file of the format holds a time.
enum class TimeKept { Milliseconds, Hundredths, Tenths, Seconds, Frames, FramesInSecond };

/// What a file of the format has room for ahead of the minutes.
enum class HoursKept {
    TwoCharacters, ///< a minus sign takes the place of the tens
    OneDigit,
    Counted ///< a time is one number, which is never read as a time before zero
};

struct FormatInfo
{
    FormatId id;
    QStringView name;
    QStringView extension; ///< with its point, as `SetSubFileExt` gives it
    QStringView timeBase;  ///< what a time in the file counts
    TimeKept timeKept;
    HoursKept hours;
    FontSupport fonts;
    /// The reader and writer.
    const SubtitleFormat *(*implementation)();
};

/// The sixteen formats by id, the first at index 0.
std::span<const FormatInfo> formatTable();

/// nullptr outside 1 to 16.
const FormatInfo *formatInfo(int format);

/// The name in the lists; empty outside 1 to 16.
QString formatName(int format);

/// The extension of a format with its leading point; empty outside 1 to 16.
QString SetSubFileExt(int format);

/// The format that a person names: an id, a name in any case, or an extension that one format
/// alone has; none when nothing fits.
std::optional<FormatId> formatByName(QStringView name);

/// The format that alone owns the extension of `path` (".srt", ".ssa", ".smi", ...); unknown for
/// ".sub", ".txt" and foreign ones.
FormatId formatByExtension(QStringView path);

} // namespace kavro
