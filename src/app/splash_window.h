#pragma once

#include "controls/control.h"
#include "controls/indicators.h"

#include <QString>

#include <functional>

namespace kavro {

class Form;
class LanguageTable;

/// The window of the start, `frmSplash`: shows what is being done, then counts down and goes.
class SplashWindow
{
public:
    SplashWindow(Form &frmSplash, const LanguageTable &language);

    /// Opens the window; the countdown waits for `finish`.
    void open();
    /// Tells which piece of the start runs.
    void report(const QString &text) { Label1.setCaption(text); }
    /// "Done" in green, and the countdown begins.
    void finish();
    /// Leaves the splash: a click, a key, or the countdown's end. Nothing while it isn't open.
    void ExitfrmSplash();

    /// What opens when the splash has gone.
    std::function<void()> gone;

    Label lblVersion;
    Label lblBuild;
    Label Label1; ///< progress, then the countdown
    Frame pMove;  ///< drags the window
    Timer Timer2; ///< one second of the countdown

private:
    void countDown();

    Form &m_form;
    const LanguageTable &m_language;
    int m_seconds = 0;
};

} // namespace kavro
