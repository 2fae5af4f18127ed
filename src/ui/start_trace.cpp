#include "ui/start_trace.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <unistd.h>

#include <cstdio>
#include <ctime>

namespace kavro {

namespace {

double millisecondsSinceBoot()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// When the process began, in milliseconds since boot; 0 when the machine doesn't tell.
double processStart()
{
    QFile file(QStringLiteral("/proc/self/stat"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    // The name in field 2 may hold blanks; the fields behind its ")" begin with the third.
    constexpr qsizetype startField = 22 - 3;
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    return fields.value(startField).toDouble() * 1e3 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

} // namespace

StartTrace::StartTrace(QWidget &window) : QObject(&window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool StartTrace::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        if (!m_painted) {
            QTimer::singleShot(0, this, &StartTrace::report);
        }
        m_painted = true;
    }
    return false;
}

void StartTrace::report()
{
    // What was painted since the last turn of the event loop may bring more to paint.
    if (m_painted) {
        m_painted = false;
        QTimer::singleShot(0, this, &StartTrace::report);
        return;
    }
    QCoreApplication::instance()->removeEventFilter(this);
    std::fprintf(stderr, "settled %.0f\n", millisecondsSinceBoot() - processStart());
    deleteLater();
}

} // namespace kavro
