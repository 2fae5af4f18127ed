#pragma once

#include <ostream>

namespace kavro {

class TreeView;

/// Prints what a scan has found as tables for a person: the file with its counts, the findings, and
/// what was done or can be done about them.
///
/// @param tree       the tree of the scan
/// @param remaining  findings that are not repaired
void printFindings(const TreeView &tree, int remaining, std::ostream &out);

} // namespace kavro
