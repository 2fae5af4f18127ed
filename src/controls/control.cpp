#include "controls/control.h"

#include "controls/form.h"

namespace kavro {

using namespace Qt::StringLiterals;

Control::Control(Form &form, const QString &name, int index)
    : m_form(form), m_name(name), m_index(index)
{
    form.enter(*this);
}

Control::~Control()
{
    m_form.leave(*this);
}

QString Control::nameWithIndex() const
{
    return m_index == noIndex ? m_name : m_name + u'(' + QString::number(m_index) + u')';
}

QString Control::fullName() const
{
    return m_form.name() + u'.' + nameWithIndex();
}

void Control::setEnabled(bool enabled)
{
    if (m_enabled != enabled) {
        m_enabled = enabled;
        emit lookChanged();
    }
}

void Control::setVisible(bool visible)
{
    if (m_visible != visible) {
        m_visible = visible;
        emit lookChanged();
    }
}

void Control::setToolTip(const QString &toolTip)
{
    if (m_toolTip != toolTip) {
        m_toolTip = toolTip;
        emit lookChanged();
    }
}

void Control::setForeColor(Color color)
{
    if (m_foreColor != color) {
        m_foreColor = color;
        emit lookChanged();
    }
}

void Control::setBackColor(Color color)
{
    if (m_backColor != color) {
        m_backColor = color;
        emit lookChanged();
    }
}

bool Control::hasFocus() const
{
    return m_form.focus() == this;
}

void Control::setFocus()
{
    m_form.setFocus(this);
}

void CaptionControl::setCaption(const QString &caption)
{
    if (m_caption != caption) {
        m_caption = caption;
        emit captionChanged(m_caption);
    }
}

void CheckBox::setOn(bool on)
{
    if (m_on != on) {
        m_on = on;
        emit valueChanged(m_on);
    }
}

void CheckBox::check(bool on)
{
    setOn(on);
    emit clicked();
}

void OptionButton::store(bool on)
{
    if (m_on != on) {
        m_on = on;
        emit valueChanged(m_on);
    }
}

void OptionButton::setOn()
{
    const QList<Control *> siblings = form().array(name());
    for (Control *sibling : siblings) {
        if (sibling != this) {
            if (auto *option = qobject_cast<OptionButton *>(sibling)) {
                option->store(false);
            }
        }
    }
    store(true);
}

void OptionButton::click()
{
    setOn();
    emit clicked();
}

} // namespace kavro
