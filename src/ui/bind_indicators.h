#pragma once

class QObject;
class QProgressBar;
class QString;

namespace kavro {

class ProgressBar;
class Timer;

void bind(QProgressBar &view, ProgressBar &bar, const QString &label);

/// Lets a timer of the program run by the clock as long as `owner` lives.
void runByTheClock(Timer &timer, QObject &owner);

} // namespace kavro
