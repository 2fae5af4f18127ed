#include "ui/goto_view.h"

#include "app/goto_window.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"
#include "ui/form_focus.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

GotoView::GotoView(Form &frmGoto, GotoWindow &window, QWidget *parent)
    : FormDialog(frmGoto, parent), m_window(window)
{
    auto *line = new QLineEdit(this);
    bind(*line, window.txtLine, tr("Line"));
    auto *label = new QLabel(this);
    label->setBuddy(line);
    bind(*label, window.Label1);
    auto *ok = new QPushButton(this);
    bind(*ok, window.cmdOk);
    ok->setDefault(true);
    auto *cancel = new QPushButton(this);
    bind(*cancel, window.cmdCancel);

    auto *field = new QHBoxLayout;
    field->addWidget(label);
    field->addWidget(line, 1);
    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(ok);
    foot->addWidget(cancel);
    QVBoxLayout *layout = makeLayout();
    layout->addLayout(field);
    layout->addLayout(foot);
    new FormFocus(frmGoto, *this);
    line->setFocus();
    line->selectAll();
}

void GotoView::reject()
{
    m_window.cmdCancel.click();
}

} // namespace kavro
