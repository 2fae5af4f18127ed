#include "ui/elided_label.h"

#include <QPainter>

namespace kavro {

QString withoutMiddle(const QString &text, qsizetype longest)
{
    return text.size() <= longest
               ? text
               : text.left(longest / 2) + QChar(0x2026) + text.right(longest / 2);
}

QSize ElidedLabel::sizeHint() const
{
    constexpr int letters = 8;
    return QSize(fontMetrics().averageCharWidth() * letters, fontMetrics().height())
           + QSize(2 * margin(), 2 * margin());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect place = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    painter.setPen(palette().color(foregroundRole()));
    painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(place, static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(withoutMiddle(text()), m_mode, place.width()));
}

} // namespace kavro
