#include "formats/format_table.h"

#include "core/folders.h"
#include "formats/file_filters.h"
#include "formats/implementations.h"

#include <QStringBuilder>

#include <array>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

constexpr auto ms = TimeKept::Milliseconds;
constexpr auto hundredths = TimeKept::Hundredths;
constexpr auto tenths = TimeKept::Tenths;
constexpr auto seconds = TimeKept::Seconds;
constexpr auto frames = TimeKept::Frames;
constexpr auto inSecond = TimeKept::FramesInSecond;
constexpr auto two = HoursKept::TwoCharacters;
constexpr auto one = HoursKept::OneDigit;
constexpr auto counted = HoursKept::Counted;
constexpr auto none = FontSupport::None;
constexpr auto perLine = FontSupport::StylePerLine;
constexpr auto perFile = FontSupport::FontPerFile;

// clang-format off
constexpr std::array<FormatInfo, formatCount> formats{{
    {DvdSubtitle,     u"DVD Subtitle",         u".sub", u"hundredths of a second", hundredths, two,     none,    dvdSubtitleFormat},
    {JacoSub,         u"JACOSub 2.7+",         u".jss", u"hundredths of a second", hundredths, one,     perLine, jacoSubFormat},
    {MicroDvd,        u"MicroDVD",             u".sub", u"frames",                 frames,     counted, none,    microDvdFormat},
    {Phoenix,         u"Phoenix Japanimation", u".pjs", u"frames",                 frames,     counted, none,    phoenixFormat},
    {PowerDivX,       u"PowerDivX",            u".psb", u"whole seconds",          seconds,    two,     none,    powerDivXFormat},
    {RealTime,        u"RealTime",             u".rt",  u"hundredths of a second", hundredths, one,     none,    realTimeFormat},
    {Sami,            u"SAMI",                 u".smi", u"milliseconds",           ms,         counted, none,    samiFormat},
    {SonicDvd,        u"Sonic DVD",            u".sub", u"seconds and frames",     inSecond,   two,     none,    sonicDvdFormat},
    {SubRip,          u"SubRip",               u".srt", u"milliseconds",           ms,         two,     perLine, subRipFormat},
    {SubStationAlpha, u"SubStation Alpha",     u".ssa", u"hundredths of a second", hundredths, one,     none,    subStationAlphaFormat},
    {SubViewer1,      u"SubViewer 1.0",        u".sub", u"whole seconds",          seconds,    two,     none,    subViewer1Format},
    {SubViewer2,      u"SubViewer 2.0",        u".sub", u"hundredths of a second", hundredths, two,     perFile, subViewer2Format},
    {TmPlayer,        u"TMPlayer",             u".txt", u"tenths of a second",     tenths,     two,     none,    tmPlayerFormat},
    {TurboTitler,     u"Turbo Titler",         u".tts", u"hundredths of a second", hundredths, one,     none,    turboTitlerFormat},
    {ViPlay,          u"ViPlay Subtitle File", u".vsf", u"milliseconds",           ms,         two,     none,    viPlayFormat},
    {ZeroG,           u"Zero G",               u".zeg", u"hundredths of a second", hundredths, one,     none,    zeroGFormat},
}};
// clang-format on

/// The format that alone has the pattern "*" + extension in the file window; unknown for none.
FormatId soleOwner(QStringView extension)
{
    const QString pattern = u'*' % extension.toString().toLower();
    FormatId owner = UnknownFormat;
    for (const FormatInfo &info : formats) {
        const QString filter = fileFilters().value(info.id);
        if (!filter.sliced(filter.indexOf(u'|') + 1).split(u';').contains(pattern))
            continue;
        if (owner != UnknownFormat)
            return UnknownFormat;
        owner = info.id;
    }
    return owner;
}

} // namespace

std::span<const FormatInfo> formatTable()
{
    return formats;
}

const FormatInfo *formatInfo(int format)
{
    return format >= 1 && format <= formatCount ? &formats[static_cast<std::size_t>(format - 1)]
                                                : nullptr;
}

QString formatName(int format)
{
    const FormatInfo *info = formatInfo(format);
    return info ? info->name.toString() : QString();
}

QString SetSubFileExt(int format)
{
    const FormatInfo *info = formatInfo(format);
    return info ? info->extension.toString() : QString();
}

std::optional<FormatId> formatByName(QStringView name)
{
    bool isNumber = false;
    if (const FormatInfo *info = formatInfo(name.toInt(&isNumber)))
        return info->id;
    for (const FormatInfo &info : formats) {
        if (info.name.compare(name, Qt::CaseInsensitive) == 0)
            return info.id;
    }
    if (isNumber || !name.startsWith(u'.'))
        return std::nullopt;
    const FormatId owner = soleOwner(name);
    return owner == UnknownFormat ? std::nullopt : std::optional(owner);
}

FormatId formatByExtension(QStringView path)
{
    const QStringView name = nameOf(path);
    const qsizetype point = name.lastIndexOf(u'.');
    if (point < 0)
        return UnknownFormat;
    // A text file may hold anything, whatever the list of patterns says.
    const FormatId owner = soleOwner(name.sliced(point));
    return owner == TmPlayer ? UnknownFormat : owner;
}

} // namespace kavro
