#include "controls/grid.h"

#include <algorithm>

namespace kavro {

namespace {

const QString noText;

GridRow emptyRow(int cols)
{
    return GridRow(cols);
}

} // namespace

Grid::Grid(Form &form, const QString &name, int rows, int cols)
    : Control(form, name), m_rows(std::max(rows, 1), emptyRow(cols)), m_cols(cols)
{
    fit();
}

const QString &Grid::text(int row, int col) const
{
    return has(row, col) ? m_rows.at(row).at(col) : noText;
}

Color Grid::cellColor(int row, int col) const
{
    return m_colors.value({row, col});
}

QList<QPair<int, int>> Grid::coloredCells() const
{
    QList<QPair<int, int>> cells = m_colors.keys();
    std::ranges::sort(cells);
    return cells;
}

void Grid::setRows(int count)
{
    const int old = rows();
    const int now = std::max(count, 1);
    if (now > old) {
        m_rows.resize(now, emptyRow(m_cols));
        if (m_batches == 0) {
            emit rowsInserted(old, now - old);
        }
    } else if (now < old) {
        m_rows.resize(now);
        dropColorsFrom(now);
        if (m_batches == 0) {
            emit rowsRemoved(now, old - now);
        }
    }
    fit();
}

bool Grid::setText(int row, int col, const QString &text)
{
    if (!has(row, col)) {
        return false;
    }
    if (m_rows.at(row).at(col) != text) {
        m_rows[row][col] = text;
        changed(row, col);
    }
    return true;
}

void Grid::setAllRows(const QList<GridRow> &rows)
{
    m_rows = rows;
    for (GridRow &row : m_rows) {
        if (row.size() != m_cols) {
            row.resize(m_cols);
        }
    }
    if (m_rows.isEmpty()) {
        m_rows.append(emptyRow(m_cols));
    }
    dropColorsFrom(static_cast<int>(m_rows.size()));
    if (m_batches == 0) {
        emit reset();
    }
    fit();
}

void Grid::rewrite(const std::function<void(QList<GridRow> &rows)> &change)
{
    const Batch batch(*this);
    change(m_rows);
    dropColorsFrom(rows());
    fit();
}

void Grid::insertRow(int at, const GridRow &cells)
{
    const int place = std::clamp(at, 1, rows());
    GridRow row = cells;
    row.resize(m_cols);
    m_rows.insert(place, row);
    moveColors(place, 1);
    if (m_batches == 0) {
        emit rowsInserted(place, 1);
    }
}

void Grid::removeRow(int at)
{
    if (at < 1 || at >= rows()) {
        return;
    }
    m_rows.removeAt(at);
    moveColors(at, -1);
    if (m_batches == 0) {
        emit rowsRemoved(at, 1);
    }
    fit();
}

void Grid::setCurrent(int row, int col)
{
    const int newRow = std::clamp(row, 0, rows() - 1);
    const int newCol = std::clamp(col, 0, m_cols - 1);
    if (newRow != m_row || newCol != m_col) {
        m_row = newRow;
        m_col = newCol;
        emit currentChanged(m_row, m_col);
    }
}

void Grid::setTopRow(int row)
{
    const int top = std::clamp(row, 1, std::max(1, rows() - 1));
    if (top != m_topRow) {
        m_topRow = top;
        emit topRowChanged(m_topRow);
    }
}

void Grid::setCellColor(int row, int col, Color color)
{
    if (!has(row, col) || cellColor(row, col) == color) {
        return;
    }
    if (color.isDesktop()) {
        m_colors.remove({row, col});
    } else {
        m_colors.insert({row, col}, color);
    }
    changed(row, col);
}

void Grid::clearCellColors()
{
    if (!m_colors.isEmpty()) {
        m_colors.clear();
        if (m_batches == 0) {
            emit reset();
        }
    }
}

void Grid::setAllColors(const Colors &colors)
{
    m_colors = colors;
    dropColorsFrom(rows());
    if (m_batches == 0) {
        emit reset();
    }
}

void Grid::moveTo(int row, int col)
{
    m_row = std::clamp(row, std::min(1, rows() - 1), rows() - 1);
    m_col = std::clamp(col, 0, m_cols - 1);
    emit currentChanged(m_row, m_col);
}

void Grid::click(int row, int col)
{
    if (!has(row, col)) {
        return;
    }
    m_mouseRow = row;
    if (row > 0) {
        setCurrent(row, col);
    }
    emit clicked(row, col);
}

void Grid::scrollTo(int topRow)
{
    setTopRow(topRow);
}

void Grid::fit()
{
    setCurrent(m_row, m_col);
    setTopRow(m_topRow);
}

// Those that would come before `first` belong to rows that went away.
void Grid::moveColors(int first, int by)
{
    if (m_colors.isEmpty()) {
        return;
    }
    Colors moved;
    for (auto it = m_colors.cbegin(); it != m_colors.cend(); ++it) {
        const auto [row, col] = it.key();
        if (row < first) {
            moved.insert(it.key(), it.value());
        } else if (row + by >= first) {
            moved.insert({row + by, col}, it.value());
        }
    }
    m_colors.swap(moved);
}

void Grid::dropColorsFrom(int row)
{
    const auto behind = [row](const QPair<int, int> &cell) { return cell.first >= row; };
    // Looked for ahead: a shared table is copied by the first write.
    if (std::any_of(m_colors.keyBegin(), m_colors.keyEnd(), behind)) {
        m_colors.removeIf([&](auto it) { return behind(it.key()); });
    }
}

void Grid::changed(int row, int col)
{
    if (m_batches == 0) {
        emit cellChanged(row, col);
    }
}

Grid::Batch::Batch(Grid &grid) : m_grid(grid)
{
    ++m_grid.m_batches;
}

Grid::Batch::~Batch()
{
    if (--m_grid.m_batches == 0) {
        emit m_grid.reset();
    }
}

} // namespace kavro
