#pragma once

#include "controls/grid.h"
#include "controls/list_box.h"

namespace kavro {

/// Columns of the partition list.
enum PartColumn { PartNumberColumn = 0, PartNameColumn = 1, PartLengthColumn = 2, PartColumnCount };

/// The partition list: one row an output file, its name and its length, and an empty end row.
struct PartitionPage
{
    explicit PartitionPage(Form &frmMain);

    /// Number of parts, Rows-2, never below 0.
    [[nodiscard]] int partCount() const { return grid.rows() < 2 ? 0 : grid.rows() - 2; }
    /// The name that a part's file gets: the cell up to, but not including, its first ".".
    [[nodiscard]] QString partName(int part) const;
    /// Adds a part behind the last one. Neither text is checked: a length that is no TimeCode
    /// counts by what stands at its positions.
    void append(const QString &name, const QString &length);

    Grid grid;     ///< by `PartColumn`: number, name of the file, length as a TimeCode
    ListBox List2; ///< names of the part files that the last run made
};

} // namespace kavro
