#pragma once

#include <QLabel>

namespace kavro {

/// A line of text that gives way: what doesn't fit is cut in the middle and told by the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace kavro
