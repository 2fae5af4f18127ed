#include "ui/grid_model.h"

#include <QScopedValueRollback>

#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

GridModel::GridModel(Grid &grid, RowNote note, QObject *parent)
    : QAbstractTableModel(parent),
      m_grid(grid),
      m_note(note ? std::move(note) : [](int) { return QString(); }),
      m_rows(grid.rows() - 1)
{
    connect(&grid, &Grid::cellChanged, this, [this](int row, int col) {
        if (row == 0) {
            emit headerDataChanged(Qt::Horizontal, col, col);
        } else {
            const QModelIndex cell = indexOf(row, col);
            emit dataChanged(cell, cell);
        }
    });
    connect(&grid, &Grid::rowsInserted, this,
            [this](int first, int count) { insertFrom(first - 1, count); });
    connect(&grid, &Grid::rowsRemoved, this,
            [this](int first, int count) { removeFrom(first - 1, count); });
    connect(&grid, &Grid::reset, this, &GridModel::showAll);
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_grid.cols();
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int row = rowOf(index);
    const int col = index.column();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return m_grid.text(row, col);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((col == 0 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ToolTipRole: return m_note(row);
    case Qt::AccessibleTextRole: return spokenText(row, col);
    case Qt::AccessibleDescriptionRole: return m_note(row);
    case CellColorRole: {
        const Color color = m_grid.cellColor(row, col);
        return color.isDesktop() ? QVariant() : QVariant(color.rgb());
    }
    default: return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::DisplayRole && orientation == Qt::Horizontal) {
        return m_grid.text(0, section);
    }
    if (role == Qt::DisplayRole) {
        return m_grid.text(section + 1, 0);
    }
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == 0 ? flags : flags | Qt::ItemIsEnabled | Qt::ItemIsEditable;
}

QModelIndex GridModel::indexOf(int row, int col) const
{
    return m_grid.has(row, col) && row > 0 ? index(row - 1, col) : QModelIndex();
}

void GridModel::insertFrom(int first, int count)
{
    const QScopedValueRollback changing(m_changing, true);
    beginInsertRows({}, first, first + count - 1);
    m_rows += count;
    endInsertRows();
}

void GridModel::removeFrom(int first, int count)
{
    const QScopedValueRollback changing(m_changing, true);
    beginRemoveRows({}, first, first + count - 1);
    m_rows -= count;
    endRemoveRows();
}

// Behind a bulk change only the number of rows is brought in line, at the end; a reset of the model
// would take selection and scroll position from every view.
void GridModel::showAll()
{
    const int rows = m_grid.rows() - 1;
    if (rows > m_rows) {
        insertFrom(m_rows, rows - m_rows);
    } else if (rows < m_rows) {
        removeFrom(rows, m_rows - rows);
    }
    emit headerDataChanged(Qt::Horizontal, 0, m_grid.cols() - 1);
    if (m_rows > 0) {
        emit dataChanged(index(0, 0), index(m_rows - 1, m_grid.cols() - 1));
    }
}

QString GridModel::spokenText(int row, int col) const
{
    const QString note = m_note(row);
    const QString text = m_grid.text(row, col).trimmed();
    return note.isEmpty() ? text : text + u"; "_s + note;
}

} // namespace kavro
