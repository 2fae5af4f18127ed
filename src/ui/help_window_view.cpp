#include "ui/help_window_view.h"

#include "app/help_window.h"
#include "ui/bind_buttons.h"
#include "ui/help_browser.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

HelpWindowView::HelpWindowView(Form &frmHelp, HelpWindow &help, HelpPages &pages, QWidget *parent)
    : FormDialog(frmHelp, parent)
{
    auto *ok = new QPushButton(this);
    bind(*ok, help.cmdOk);
    ok->setDefault(true);
    QVBoxLayout *layout = makeLayout();
    layout->addWidget(new HelpPanel(pages, this), 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
    resize(720, 560);
}

} // namespace kavro
