#include "ui/status_bar_view.h"

#include "core/status_panels.h"
#include "ui/bind_look.h"
#include "ui/bind_text.h"
#include "ui/elided_label.h"

#include <array>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int panelCount = 4;

} // namespace

StatusBarView::StatusBarView(StatusPanels &panels, QWidget *parent) : QStatusBar(parent)
{
    StatusBar &bar = panels.StatusBar1;
    bindLookInPlace(*this, bar, tr("Status"));
    const std::array<QString, panelCount> names{tr("File"), tr("Format"), tr("State"),
                                                tr("Findings")};
    std::array<QLabel *, panelCount> labels{};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i] = makePanel(names[i], i == 0 ? 1 : 0);
        labels[i]->setObjectName(u"StatusBar1.%1"_s.arg(i + 1));
    }
    const auto show = [labels, &bar](int number) {
        QLabel &label = *labels[static_cast<std::size_t>(number - 1)];
        label.setText(bar.panel(number));
        label.setToolTip(bar.panel(number));
    };
    for (int number = 1; number <= panelCount; ++number) {
        show(number);
    }
    connect(&bar, &StatusBar::panelChanged, this, show);

    auto *encoding = new QLabel(this);
    bind(*encoding, panels.lblEncoding);
    encoding->setMargin(3);
    addPermanentWidget(encoding);
}

QLabel *StatusBarView::makePanel(const QString &name, int stretch)
{
    QLabel *label = stretch > 0 ? new ElidedLabel(Qt::ElideMiddle, this) : new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setAccessibleName(name);
    label->setMargin(3);
    if (stretch == 0) {
        label->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    }
    // Permanent, so that the help text of a menu entry doesn't push the panels away.
    addPermanentWidget(label, stretch);
    return label;
}

} // namespace kavro
