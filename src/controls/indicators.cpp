#include "controls/indicators.h"

#include <algorithm>

namespace kavro {

StatusBar::StatusBar(Form &form, const QString &name, int panels)
    : Control(form, name), m_panels(panels)
{}

void StatusBar::setPanel(int number, const QString &text)
{
    if (number >= 1 && number <= m_panels.size() && m_panels[number - 1] != text) {
        m_panels[number - 1] = text;
        emit panelChanged(number);
    }
}

void ProgressBar::setValue(int value)
{
    const int now = std::clamp(value, 0, 100);
    if (m_value != now) {
        m_value = now;
        emit valueChanged(m_value);
    }
}

void Slider::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    emit rangeChanged();
    setValue(m_value);
}

void Slider::setValue(double value)
{
    const double now = std::clamp(value, m_minimum, m_maximum);
    if (m_value < now || m_value > now) {
        m_value = now;
        emit valueChanged(m_value);
    }
}

void Slider::slide(double value)
{
    setValue(value);
    emit slid(m_value);
}

Timer::Timer(Form &form, const QString &name, int interval)
    : Control(form, name), m_interval(interval)
{}

void Timer::setOn(bool on)
{
    if (m_on != on) {
        m_on = on;
        emit runChanged();
    }
}

void Timer::fire()
{
    if (m_on) {
        emit fired();
    }
}

} // namespace kavro
