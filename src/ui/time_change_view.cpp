#include "ui/time_change_view.h"

#include "core/time_page.h"
#include "tools/time_change.h"
#include "ui/bind_text.h"
#include "ui/time_field.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace kavro {

TimeChangeView::TimeChangeView(TimeChange &change, TimePage &times, QWidget *parent)
    : ToolPage(parent)
{
    auto *start = new TimeField(TimeField::Form::Hours, this);
    bind(*start, times.rtfTimeStart, tr("Start of the line"));
    auto *end = new TimeField(TimeField::Form::Hours, this);
    bind(*end, times.rtfTimeEnd, tr("End of the line"));
    auto *step = new TimeField(TimeField::Form::Minutes, this);
    bind(*step, change.rtfDurShift, tr("Step"));

    QHBoxLayout *row = addRow();
    addField(row, change.lblTime[0], start);
    addField(row, change.lblTime[1], end);
    row->addStretch(1);
    row = addRow();
    addField(row, change.lblTime[2], step);
    for (Button *button :
         {&change.Command15, &change.Command16, &change.Command17, &change.Command18}) {
        row->addWidget(makeButton(*button));
    }
    row->addStretch(1);
    row = addRow();
    row->addStretch(1);
    row->addWidget(makeDefault(change.Command19));
}

} // namespace kavro
