#pragma once

#include "controls/tree_view.h"

#include <QAbstractItemModel>
#include <QList>

#include <functional>

namespace kavro {

/// A tree control as Qt's views read it. Nodes that `isShown` refuses are left out, with all below
/// them.
class TreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using IsShown = std::function<bool(int node)>;

    TreeModel(TreeView &tree, IsShown isShown, QObject *parent);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

    /// The node of an index, `TreeView::noNode` for none.
    [[nodiscard]] static int nodeOf(const QModelIndex &index);
    /// The place of a node; none for one that isn't shown.
    [[nodiscard]] QModelIndex indexOf(int node) const;

private:
    /// What a node of the control is in the view; number 0 of `m_places` is the invisible root, so
    /// a node's is one more.
    struct Place
    {
        int parent = -1;
        int row = -1; ///< among the shown ones, -1 when it isn't shown
        QList<int> shown;
    };

    void build();
    void append(int node);
    void add(int node);
    [[nodiscard]] const Place &placeOf(const QModelIndex &index) const;

    TreeView &m_tree;
    IsShown m_isShown;
    QList<Place> m_places;
};

} // namespace kavro
