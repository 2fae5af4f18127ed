#pragma once

#include "controls/grid.h"

#include <QAbstractTableModel>

#include <functional>

namespace kavro {

/// A grid control as Qt's views read it: row 0 of the control is the header, rows 1 to Rows-1 are
/// the rows, columns are the same.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The note on a row of the control, such as a finding; empty for none.
    using RowNote = std::function<QString(int row)>;

    enum Role {
        CellColorRole = Qt::UserRole, ///< 0xRRGGBB; no value for the desktop's own
    };

    explicit GridModel(Grid &grid, RowNote note = {}, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// Column 0 is fixed: nobody steps into it.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// The control's cell as an index of the model; none for the header and outside.
    [[nodiscard]] QModelIndex indexOf(int row, int col) const;
    [[nodiscard]] static int rowOf(const QModelIndex &index) { return index.row() + 1; }
    /// True while views are told of rows that come or go; what they do with their current cell
    /// meanwhile is no person's act.
    [[nodiscard]] bool isChanging() const { return m_changing; }

private:
    void insertFrom(int first, int count);
    void removeFrom(int first, int count);
    void showAll();
    [[nodiscard]] QString spokenText(int row, int col) const;

    Grid &m_grid;
    RowNote m_note;
    int m_rows; ///< what the views know of; the control is ahead within a change
    bool m_changing = false;
};

} // namespace kavro
