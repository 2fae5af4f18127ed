#include "ui/shift_view.h"

#include "core/time_page.h"
#include "tools/shift.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"
#include "ui/time_field.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace kavro {

ShiftView::ShiftView(Shift &shift, TimePage &times, QWidget *parent) : ToolPage(parent)
{
    auto *duration = new TimeField(TimeField::Form::Hours, this);
    bind(*duration, shift.rtfShiftDuration, tr("Duration"));
    auto *direction = new QComboBox(this);
    bind(*direction, shift.Combo2, tr("Direction"));

    QHBoxLayout *row = addRow();
    addField(row, shift.Label26, duration);
    row->addWidget(direction);
    row->addStretch(1);
    row = addRow();
    auto *lines = new QLabel(this);
    bind(*lines, shift.Label39);
    row->addWidget(lines);
    addRange(row, times.Text1[0], times.Text1[1], shift.Label5, shift.Label76);
    row->addStretch(1);
    row = addRow();
    row->addStretch(1);
    row->addWidget(makeDefault(shift.Command13));
}

} // namespace kavro
