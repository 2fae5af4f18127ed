#include "ui/tree_model.h"

#include <utility>

namespace kavro {

TreeModel::TreeModel(TreeView &tree, IsShown isShown, QObject *parent)
    : QAbstractItemModel(parent),
      m_tree(tree),
      m_isShown(isShown ? std::move(isShown) : [](int) { return true; })
{
    build();
    connect(&tree, &TreeView::added, this, &TreeModel::add);
    connect(&tree, &TreeView::reset, this, [this] {
        beginResetModel();
        build();
        endResetModel();
    });
}

int TreeModel::nodeOf(const QModelIndex &index)
{
    return index.isValid() ? static_cast<int>(index.internalId()) : TreeView::noNode;
}

QModelIndex TreeModel::indexOf(int node) const
{
    if (node < 0 || node + 1 >= m_places.size() || m_places[node + 1].row < 0) {
        return {};
    }
    return createIndex(m_places[node + 1].row, 0, static_cast<quintptr>(node));
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const QList<int> &shown = placeOf(parent).shown;
    if (row < 0 || row >= shown.size() || column != 0) {
        return {};
    }
    return createIndex(row, 0, static_cast<quintptr>(shown[row]));
}

QModelIndex TreeModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(placeOf(index).parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex &parent) const
{
    return static_cast<int>(placeOf(parent).shown.size());
}

int TreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant TreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    return m_tree.node(nodeOf(index)).text;
}

void TreeModel::build()
{
    m_places = {Place()};
    QList<int> open(m_tree.roots());
    while (!open.isEmpty()) {
        const int node = open.takeFirst();
        if (m_isShown(node)) {
            append(node);
            open.append(m_tree.node(node).children);
        }
    }
}

/// Puts a node behind its parent's last shown child.
void TreeModel::append(int node)
{
    const int parent = m_tree.node(node).parent;
    m_places.resize(std::max(m_places.size(), static_cast<qsizetype>(node) + 2));
    QList<int> &siblings = m_places[parent + 1].shown;
    m_places[node + 1] = {.parent = parent, .row = static_cast<int>(siblings.size()), .shown = {}};
    siblings.append(node);
}

void TreeModel::add(int node)
{
    const int parent = m_tree.node(node).parent;
    const bool parentShown = parent == TreeView::noNode || indexOf(parent).isValid();
    if (parentShown && m_isShown(node)) {
        const int row = rowCount(indexOf(parent));
        beginInsertRows(indexOf(parent), row, row);
        append(node);
        endInsertRows();
    } else if (m_isShown(node)) {
        // Its parent may be shown from now on.
        beginResetModel();
        build();
        endResetModel();
    }
}

const TreeModel::Place &TreeModel::placeOf(const QModelIndex &index) const
{
    return m_places[nodeOf(index) + 1];
}

} // namespace kavro
