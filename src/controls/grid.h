#pragma once

#include "controls/control.h"

#include <QHash>
#include <QList>
#include <QPair>

#include <functional>

namespace kavro {

/// The cells of one row, column 0 first. Shared until written, so that a copy of all rows is cheap.
using GridRow = QList<QString>;

/// A table of texts with a current cell. Row 0 is the header; rows and columns count from 0.
///
/// What lies outside the table reads as empty and is not written. The top row is data: it changes
/// by code and by the user's scrolling; moving the current cell never scrolls.
class Grid : public Control
{
    Q_OBJECT

public:
    /// @param rows  header included; fewer than one count as the header alone
    /// @param cols  one or more, the same for good
    Grid(Form &form, const QString &name, int rows, int cols);

    [[nodiscard]] int rows() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int cols() const { return m_cols; }
    [[nodiscard]] int row() const { return m_row; }
    [[nodiscard]] int col() const { return m_col; }
    [[nodiscard]] int topRow() const { return m_topRow; }
    /// The row of the last click, the header's 0 included.
    [[nodiscard]] int mouseRow() const { return m_mouseRow; }
    [[nodiscard]] bool has(int row, int col) const
    {
        return row >= 0 && row < rows() && col >= 0 && col < m_cols;
    }
    [[nodiscard]] const QString &text(int row, int col) const;
    [[nodiscard]] const QList<GridRow> &allRows() const { return m_rows; }
    [[nodiscard]] Color cellColor(int row, int col) const;
    /// The cells with a colour of their own, by row and column.
    [[nodiscard]] QList<QPair<int, int>> coloredCells() const;

    /// Adds empty rows at the end or cuts rows off; never fewer than the header.
    void setRows(int rows);
    /// False when there is no such cell.
    bool setText(int row, int col, const QString &text);
    /// All rows at once, header included; each is brought to the grid's columns.
    void setAllRows(const QList<GridRow> &rows);
    /// Lets `change` write the rows themselves, the fast way to change many; rows keep their
    /// columns, and the header stays. Colours stay where they are. Raises one `reset`.
    void rewrite(const std::function<void(QList<GridRow> &rows)> &change);
    /// Before row `at`, cut to 1 ... rows; colours move along. `cells` is brought to the grid's
    /// columns.
    void insertRow(int at, const GridRow &cells = {});
    /// Nothing for the header and outside the table; colours move along.
    void removeRow(int at);
    void setRow(int row) { setCurrent(row, m_col); }
    void setCol(int col) { setCurrent(m_row, col); }
    /// Moves the current cell; cut to the cells that are there.
    void setCurrent(int row, int col);
    /// Cut to 1 ... rows - 1.
    void setTopRow(int row);
    void setCellColor(int row, int col, Color color);
    void clearCellColors();
    /// The cells with a colour of their own; shared until written.
    using Colors = QHash<QPair<int, int>, Color>;
    [[nodiscard]] const Colors &allColors() const { return m_colors; }
    void setAllColors(const Colors &colors);

    /// Act: the user moves the current cell, which never comes to the header.
    void moveTo(int row, int col);
    /// Act: the user clicks a cell. A click on the header moves nothing; outside the table there is
    /// nothing to click.
    void click(int row, int col);
    /// Act: the user scrolls.
    void scrollTo(int topRow);

    /// While one lives the cells change in silence; the last one's end raises one `reset`.
    class Batch
    {
    public:
        explicit Batch(Grid &grid);
        ~Batch();
        Q_DISABLE_COPY_MOVE(Batch)

    private:
        Grid &m_grid;
    };

signals:
    /// Text or colour of one cell.
    void cellChanged(int row, int col);
    void rowsInserted(int first, int count);
    void rowsRemoved(int first, int count);
    /// Anything may be different: rows, texts, colours.
    void reset();
    void currentChanged(int row, int col);
    void topRowChanged(int row);
    void clicked(int row, int col);

private:
    void fit();
    void moveColors(int first, int by);
    void dropColorsFrom(int row);
    void changed(int row, int col);

    QList<GridRow> m_rows;
    int m_cols;
    int m_row = 1;
    int m_col = 1;
    int m_topRow = 1;
    int m_mouseRow = 0;
    int m_batches = 0;
    Colors m_colors;
};

} // namespace kavro
