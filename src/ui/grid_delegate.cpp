#include "ui/grid_delegate.h"

#include "ui/cell_colors.h"
#include "ui/elided_label.h"
#include "ui/grid_model.h"

#include <QAbstractItemView>
#include <QPainter>

namespace kavro {

namespace {

constexpr int textMargin = 5;

struct Look
{
    QColor background;
    QColor text;
};

Look lookOf(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QPalette palette = option.palette;
    // The fixed column can't be stepped into, but it reads like the others.
    palette.setCurrentColorGroup(option.widget != nullptr && option.widget->isEnabled()
                                     ? QPalette::Active
                                     : QPalette::Disabled);
    const bool fixed = index.column() == 0;
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    Look look{.background = palette.color(fixed ? QPalette::Window : QPalette::Base),
              .text = palette.color(fixed ? QPalette::WindowText : QPalette::Text)};
    if (const QVariant color = index.data(GridModel::CellColorRole); color.isValid()) {
        const CellColors colors = cellColors(color.toUInt(), palette);
        look = {.background = colors.background, .text = colors.text};
    } else if (chosen) {
        constexpr double tint = 0.16;
        look.background = mix(palette.color(QPalette::Highlight), look.background, tint);
    } else if (fixed) {
        look.text = mix(look.text, look.background, 0.65);
    }
    return look;
}

} // namespace

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const Look look = lookOf(option, index);
    painter->fillRect(option.rect, look.background);

    // The blank at the head of a text is the document's, not the picture's.
    const QString text = withoutMiddle(index.data(Qt::DisplayRole).toString()).trimmed();
    const auto alignment = static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt());
    const QRect place = option.rect.adjusted(textMargin, 0, -textMargin, 0);
    // A line of Hebrew or Arabic begins at the right.
    const Qt::LayoutDirection direction = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    painter->setPen(look.text);
    painter->setFont(option.font);
    painter->setLayoutDirection(direction);
    painter->drawText(
        place, static_cast<int>(QStyle::visualAlignment(direction, alignment)) | Qt::TextSingleLine,
        option.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));

    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    if (view != nullptr && view->currentIndex() == index) {
        const bool active = view->hasFocus() || view->viewport()->hasFocus();
        const QColor frame = option.palette.color(QPalette::Active, QPalette::Highlight);
        painter->setPen(active ? QPen(frame, 2) : QPen(mix(frame, look.background, 0.6), 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
}

} // namespace kavro
