#include "ui/bind_lists.h"

#include "controls/list_box.h"
#include "ui/bind_look.h"

#include <QComboBox>
#include <QEvent>
#include <QListView>
#include <QScopedValueRollback>
#include <QStringListModel>
#include <QTimer>

namespace kavro {

namespace {

/// Calls `fill` once behind any number of changes of the entries, and now.
template <class Fill>
void fillLater(QWidget &view, ListBox &list, Fill fill)
{
    auto *later = new QTimer(&view);
    later->setSingleShot(true);
    QObject::connect(later, &QTimer::timeout, &view, fill);
    QObject::connect(&list, &ListBox::itemsChanged, later, [later] { later->start(0); });
    fill();
}

/// Keeps the wheel from a list that hasn't the focus: who scrolls past it picks nothing.
class WheelGuard : public QObject
{
public:
    explicit WheelGuard(QComboBox &view) : QObject(&view), m_view(view)
    {
        view.setFocusPolicy(Qt::StrongFocus); // the wheel doesn't bring the focus either
        view.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool passing = event->type() == QEvent::Wheel && !m_view.hasFocus();
        if (passing) {
            event->ignore();
        }
        return passing;
    }

private:
    QComboBox &m_view;
};

/// The entries of a list as a view of Qt's reads them.
class ListModel : public QStringListModel
{
public:
    ListModel(QListView &view, ListBox &list) : QStringListModel(&view), m_view(view), m_list(list)
    {
        view.setModel(this);
        fillLater(view, list, [this] { fill(); });
        connect(&list, &ListBox::selectedChanged, this, [this] { select(); });
        connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex &now) {
                    if (!m_following && now.isValid()) {
                        m_list.pick(now.row());
                    }
                });
        // A click that moves the selection has picked when the button went down.
        view.viewport()->installEventFilter(this);
        connect(&view, &QListView::clicked, this, [this](const QModelIndex &entry) {
            if (entry.row() == m_beforePress) {
                m_list.pick(entry.row());
            }
        });
        connect(&view, &QListView::doubleClicked, this,
                [this](const QModelIndex &entry) { m_list.doubleClick(entry.row()); });
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            m_beforePress = m_list.selected();
        }
        return false;
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &) const override
    {
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    }

private:
    void fill()
    {
        const QScopedValueRollback following(m_following, true);
        setStringList(m_list.items());
        select();
    }

    void select()
    {
        // Until the entries are shown the selection may lie behind them.
        if (rowCount() == m_list.count()) {
            const QScopedValueRollback following(m_following, true);
            m_view.setCurrentIndex(m_list.selected() < 0 ? QModelIndex()
                                                         : index(m_list.selected()));
        }
    }

    QListView &m_view;
    ListBox &m_list;
    int m_beforePress = -1;   ///< the selection before the mouse button went down
    bool m_following = false; ///< the control moves the view, not a person
};

} // namespace

void bind(QComboBox &view, ComboBox &list, const QString &label)
{
    bindLook(view, list, label);
    const auto select = [&view, &list] {
        // Until the entries are shown the selection may lie behind them.
        if (view.count() == list.count()) {
            view.setCurrentIndex(list.selected());
        }
    };
    fillLater(view, list, [&view, &list, select] {
        const QSignalBlocker quiet(view);
        view.clear();
        view.addItems(list.items());
        select();
    });
    QObject::connect(&list, &ListBox::selectedChanged, &view, select);
    new WheelGuard(view);
    // `activated` is a person's alone, and comes for the entry that stands already too.
    QObject::connect(&view, &QComboBox::activated, &list, [&list](int index) { list.pick(index); });
}

void bind(QListView &view, ListBox &list, const QString &label)
{
    bindLook(view, list, label);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setUniformItemSizes(true);
    view.setTabKeyNavigation(false);
    new ListModel(view, list);
}

} // namespace kavro
