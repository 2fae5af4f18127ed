#pragma once

#include "app/program.h"
#include "core/machine_ports.h"
#include "ui/desktop_screen.h"
#include "ui/file_dialog.h"
#include "ui/form_windows.h"
#include "ui/help_browser.h"
#include "ui/message_dialog.h"
#include "ui/pack_translator.h"
#include "ui/text_printer.h"

#include <memory>

namespace kavro {

class MainWindow;

/// A program with its windows: the doors are filled by dialogs, and each form has its window.
class Shell
{
public:
    /// Both are borrowed and outlive this. Nothing opens before the program is started.
    Shell(FileStore &store, Folders &folders);
    ~Shell();
    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    [[nodiscard]] Program &program() { return m_program; }
    /// nullptr until the program has opened it.
    [[nodiscard]] MainWindow *mainWindow() const { return m_mainWindow.get(); }

private:
    void addWindows();
    void openMainWindow();

    MessageDialogs m_messages;
    FileDialogs m_files;
    FormWindows m_forms;
    HelpPages m_help;
    NoPlayer m_player{QStringLiteral("This version has no media player yet.")};
    NoSound m_sound;
    TextPrinter m_printer;
    DesktopScreen m_screen;
    SystemClock m_clock;
    SystemRandom m_random;
    Program m_program;
    PackTranslator m_translator;
    std::unique_ptr<MainWindow> m_mainWindow;
};

} // namespace kavro
