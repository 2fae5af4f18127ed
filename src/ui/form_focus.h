#pragma once

#include <QObject>

class QWidget;

namespace kavro {

class Control;
class Form;

/// Keeps the focus of a form and of its window the same. A widget belongs to the control that its
/// object name names; one inside another belongs to the nearest such widget around it.
class FormFocus : public QObject
{
    Q_OBJECT

public:
    /// A child of `window`.
    FormFocus(Form &form, QWidget &window);

private:
    void followWidget(QWidget *now);
    void followControl(Control *control);
    [[nodiscard]] Control *controlOf(const QWidget *widget) const;

    Form &m_form;
    QWidget &m_window;
};

} // namespace kavro
