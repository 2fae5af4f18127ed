#pragma once

#include "ui/file_dialog.h"
#include "ui/form_windows.h"
#include "ui/help_browser.h"
#include "ui/machine.h"
#include "ui/message_dialog.h"
#include "ui/text_printer.h"

#include <memory>

namespace kavro {

class MainWindow;
class Program;

/// The window's side of a program: fills its doors and opens its windows.
class Shell
{
public:
    Shell();
    ~Shell();
    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    [[nodiscard]] Ports ports();
    /// Connects the windows with the program, which was made over `ports` and outlives this. Comes
    /// ahead of the program's start.
    void attach(Program &program);
    /// nullptr until the program has opened it.
    [[nodiscard]] MainWindow *mainWindow() const { return m_mainWindow.get(); }

private:
    void openMainWindow(Program &program);

    MessageDialogs m_messages;
    FileDialogs m_files;
    FormWindows m_forms;
    HelpPages m_help;
    NoPlayer m_player;
    SilentSound m_sound;
    TextPrinter m_printer;
    DesktopScreen m_screen;
    SystemClock m_clock;
    SystemRandom m_random;
    std::unique_ptr<MainWindow> m_mainWindow;
};

} // namespace kavro
