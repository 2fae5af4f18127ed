#pragma once

#include "ui/grid_model.h"

#include <QList>
#include <QTableView>

namespace kavro {

/// Shows a grid control. Current cell and top row go both ways; a person's click, step and scroll
/// become the control's acts, and nothing that the control does by itself scrolls but its top row.
class GridView : public QTableView
{
    Q_OBJECT

public:
    /// @param label  what a screen reader calls the table
    GridView(Grid &grid, const QString &label, GridModel::RowNote note, QWidget *parent);

    /// Widths of the columns in pixels; those from `firstStretched` to `lastStretched` share the
    /// room that is left, in proportion.
    void setColumnWidths(const QList<int> &widths, int firstStretched, int lastStretched);
    /// What stands in the middle of a grid that has no row but its end row.
    void setHint(const QString &hint);
    /// The current cell in the viewport's coordinates; empty when there is none.
    [[nodiscard]] QRect currentCell() const;
    [[nodiscard]] Grid &grid() { return m_grid; }

signals:
    /// The current cell is another one or lies elsewhere.
    void currentCellMoved();
    /// A person asks to change the current cell: F2, Enter, double click.
    void editAsked();
    /// A person types over the current cell; `event` is the key or the input method's text.
    void typedOver(QEvent *event);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void updateGeometries() override;

private:
    void connectGrid();
    void showCurrent();
    void showTopRow();
    void stretchColumns();
    [[nodiscard]] bool isStretched(int col) const;
    void setRowHeights();

    Grid &m_grid;
    GridModel m_model;
    QString m_hint;
    QList<int> m_widths; ///< as they were set or a person made them; empty for Qt's own
    int m_firstStretched = 0;
    int m_lastStretched = -1;
    bool m_stretching = false;
    bool m_following = false; ///< the control moves the view, not a person
};

} // namespace kavro
