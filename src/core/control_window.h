#pragma once

#include "controls/control_array.h"
#include "controls/indicators.h"
#include "controls/text_box.h"

namespace kavro {

class Form;
struct SettingsPage;

/// The report window, `frmControl`: readers and writers fill it with lines and progress.
class ControlWindow
{
public:
    ControlWindow(Form &frmControl, SettingsPage &settings);

    /// Shows the window with an empty log and bar under that caption, unless `quiet`.
    void open(const QString &caption);
    /// Adds to the end of the log; line breaks are the caller's.
    void append(const QString &text);
    /// Another caption in the midst of an operation.
    void setCaption(const QString &caption);
    /// Hides the window if the setting says so; else it stays until its button is pressed.
    void finish();

    bool quiet = false; ///< while the program starts the window stays away; its state is kept

    ControlArray<TextBox, 0, 0> Text1; ///< the log
    ProgressBar ProgressBar1;
    Label lblEnd;      ///< closing text
    CheckBox chkClose; ///< mirrors "Close Automatic"
    Button cmdOk;

private:
    Form &m_form;
    SettingsPage &m_settings;
};

} // namespace kavro
