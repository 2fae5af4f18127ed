#include "ui/bind_lists.h"

#include "controls/list_box.h"
#include "ui/bind_look.h"

#include <QComboBox>
#include <QTimer>

namespace kavro {

void bind(QComboBox &view, ComboBox &list, const QString &label)
{
    bindLook(view, list, label);
    const auto select = [&view, &list] {
        // Until the entries are shown the selection may lie behind them.
        if (view.count() == list.count()) {
            view.setCurrentIndex(list.selected());
        }
    };
    const auto fill = [&view, &list, select] {
        const QSignalBlocker quiet(view);
        view.clear();
        view.addItems(list.items());
        select();
    };
    auto *later = new QTimer(&view);
    later->setSingleShot(true);
    QObject::connect(later, &QTimer::timeout, &view, fill);
    QObject::connect(&list, &ListBox::itemsChanged, later, [later] { later->start(0); });
    QObject::connect(&list, &ListBox::selectedChanged, &view, select);
    // `activated` is a person's alone, and comes for the entry that stands already too.
    QObject::connect(&view, &QComboBox::activated, &list, [&list](int index) { list.pick(index); });
    fill();
}

} // namespace kavro
