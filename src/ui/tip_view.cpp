#include "ui/tip_view.h"

#include "app/tip_window.h"
#include "controls/form.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace kavro {

TipView::TipView(Form &frmTip, TipWindow &tips, QWidget *parent) : FormDialog(frmTip, parent)
{
    auto *icon = new QLabel(this);
    icon->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxInformation)
                        .pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));
    auto *title = new QLabel(frmTip.caption(), this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto *text = new QLabel(this);
    bind(*text, tips.lblTipText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *atStart = new QCheckBox(this);
    bind(*atStart, tips.chkLoadTipsAtStartup);
    auto *next = new QPushButton(this);
    bind(*next, tips.cmdNextTip);
    auto *ok = new QPushButton(this);
    bind(*ok, tips.cmdOk);
    ok->setDefault(true);

    auto *top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(icon, 0, Qt::AlignTop);
    auto *words = new QVBoxLayout;
    words->setSpacing(8);
    words->addWidget(title);
    words->addWidget(text, 1);
    top->addLayout(words, 1);
    auto *foot = new QHBoxLayout;
    foot->addWidget(atStart, 1);
    foot->addWidget(next);
    foot->addWidget(ok);
    QVBoxLayout *layout = makeLayout();
    layout->addLayout(top, 1);
    layout->addLayout(foot);
    ok->setFocus();
    resize(480, 200);
}

} // namespace kavro
