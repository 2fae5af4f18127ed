#pragma once

#include <QLineEdit>

#include <functional>
#include <utility>

namespace kavro {

class GridView;
class TextBox;

/// The field that lies over the current cell of a grid while its control has the focus.
///
/// Leaving the cell by the arrows or by a click elsewhere keeps what was typed, as Enter does:
/// nothing that a person typed goes by itself.
class CellEditor : public QLineEdit
{
    Q_OBJECT

public:
    CellEditor(GridView &view, TextBox &box, const QString &label);

    using IsCompanion = std::function<bool(const QWidget *widget)>;
    /// Companions go on with the same text: who goes there hasn't left the cell.
    void setCompanions(IsCompanion isCompanion) { m_isCompanion = std::move(isCompanion); }

    /// Opens over the current cell, with its whole text selected.
    void begin();
    /// Opens with the cell's text replaced by what `event`, a key or an input method, brings.
    void beginWith(QEvent *event);
    /// Ends the edit as Enter does if something was typed, else as Escape does; nothing when the
    /// field isn't open.
    void finish();
    [[nodiscard]] bool isOpen() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    void place();
    void followFocus(bool mine);
    void stepRow(QKeyEvent *event);

    GridView &m_view;
    TextBox &m_box;
    IsCompanion m_isCompanion = [](const QWidget *) { return false; };
    QString m_before; ///< the text that the edit began with
};

} // namespace kavro
