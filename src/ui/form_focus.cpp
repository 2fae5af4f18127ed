#include "ui/form_focus.h"

#include "controls/form.h"

#include <QApplication>
#include <QWidget>

namespace kavro {

FormFocus::FormFocus(Form &form, QWidget &window) : QObject(&window), m_form(form), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { followWidget(now); });
    connect(&form, &Form::focusChanged, this, &FormFocus::followControl);
}

void FormFocus::followWidget(QWidget *now)
{
    // While another window or a menu has the focus, this one's stays where it was.
    if (now != nullptr && now->window() == &m_window) {
        m_form.setFocus(controlOf(now));
    }
}

void FormFocus::followControl(Control *control)
{
    if (control == nullptr || controlOf(m_window.focusWidget()) == control) {
        return;
    }
    const QList<QWidget *> views = m_window.findChildren<QWidget *>(control->nameWithIndex());
    for (QWidget *view : views) {
        if (view->isVisibleTo(&m_window)) {
            view->setFocus();
            return;
        }
    }
}

Control *FormFocus::controlOf(const QWidget *widget) const
{
    for (; widget != nullptr && widget != &m_window; widget = widget->parentWidget()) {
        if (Control *control = m_form.control(widget->objectName())) {
            return control;
        }
    }
    return nullptr;
}

} // namespace kavro
