#pragma once

#include "ui/tree_model.h"

#include <QTreeView>

namespace kavro {

/// Shows a tree control. A click on a node, or Enter on it, is the control's act.
class NavigationTree : public QTreeView
{
    Q_OBJECT

public:
    NavigationTree(TreeView &tree, TreeModel::IsShown isShown, const QString &label,
                   QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void act(const QModelIndex &index);

    TreeView &m_tree;
    TreeModel m_model;
};

} // namespace kavro
