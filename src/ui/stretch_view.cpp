#include "ui/stretch_view.h"

#include "core/time_page.h"
#include "tools/stretch.h"
#include "ui/bind_text.h"
#include "ui/time_field.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace kavro {

StretchView::StretchView(Stretch &stretch, Label &lines, TimePage &times, QWidget *parent)
    : ToolPage(parent)
{
    auto *first = new TimeField(TimeField::Form::Hours, this);
    bind(*first, times.rtfStretchFirst, tr("Start of the first line"));
    auto *last = new TimeField(TimeField::Form::Hours, this);
    bind(*last, times.rtfStretchLast, tr("Start of the last line"));

    QHBoxLayout *row = addRow();
    addField(row, stretch.Label40, first);
    addField(row, stretch.Label41, last);
    row->addStretch(1);
    row = addRow();
    auto *names = new QLabel(this);
    bind(*names, lines);
    row->addWidget(names);
    addRange(row, times.Text1[2], times.Text1[3], stretch.Label63, stretch.Label77);
    row->addStretch(1);
    row = addRow();
    row->addStretch(1);
    row->addWidget(makeDefault(stretch.Command12));
}

} // namespace kavro
