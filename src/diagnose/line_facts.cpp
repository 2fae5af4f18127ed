#include "diagnose/line_facts.h"

#include "core/editor_page.h"
#include "core/text.h"
#include "core/timecode.h"
#include "diagnose/findings.h"

#include <QStringBuilder>

namespace kavro {

using namespace Qt::StringLiterals;
using enum DiagnoseSwitch;

int countWords(QStringView first, QStringView second)
{
    const QString joined = first % u' ' % second;
    const QStringView text = trimmed(joined);
    return text.isEmpty() ? 0 : static_cast<int>(text.count(u' ')) + 1;
}

unsigned filledCells(const GridRow &row)
{
    unsigned filled = NoCell;
    for (int cell = 0; cell < 3; ++cell) {
        if (!trimmed(row.at(FirstTextColumn + cell)).isEmpty()) {
            filled |= 1U << cell;
        }
    }
    return filled;
}

const LineFacts &LineFactsCache::facts(int row)
{
    const auto place = static_cast<std::size_t>(row);
    if (place >= m_entries.size()) {
        m_entries.resize(static_cast<std::size_t>(m_grid.rows()));
    }
    Entry &entry = m_entries[place];
    const GridRow &now = m_grid.allRows().at(row);
    const GridRow &above = m_grid.allRows().at(row - 1);
    if (entry.row.constData() != now.constData() || entry.above.constData() != above.constData()) {
        entry = {.above = above, .row = now, .facts = read(row)};
    }
    return entry.facts;
}

LineFacts LineFactsCache::read(int row) const
{
    const GridRow &cells = m_grid.allRows().at(row);
    const QString previousEnd = row > 1 ? m_grid.text(row - 1, EndColumn) : u"00:00:00,000"_s;
    const unsigned filled = filledCells(cells);
    LineFacts facts;
    if (m_switches.isOn(CountTime) || m_switches.isOn(CheckNegative)) {
        facts.duration = TimeCodeAdd(cells.at(EndColumn), cells.at(StartColumn), u'-');
    }
    facts.inOrder = timesInOrder(previousEnd, cells, facts.duration)
                    && (!m_switches.isOn(CheckEmpty) || textFinding(filled) == nullptr);
    facts.mayHoldSaved =
        m_switches.isOn(CheckEmpty) && (filled & (First | Second)) == (First | Second);
    facts.isMultiLine = (filled & Second) != 0;
    if (m_switches.isOn(CountWords)) {
        facts.words = countWords(trimmed(cells.at(FirstTextColumn)), cells.at(FirstTextColumn + 1));
    }
    return facts;
}

bool LineFactsCache::timesInOrder(const QString &previousEnd, const GridRow &row,
                                  const QString &duration) const
{
    const QString &start = row.at(StartColumn);
    if (m_switches.isOn(CheckOverlapping) && TimeCodeAdd(start, previousEnd, u'-').startsWith(u'-'))
    {
        return false;
    }
    if (m_switches.isOn(CheckNegative) && duration.startsWith(u'-')) {
        return false;
    }
    return !m_switches.isOn(CheckInvalid)
           || (TimeCodeToMs(start) >= 0 && TimeCodeToMs(row.at(EndColumn)) >= 0);
}

} // namespace kavro
