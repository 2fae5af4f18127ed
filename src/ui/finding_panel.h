#pragma once

#include <QFrame>

namespace kavro {

class Frame;
class GridView;
class Label;

/// The panel beside the current cell that tells the finding of its row: below and right of the
/// cell, but never across the grid's right or lower edge.
class FindingPanel : public QFrame
{
    Q_OBJECT

public:
    FindingPanel(GridView &view, Frame &frame, Label &text);

private:
    void place();

    GridView &m_view;
    Frame &m_frame;
};

/// Where a panel of that size stands beside a cell within a grid of that size.
QPoint placeBeside(const QRect &cell, const QSize &panel, const QSize &grid);

} // namespace kavro
