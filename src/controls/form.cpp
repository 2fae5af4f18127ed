#include "controls/form.h"

#include <algorithm>

namespace kavro {

Form::Form(const QString &name) : m_name(name) {}

void Form::setCaption(const QString &caption)
{
    if (m_caption != caption) {
        m_caption = caption;
        emit captionChanged(m_caption);
    }
}

void Form::show()
{
    if (!m_open) {
        m_open = true;
        emit openChanged(true);
    }
}

void Form::hide()
{
    if (m_open) {
        m_open = false;
        emit openChanged(false);
    }
}

void Form::addBusy(int count)
{
    const bool before = isBusy();
    m_busy += count;
    if (before != isBusy()) {
        emit busyChanged(isBusy());
    }
}

Control *Form::control(QStringView name) const
{
    return m_byName.value(name.toString().toLower());
}

QList<Control *> Form::array(QStringView name) const
{
    QList<Control *> found;
    for (Control *control : m_controls) {
        if (control->name().compare(name, Qt::CaseInsensitive) == 0) {
            found.append(control);
        }
    }
    std::ranges::sort(found, {}, &Control::index);
    return found;
}

void Form::setFocus(Control *control)
{
    if (m_focus == control) {
        return;
    }
    Control *old = m_focus;
    m_focus = control;
    if (old != nullptr) {
        emit old->lostFocus(control);
    }
    // What listened to the loss may have moved the focus on.
    if (m_focus != control) {
        return;
    }
    if (control != nullptr) {
        emit control->gotFocus();
    }
    emit focusChanged(m_focus);
}

void Form::enter(Control &control)
{
    const QString key = control.nameWithIndex().toLower();
    Q_ASSERT_X(!m_byName.contains(key), "Form", qPrintable(control.nameWithIndex()));
    m_controls.append(&control);
    m_byName.insert(key, &control);
}

void Form::leave(Control &control)
{
    if (m_focus == &control) {
        m_focus = nullptr;
    }
    // Controls go in the reverse of their order of arrival, so this looks at one entry as a rule.
    const auto last = std::find(m_controls.rbegin(), m_controls.rend(), &control);
    if (last != m_controls.rend()) {
        m_controls.erase(std::next(last).base());
    }
    m_byName.remove(control.nameWithIndex().toLower());
}

} // namespace kavro
