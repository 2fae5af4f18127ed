#pragma once

#include "diagnose/switches.h"

#include <QString>
#include <QStringView>

#include <array>
#include <span>

namespace kavro {

/// What the texts of a line's findings are made of.
struct LineValues
{
    int row = 0;
    QString previousEnd; ///< end of the row above, zero for row 1
    QString start;
    QString end;
};

/// Rows in texts stand with four digits, so that a click finds them at their place.
QString fourDigits(int row);

/// A text with its values put in: "%p" and "%c" the row above and the row with four digits, "%r"
/// the row in plain digits, "%o" the end of the row above, "%s" the start, "%e" the end, "%d" how
/// far the row above reaches behind the start.
QString findingText(QStringView text, const LineValues &line);

/// A time that a line can't have.
struct TimeFinding
{
    DiagnoseSwitch check;
    DiagnoseSwitch repair;
    int rowOffset; ///< 0 for the row itself, -1 when the fault is the row's above
    int column;    ///< of the faulty cell
    /// Without a line of its own in the tree the explanation stands straight under its node.
    bool ownLine;
    QStringView explanation;
    QStringView newTime; ///< what the repair writes
    QStringView solved;
    QStringView advice;
};

extern const TimeFinding overlapping;
extern const TimeFinding negative;
extern const TimeFinding invalidStart;
extern const TimeFinding invalidEnd;

/// Which text cells of a row aren't empty.
enum FilledCells : unsigned { NoCell = 0, First = 1, Second = 2, Third = 4 };

/// Text in the wrong cell, or no text at all.
struct TextFinding
{
    /// One cell takes what another one holds; 0 for nothing.
    struct Move
    {
        int to = 0;
        int from = 0;
    };

    unsigned filled; ///< the cells that hold text
    int column;      ///< of the faulty cell
    QStringView explanation;
    QStringView solved;
    QStringView advice;
    std::array<Move, 3> moves; ///< in their order, up to one without a target
};

/// The finding of a row by its filled cells; nullptr for none. The one of `NoCell` has no moves:
/// its repair takes the line away.
const TextFinding *textFinding(unsigned filled);

/// What is told of a line while the current cell holds the mark of an emptied one; it has no
/// repair.
struct SavedEmptyLine
{
    static constexpr QStringView mark = u"{}";
    static constexpr QStringView explanation = u"Saved Empty line";
    static constexpr QStringView advice = u"Put spoken text in cel [%r,3]";
};

} // namespace kavro
