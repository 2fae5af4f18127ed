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
    expandToDepth(0);
    connect(this, &QTreeView::clicked, this, &NavigationTree::act);
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] { expandToDepth(0); });
    connect(&tree, &TreeView::selectedChanged, this, [this](int node) {
        const QModelIndex index = m_model.indexOf(node);
        if (index.isValid()) {
            setCurrentIndex(index);
        }
    });
}

void NavigationTree::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        act(currentIndex());
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void NavigationTree::act(const QModelIndex &index)
{
    if (index.isValid() && m_tree.acceptsActs()) {
        m_tree.click(TreeModel::nodeOf(index));
    }
}

} // namespace kavro
