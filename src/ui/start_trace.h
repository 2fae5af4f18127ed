#pragma once

#include <QObject>

class QWidget;

namespace kavro {

/// Prints "settled <milliseconds since the process began>" on standard error once the window was
/// painted and the event loop has nothing left to do.
class StartTrace : public QObject
{
    Q_OBJECT

public:
    /// A child of `window`.
    explicit StartTrace(QWidget &window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void report();

    bool m_painted = false;
};

} // namespace kavro
