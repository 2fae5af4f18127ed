#include "ui/clipboard_view.h"

#include "core/clipboard_panel.h"
#include "tools/clipboard.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

namespace kavro {

ClipboardView::ClipboardView(ClipboardPanel &panel, Clipboard &clips, QWidget *parent)
    : ToolPage(parent)
{
    auto *items = new QListView(this);
    bind(*items, panel.List1, tr("Clipped items"));
    items->setMinimumHeight(0);
    items->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    auto *item = new QLineEdit(this);
    bind(*item, clips.rtfClipBoard, tr("Selected item"));

    QGridLayout *page = addGrid();
    page->setColumnStretch(0, 1);
    page->setColumnStretch(1, 1);
    page->addWidget(items, 0, 0, 3, 1);
    page->addWidget(item, 0, 1, 1, 2);
    auto *changes = new QHBoxLayout;
    // Enter in the field writes what was typed there; a copy would take the item as it was.
    changes->addWidget(makeDefault(panel.command4[2]));
    changes->addWidget(makeButton(panel.command4[3]));
    changes->addWidget(makeButton(panel.command4[4]));
    changes->addStretch(1);
    page->addLayout(changes, 1, 1, 1, 2);
    auto *copies = new QHBoxLayout;
    copies->addWidget(makeButton(panel.command4[0]));
    copies->addWidget(makeButton(panel.command4[1]));
    copies->addStretch(1);
    page->addLayout(copies, 2, 1, 1, 2);
}

} // namespace kavro
