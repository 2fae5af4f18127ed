#pragma once

#include <QStyledItemDelegate>

namespace kavro {

/// Paints the cells of a grid: a fixed first column, the current row tinted, the current cell
/// framed, colours of cells with text that can be read on them.
class GridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace kavro
