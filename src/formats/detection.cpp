#include "formats/detection.h"

#include "core/line_reader.h"
#include "core/text.h"

#include <algorithm>
#include <array>

namespace kavro {

namespace {

enum class Test { None, Equals, Begins, Holds, At };

struct Condition
{
    Test test = Test::None;
    QStringView text;
    qsizetype at = 0; ///< for `At`: the text's place, from 1

    [[nodiscard]] bool holds(QStringView line) const
    {
        switch (test) {
        case Test::None: return true;
        case Test::Equals: return line == text;
        case Test::Begins: return line.startsWith(text);
        case Test::Holds: return line.contains(text);
        case Test::At: return Mid(line, at, text.size()) == text;
        }
        return false;
    }
};

/// Both conditions hold for the lower-cased, trimmed line.
struct Rule
{
    FormatId format;
    Condition first;
    Condition second = {};
};

// The order decides: a PowerDivX line has the look of MicroDVD too, and a comment sign at the top
// makes any file JACOSub.
constexpr std::array<Rule, formatCount> rules{{
    {DvdSubtitle, {Test::Equals, u"{head"}},
    {JacoSub, {Test::Begins, u"#"}},
    {PowerDivX, {Test::Begins, u"{"}, {Test::At, u"}{", 10}},
    {MicroDvd, {Test::Begins, u"{"}, {Test::Holds, u"}{"}},
    {Phoenix, {Test::Holds, u", \""}},
    {RealTime, {Test::Equals, u"<window"}},
    {Sami, {Test::Equals, u"<sami>"}},
    {SonicDvd, {Test::Begins, u"0001"}},
    {SubRip, {Test::Equals, u"1"}},
    {SubStationAlpha, {Test::Begins, u"dialogue:"}},
    {SubViewer1, {Test::Equals, u"[title]"}},
    {SubViewer2, {Test::Begins, u"[information]"}},
    {TmPlayer, {Test::At, u",", 9}, {Test::At, u"=", 11}},
    {TurboTitler, {Test::Holds, u",ntp "}},
    {ViPlay, {Test::Equals, u"{* viplay subtitle file *}"}},
    {ZeroG, {Test::Equals, u"% zero g 1.0"}},
}};

} // namespace

FormatId formatOfLine(QStringView line)
{
    const QString lower = lowerCase(trimmed(line));
    const auto rule = std::ranges::find_if(
        rules, [&](const Rule &r) { return r.first.holds(lower) && r.second.holds(lower); });
    return rule == rules.end() ? UnknownFormat : rule->format;
}

bool looksAtLines(int format)
{
    switch (format) {
    case UnknownFormat:
    case DvdSubtitle:
    case MicroDvd:
    case SonicDvd:
    case SubViewer1:
    case SubViewer2: return true;
    default: return false;
    }
}

Detection detectFormat(LineReader &lines, int believed)
{
    Detection found{.format = believed, .lastLine = {}};
    lines.restart();
    while (!lines.atEnd()) {
        const QStringView line = lines.readLine();
        const FormatId format = formatOfLine(line);
        if (format != UnknownFormat)
            found.format = format;
        if (found.format != UnknownFormat) {
            found.lastLine = line.toString();
            break;
        }
    }
    return found;
}

} // namespace kavro
