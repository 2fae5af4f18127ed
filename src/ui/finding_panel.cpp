#include "ui/finding_panel.h"

#include "controls/control.h"
#include "ui/grid_view.h"

#include <QLabel>
#include <QToolTip>
#include <QVBoxLayout>

namespace kavro {

namespace {

constexpr int gap = 2;
constexpr int textWidth = 320;

} // namespace

FindingPanel::FindingPanel(GridView &view, Frame &frame, Label &text)
    : QFrame(view.viewport()), m_view(view), m_frame(frame)
{
    hide();
    setObjectName(frame.nameWithIndex());
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    // Cells that it covers can still be clicked.
    setAttribute(Qt::WA_TransparentForMouseEvents);

    auto *label = new QLabel(this);
    label->setObjectName(text.nameWithIndex());
    label->setForegroundRole(QPalette::ToolTipText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 5, 8, 5);
    layout->addWidget(label);

    const auto show = [this, label, &text] {
        label->setText(text.caption());
        const int width = label->fontMetrics().horizontalAdvance(text.caption()) + 4;
        label->setFixedWidth(std::min(width, textWidth));
        place();
    };
    connect(&text, &Label::captionChanged, this, show);
    connect(&frame, &Control::lookChanged, this, &FindingPanel::place);
    connect(&view, &GridView::currentCellMoved, this, &FindingPanel::place);
    show();
}

void FindingPanel::place()
{
    const QRect cell = m_view.currentCell();
    const QSize grid = m_view.viewport()->size();
    const bool seen = QRect({0, 0}, grid).intersects(cell);
    setVisible(m_frame.isVisible() && seen);
    if (isVisible()) {
        adjustSize();
        move(placeBeside(cell, size(), grid));
        raise();
    }
}

QPoint placeBeside(const QRect &cell, const QSize &panel, const QSize &grid)
{
    QPoint place(cell.right() + 1 + gap, cell.bottom() + 1 + gap);
    if (place.x() + panel.width() > grid.width()) {
        place.setX(std::max(0, grid.width() - panel.width()));
    }
    if (place.y() + panel.height() > grid.height()) {
        place.setY(cell.top() - panel.height() - gap);
    }
    return place;
}

} // namespace kavro
