#include "ui/navigation_tree.h"

#include "ui/bind_look.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <utility>

namespace kavro {

namespace {

/// Gives the lines of a tree some air.
class AiryLines : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override
    {
        constexpr int air = 6;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, air);
    }
};

} // namespace

NavigationTree::NavigationTree(TreeView &tree, TreeModel::IsShown isShown, const QString &label,
                               QWidget *parent)
    : QTreeView(parent), m_tree(tree), m_model(tree, std::move(isShown), this)
{
    bindLook(*this, tree, label);
    setHeaderHidden(true);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideMiddle); // a path is told by both its ends
    setItemDelegate(new AiryLines(this));
    setModel(&m_model);
    showExpanded();
    connect(this, &QTreeView::clicked, this, &NavigationTree::act);
    connect(this, &QTreeView::doubleClicked, this, &NavigationTree::choose);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &NavigationTree::showExpanded);
    connect(&tree, &TreeView::expanded, this,
            [this](int node) { setExpanded(m_model.indexOf(node), true); });
    connect(&tree, &TreeView::selectedChanged, this, &NavigationTree::showSelected);
    showSelected();
}

void NavigationTree::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_actsOnSteps) {
            event->ignore(); // the step has acted, and Enter is the window's
            return;
        }
        act(currentIndex());
        choose(currentIndex());
        return;
    }
    const QModelIndex before = currentIndex();
    QTreeView::keyPressEvent(event);
    if (m_actsOnSteps && currentIndex() != before) {
        act(currentIndex());
    }
}

void NavigationTree::showSelected()
{
    const QModelIndex index = m_model.indexOf(m_tree.selected());
    if (index.isValid()) {
        setCurrentIndex(index);
    }
}

void NavigationTree::showExpanded()
{
    QList<int> open(m_tree.roots());
    while (!open.isEmpty()) {
        const TreeView::Node &node = m_tree.node(open.constLast());
        const QModelIndex index = m_model.indexOf(open.takeLast());
        if (node.expanded && index.isValid()) {
            setExpanded(index, true);
            open.append(node.children);
        }
    }
}

void NavigationTree::choose(const QModelIndex &index)
{
    if (index.isValid()) {
        emit chosen(TreeModel::nodeOf(index));
    }
}

void NavigationTree::act(const QModelIndex &index)
{
    if (index.isValid() && m_tree.acceptsActs()) {
        m_tree.click(TreeModel::nodeOf(index));
    }
}

} // namespace kavro
