#pragma once

#include "controls/control.h"
#include "controls/indicators.h"

#include <functional>

namespace kavro {

class Form;

/// The window of the start, `frmSplash`: shows what is being done, then counts down and goes.
class SplashWindow
{
public:
    explicit SplashWindow(Form &frmSplash);

    /// Opens the window with the program's version; the countdown waits.
    void open();
    /// "Done" in green; the countdown begins.
    void finish();
    /// Leaves the splash at once: a click, a key, or the countdown's end.
    void ExitfrmSplash();
    /// A piece of the start begins.
    void report(const QString &text) { Label1.setCaption(text); }

    /// What opens when the splash goes.
    std::function<void()> left;

    Label lblVersion;
    Label lblBuild;
    Label Label1; ///< progress, then the countdown
    Frame pMove;  ///< drags the window
    Timer Timer2; ///< one second of the countdown

private:
    void countDown();

    Form &m_form;
    int m_seconds = 0;
};

} // namespace kavro
