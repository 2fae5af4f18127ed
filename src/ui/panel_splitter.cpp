#include "ui/panel_splitter.h"

#include <QEvent>

namespace kavro {

PanelSplitter::PanelSplitter(QWidget *parent) : QSplitter(Qt::Horizontal, parent)
{
    setChildrenCollapsible(false);
    // A person's move alone.
    connect(this, &QSplitter::splitterMoved, this, [this] { m_panelWidth = sizes().constFirst(); });
}

void PanelSplitter::setPanelWidth(int width)
{
    m_panelWidth = width;
    place();
}

bool PanelSplitter::event(QEvent *event)
{
    const bool handled = QSplitter::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        place();
    }
    return handled;
}

void PanelSplitter::place()
{
    if (m_panelWidth > 0 && sizes().value(0) != m_panelWidth) {
        setSizes({m_panelWidth, width() - m_panelWidth - handleWidth()});
    }
}

} // namespace kavro
