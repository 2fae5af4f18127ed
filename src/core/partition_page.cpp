#include "core/partition_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

PartitionPage::PartitionPage(Form &frmMain)
    : grid(frmMain, u"grid"_s, 2, 3), List2(frmMain, u"List2"_s)
{}

} // namespace kavro
