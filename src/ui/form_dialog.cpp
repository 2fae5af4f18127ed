#include "ui/form_dialog.h"

#include "controls/form.h"
#include "ui/bind_look.h"
#include "ui/mnemonics.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace kavro {

FormDialog::FormDialog(Form &form, QWidget *parent) : QDialog(parent), m_form(form)
{
    setObjectName(form.name());
    setWindowTitle(form.caption());
    connect(&form, &Form::captionChanged, this, &QWidget::setWindowTitle);
    bindCursor(*this, form);
}

QVBoxLayout *FormDialog::makeLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 14);
    layout->setSpacing(12);
    return layout;
}

void FormDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    assignMnemonics(*this);
}

void FormDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
    m_form.requestClose();
}

} // namespace kavro
