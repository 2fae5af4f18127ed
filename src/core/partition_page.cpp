#include "core/partition_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

PartitionPage::PartitionPage(Form &frmMain)
    : grid(frmMain, u"grid"_s, 2, PartColumnCount), List2(frmMain, u"List2"_s)
{}

QString PartitionPage::partName(int part) const
{
    const QString &name = grid.text(part, PartNameColumn);
    return name.left(name.indexOf(u'.'));
}

void PartitionPage::append(const QString &name, const QString &length)
{
    const int row = grid.rows() - 1;
    grid.insertRow(row, {QString::number(row), name, length});
}

} // namespace kavro
