#include "ui/bind_indicators.h"

#include "controls/indicators.h"
#include "ui/bind_look.h"

#include <QProgressBar>
#include <QTimer>

namespace kavro {

void bind(QProgressBar &view, ProgressBar &bar, const QString &label)
{
    bindLook(view, bar, label);
    view.setRange(0, 100);
    view.setValue(bar.value());
    QObject::connect(&bar, &ProgressBar::valueChanged, &view,
                     [&view](int value) { view.setValue(value); });
}

void runByTheClock(Timer &timer, QObject &owner)
{
    auto *clock = new QTimer(&owner);
    clock->setTimerType(Qt::PreciseTimer);
    const auto follow = [clock, &timer] {
        clock->setInterval(timer.interval());
        if (timer.isOn() != clock->isActive()) {
            timer.isOn() ? clock->start() : clock->stop();
        }
    };
    QObject::connect(clock, &QTimer::timeout, &timer, [&timer] { timer.fire(); });
    QObject::connect(&timer, &Timer::runChanged, clock, follow);
    follow();
}

} // namespace kavro
