#include "ui/form_dialog.h"

#include "controls/form.h"

#include <QCloseEvent>

namespace kavro {

FormDialog::FormDialog(Form &form, QWidget *parent) : QDialog(parent), m_form(form)
{
    setObjectName(form.name());
    setWindowTitle(form.caption());
    connect(&form, &Form::captionChanged, this, &QWidget::setWindowTitle);
}

void FormDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
    m_form.requestClose();
}

} // namespace kavro
