#include "ui/filters_view.h"

#include "tools/filters.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace kavro {

FiltersView::FiltersView(Filters &filters, QWidget *parent) : ToolPage(parent)
{
    auto *turn = new QCheckBox(this);
    bind(*turn, filters.Check4[0]);
    auto *breakLines = new QCheckBox(this);
    bind(*breakLines, filters.Check4[1]);
    QLineEdit *most = makeNumberField(filters.txtMaxCount, tr("Most characters of a line"));

    addRow()->addWidget(turn);
    QHBoxLayout *row = addRow();
    row->addWidget(breakLines);
    addField(row, filters.lblMaxCount, most);
    row->addStretch(1);
    row = addRow();
    row->addStretch(1);
    row->addWidget(makeDefault(filters.Command30));
}

} // namespace kavro
