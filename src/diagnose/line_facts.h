#pragma once

#include "controls/grid.h"
#include "diagnose/switches.h"

#include <QString>

#include <vector>

namespace kavro {

/// What a run needs of a line in which it finds nothing.
struct LineFacts
{
    bool inOrder = false;      ///< no check that is on finds anything
    bool mayHoldSaved = false; ///< the line is one that a saved empty line is told of
    bool isMultiLine = false;
    int words = 0;
    QString duration; ///< empty while times aren't counted
};

/// The words and multi lines of a row.
///
/// @param first  its first text, trimmed; the second is read as it stands. The third is never
///               counted, and two blanks in a row make a word.
int countWords(QStringView first, QStringView second);

/// The filled text cells of a row, as `FilledCells`.
unsigned filledCells(const GridRow &row);

/// Tells for each row of a grid whether it is in order, and remembers it for as long as the row and
/// the one above it stay what they are: repairs scan a document over and over.
class LineFactsCache
{
public:
    LineFactsCache(const Grid &grid, const DiagnoseSwitches &switches)
        : m_grid(grid), m_switches(switches)
    {}

    /// The row must be one of the grid's, from 1 on. Stays until the next call.
    const LineFacts &facts(int row);

private:
    struct Entry
    {
        GridRow above; ///< kept, so that no other row comes to stand at its place in memory
        GridRow row;
        LineFacts facts;
    };

    [[nodiscard]] LineFacts read(int row) const;
    [[nodiscard]] bool timesInOrder(const QString &previousEnd, const GridRow &row,
                                    const QString &duration) const;

    const Grid &m_grid;
    const DiagnoseSwitches &m_switches;
    std::vector<Entry> m_entries;
};

} // namespace kavro
