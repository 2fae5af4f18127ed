#include "diagnose/findings.h"

#include "core/editor_page.h"
#include "core/timecode.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;
using enum DiagnoseSwitch;

// clang-format off
// The difference of a negative line is that to the line above, and the text of an invalid end has
// no blank behind its row: both have always been so.
const TimeFinding overlapping{
    CheckOverlapping, RepairOverlapping, -1, EndColumn, true,
    u"End.Time %p > Start.Time %c. Diff = %d",
    u"%s", u"%o set to %s", u"Mark [Repair.Overlapping] to repair"};
const TimeFinding negative{
    CheckNegative, RepairInvalid, 0, EndColumn, true,
    u"End.Time < Start.Time. Diff = %d",
    u"%s", u"%e set to %s", u"Mark [Repair.Invalid] to repair"};
const TimeFinding invalidStart{
    CheckInvalid, RepairInvalid, 0, StartColumn, true,
    u"Start.Time < 0 or invalid",
    u"00:00:00,000", u"%s set to 00:00:00,000", u"Mark [Repair.Invalid] to repair"};
const TimeFinding invalidEnd{
    CheckInvalid, RepairInvalid, 0, EndColumn, false,
    u"Line %cEnd.Time < 0 or invalid",
    u"%s", u"%e set to %s", u"Mark [Repair.Invalid] to repair"};

namespace {

constexpr TextFinding textFindings[] = {
    {NoCell, 3,
     u"Complete line is empty",
     u"Line removed from subtitle",
     u"Put spoken text in cel [%r,3..5] or mark [Repair.Empty]",
     {}},
    {Second, 3,
     u"Cel [%r,3] is empty while cel [%r,4] contains data",
     u"Data moved from cel [%r,4] to cel [%r,3]",
     u"Put spoken text in cel [%r,3] or mark [Repair.Empty]",
     {{{3, 4}, {4, 0}}}},
    {Second | Third, 3,
     u"Cel [%r,3] is empty while cel [%r,4] and cel [%r,5] contains data",
     u"Data moved from cel [%r,5] to cel [%r,4] to cel [%r,3]",
     u"Put spoken text in cel [%r,3] or mark [Repair.Empty]",
     {{{3, 4}, {4, 5}, {5, 0}}}},
    {Third, 3,
     u"Cel [%r,3] is empty while cel [%r,5] contains data",
     u"Data moved from cel [%r,5] to cel [%r,3]",
     u"Put spoken text in cel [%r,3] or mark [Repair.Empty]",
     {{{3, 5}, {5, 0}}}},
    {First | Third, 4,
     u"Cel [%r,4] is empty while cel [%r,5] contains data",
     u"Data moved from cel [%r,5] to cel [%r,4]",
     u"Put spoken text in cel [%r,5] or mark [Repair.Empty]",
     {{{4, 5}, {5, 0}}}},
};
// clang-format on

QString valueOf(QChar letter, const LineValues &line)
{
    switch (letter.unicode()) {
    case u'p': return fourDigits(line.row - 1);
    case u'c': return fourDigits(line.row);
    case u'r': return QString::number(line.row);
    case u'o': return line.previousEnd;
    case u's': return line.start;
    case u'e': return line.end;
    case u'd': return TimeCodeAdd(line.previousEnd, line.start, u'-');
    default: return {};
    }
}

} // namespace

QString fourDigits(int row)
{
    return QString::number(row).rightJustified(4, u'0');
}

QString findingText(QStringView text, const LineValues &line)
{
    QString filled;
    filled.reserve(text.size() + 24);
    while (!text.isEmpty()) {
        const qsizetype mark = text.indexOf(u'%');
        if (mark < 0 || mark + 1 == text.size()) {
            break;
        }
        filled.append(text.first(mark)).append(valueOf(text[mark + 1], line));
        text = text.sliced(mark + 2);
    }
    return filled.append(text);
}

const TextFinding *textFinding(unsigned filled)
{
    const auto *const found = std::ranges::find(textFindings, filled, &TextFinding::filled);
    return found == std::ranges::end(textFindings) ? nullptr : found;
}

} // namespace kavro
