#pragma once

#include <QSplitter>

namespace kavro {

/// A panel at the left of what takes the rest of the room. The panel keeps the width that a person
/// gave it: where a page needs more than is left, it gives way until there is enough again.
class PanelSplitter : public QSplitter
{
    Q_OBJECT

public:
    explicit PanelSplitter(QWidget *parent);

    /// Pixels; what the panel shall have, whether or not there is room for it now.
    [[nodiscard]] int panelWidth() const { return m_panelWidth; }
    void setPanelWidth(int width);

protected:
    bool event(QEvent *event) override;

private:
    void place();

    int m_panelWidth = 0;
};

} // namespace kavro
