#pragma once

#include "ui/tree_model.h"

#include <QTreeView>

namespace kavro {

/// Shows a tree control with the nodes open that the control has expanded. A click on a node, or
/// Enter on it, is the control's act.
class NavigationTree : public QTreeView
{
    Q_OBJECT

public:
    NavigationTree(TreeView &tree, TreeModel::IsShown isShown, const QString &label,
                   QWidget *parent);

    /// From now on a step to a node by the arrow keys is an act too.
    void actOnSteps() { m_actsOnSteps = true; }

signals:
    /// Enter or a double click on a node, behind its act.
    void chosen(int node);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void act(const QModelIndex &index);
    void choose(const QModelIndex &index);
    void showExpanded();
    void showSelected();

    TreeView &m_tree;
    TreeModel m_model;
    bool m_actsOnSteps = false;
};

} // namespace kavro
