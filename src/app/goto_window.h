#pragma once

#include "controls/control.h"
#include "controls/text_box.h"

namespace kavro {

class Messages;
class SubtitleDocument;
struct MainMenu;
struct Ports;

/// The window that asks for the number of a line and goes there, `frmGoto`.
class GotoWindow
{
public:
    /// All are borrowed and outlive the window.
    struct Parts
    {
        const Ports &ports;
        MainMenu &menu;
        SubtitleDocument &document;
        Messages &messages;
    };

    GotoWindow(Form &frmGoto, const Parts &parts);

    Label Label1;     ///< names the field
    TextBox txtLine;  ///< number of the line, the current one at first
    Button cmdOk;     ///< goes to the line; without such a line a message, and the window stays
    Button cmdCancel; ///< closes the window

private:
    void open();
    void go();

    Form &m_form;
    Parts m_parts;
};

} // namespace kavro
