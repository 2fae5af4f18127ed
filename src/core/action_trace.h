#pragma once

#include <QString>

namespace kavro {

/// The trace that every user command leaves for the recorder and the triggers of the macros.
struct ActionTrace
{
    QString lastActionText;
    int lastActionCode = 0;    ///< number of the macro function; negative is no action
    int recorderState = 0;     ///< 1 while a macro is recorded
    bool macroRunning = false; ///< cleared by every Cancel, which stops the macro

    void RecordAction(const QString &text, int code)
    {
        lastActionText = text;
        lastActionCode = code;
    }
};

} // namespace kavro
