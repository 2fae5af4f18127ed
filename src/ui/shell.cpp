#include "ui/shell.h"

#include "app/program.h"
#include "ui/control_window_view.h"
#include "ui/help_window_view.h"
#include "ui/main_window.h"
#include "ui/splash_view.h"
#include "ui/tip_view.h"

namespace kavro {

Shell::Shell() = default;
Shell::~Shell() = default;

Ports Shell::ports()
{
    return {.messages = m_messages,
            .files = m_files,
            .forms = m_forms,
            .help = m_help,
            .player = m_player,
            .sound = m_sound,
            .printer = m_printer,
            .screen = m_screen,
            .clock = m_clock,
            .random = m_random};
}

void Shell::attach(Program &program)
{
    m_messages.form = &program.frmMessageBox;
    m_files.documentFormat = [&program] { return program.document.curFormatId; };
    m_forms.add(program.frmSplash, [&program](QWidget *parent) {
        return new SplashView(program.frmSplash, program.splash, parent);
    });
    m_forms.add(program.frmTip, [&program](QWidget *parent) {
        return new TipView(program.frmTip, program.tips, parent);
    });
    m_forms.add(program.frmHelp, [&program, this](QWidget *parent) {
        return new HelpWindowView(program.frmHelp, program.help, m_help, parent);
    });
    m_forms.add(
        program.frmControl,
        [&program](QWidget *parent) {
            return new ControlWindowView(program.frmControl, program.control_window, parent);
        },
        true);
    // Made when it opens: by then everything that it shows is there.
    QObject::connect(&program.frmMain, &Form::openChanged, &m_forms, [this, &program](bool open) {
        if (open && !m_mainWindow) {
            openMainWindow(program);
        }
    });
}

void Shell::openMainWindow(Program &program)
{
    m_mainWindow = std::make_unique<MainWindow>(program, m_help);
    m_forms.parent = m_mainWindow.get();
    m_mainWindow->open();
}

} // namespace kavro
