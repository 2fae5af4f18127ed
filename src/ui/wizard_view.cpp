#include "ui/wizard_view.h"

#include "app/wizard_window.h"
#include "controls/form.h"
#include "ui/bind_buttons.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"

#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

WizardView::WizardView(Form &frmWizard, WizardWindow &wizard, QWidget *parent)
    : FormDialog(frmWizard, parent)
{
    auto *jobs = new QListView(this);
    bind(*jobs, wizard.List1, frmWizard.caption());
    auto *text = new QLabel(this);
    bind(*text, wizard.Label1);
    auto *hint = new QLabel(tr("Macros that are marked for the wizard stand here."), this);
    for (QLabel *label : {text, hint}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    const auto follow = [hint, &wizard] { hint->setVisible(wizard.List1.count() == 0); };
    connect(&wizard.List1, &ListBox::itemsChanged, hint, follow);
    follow();
    auto *atStart = new QCheckBox(this);
    bind(*atStart, wizard.chkLoadWizardAtStartup);
    auto *go = new QPushButton(this);
    bind(*go, wizard.cmdGo);
    auto *ok = new QPushButton(this);
    bind(*ok, wizard.cmdOk);
    ok->setDefault(true);

    auto *top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(jobs, 1);
    auto *words = new QVBoxLayout;
    words->addWidget(hint);
    words->addWidget(text, 1);
    top->addLayout(words, 1);
    auto *foot = new QHBoxLayout;
    foot->addWidget(atStart, 1);
    foot->addWidget(go);
    foot->addWidget(ok);
    QVBoxLayout *layout = makeLayout();
    layout->addLayout(top, 1);
    layout->addLayout(foot);
    jobs->setFocus();
    resize(520, 300);
}

} // namespace kavro
