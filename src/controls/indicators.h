#pragma once

#include "controls/control.h"

#include <QStringList>

namespace kavro {

/// A row of short texts at the foot of a window. Panels count from 1.
class StatusBar : public Control
{
    Q_OBJECT

public:
    StatusBar(Form &form, const QString &name, int panels);

    [[nodiscard]] const QStringList &panels() const { return m_panels; }
    /// Empty for a panel that isn't there.
    [[nodiscard]] QString panel(int number) const { return m_panels.value(number - 1); }
    void setPanel(int number, const QString &text);

signals:
    void panelChanged(int number);

private:
    QStringList m_panels;
};

/// How far a piece of work has come, 0 to 100.
class ProgressBar : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    [[nodiscard]] int value() const { return m_value; }
    /// Cut to 0 ... 100.
    void setValue(int value);

signals:
    void valueChanged(int value);

private:
    int m_value = 0;
};

/// A knob on a line from a least to a greatest value.
class Slider : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] double minimum() const { return m_minimum; }
    [[nodiscard]] double maximum() const { return m_maximum; }
    void setRange(double minimum, double maximum);
    /// Cut to the range.
    void setValue(double value);

    /// Act: the user moves the knob.
    void slide(double value);

signals:
    void valueChanged(double value);
    void rangeChanged();
    void slid(double value);

private:
    double m_value = 0;
    double m_minimum = 0;
    double m_maximum = 10;
};

/// A timer as state. A view lets it run by the clock; without one it fires only by `fire`.
class Timer : public Control
{
    Q_OBJECT

public:
    /// @param interval  milliseconds
    Timer(Form &form, const QString &name, int interval);

    [[nodiscard]] bool isOn() const { return m_on; }
    [[nodiscard]] int interval() const { return m_interval; }
    void setOn(bool on);
    /// One tick, when it is on.
    void fire();

signals:
    void fired();
    void runChanged();

private:
    const int m_interval;
    bool m_on = false;
};

} // namespace kavro
