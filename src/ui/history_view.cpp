#include "ui/history_view.h"

#include "controls/form.h"
#include "core/edit_history.h"
#include "ui/bind_buttons.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

HistoryView::HistoryView(Form &frmHistory, EditHistory &history, QWidget *parent)
    : FormDialog(frmHistory, parent)
{
    auto *changes = new QListView(this);
    bind(*changes, history.List1, tr("Changes"));
    changes->setTextElideMode(Qt::ElideRight);
    auto *detail = new QLabel(this);
    bind(*detail, history.lblHistComment);
    detail->setWordWrap(true);
    detail->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detail->setMinimumHeight(detail->fontMetrics().lineSpacing() * 3);
    auto *restore = new QPushButton(this);
    bind(*restore, history.Command1[1]);
    restore->setAutoDefault(false);
    auto *close = new QPushButton(this);
    bind(*close, history.Command1[0]);
    close->setDefault(true);

    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(restore);
    foot->addWidget(close);
    QVBoxLayout *layout = makeLayout();
    layout->addWidget(changes, 1);
    layout->addWidget(detail);
    layout->addLayout(foot);
    changes->setFocus();
    resize(560, 400);
}

void HistoryView::reject()
{
    form().requestClose();
}

} // namespace kavro
