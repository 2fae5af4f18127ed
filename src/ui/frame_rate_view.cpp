#include "ui/frame_rate_view.h"

#include "core/frame_rate_page.h"
#include "tools/frame_rate_conversion.h"
#include "ui/bind_buttons.h"
#include "ui/bind_lists.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

namespace kavro {

FrameRateView::FrameRateView(FrameRateConversion &conversion, FrameRatePage &rates, QWidget *parent)
    : ToolPage(parent)
{
    QHBoxLayout *row = addRow();
    row->addWidget(makeRates(rates));
    row->addStretch(1);

    auto *from = new QComboBox(this);
    bind(*from, rates.Combo14[0], tr("From"));
    auto *to = new QComboBox(this);
    bind(*to, rates.Combo14[1], tr("To"));
    row = addRow();
    addField(row, conversion.Label32, from);
    row->addWidget(to);
    row->addStretch(1);
    row = addRow();
    row->addStretch(1);
    row->addWidget(makeDefault(conversion.Command52));
}

QWidget *FrameRateView::makeRates(FrameRatePage &rates)
{
    auto *group = new QWidget(this);
    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (OptionButton &rate : rates.optFrameRate) {
        auto *view = new QRadioButton(group);
        bind(*view, rate);
        layout->addWidget(view);
    }
    return group;
}

} // namespace kavro
