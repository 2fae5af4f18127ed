#pragma once

#include <QLabel>

namespace kavro {

/// A line of text of any length that gives way: what doesn't fit is cut.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    ElidedLabel(Qt::TextElideMode mode, QWidget *parent) : QLabel(parent), m_mode(mode) {}

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::TextElideMode m_mode;
};

/// `text` with the middle of a very long one left out: what lies there is in no sight, and
/// measuring it takes its time.
QString withoutMiddle(const QString &text, qsizetype longest = 2000);

} // namespace kavro
