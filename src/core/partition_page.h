#pragma once

#include "controls/grid.h"
#include "controls/list_box.h"

namespace kavro {

/// The partition list: one row an output file, its name and its length, and an empty end row.
struct PartitionPage
{
    explicit PartitionPage(Form &frmMain);

    Grid grid;     ///< column 0 the number, 1 the file's name, 2 the length as a TimeCode
    ListBox List2; ///< names of the part files that the last run made
};

} // namespace kavro
