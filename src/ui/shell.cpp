#include "ui/shell.h"

#include "ui/about_view.h"
#include "ui/control_window_view.h"
#include "ui/goto_view.h"
#include "ui/help_window_view.h"
#include "ui/history_view.h"
#include "ui/main_window.h"
#include "ui/preview_view.h"
#include "ui/settings_view.h"
#include "ui/splash_view.h"
#include "ui/tip_view.h"
#include "ui/wizard_view.h"

namespace kavro {

Shell::Shell(FileStore &store, Folders &folders)
    : m_program({.messages = m_messages,
                 .files = m_files,
                 .forms = m_forms,
                 .help = m_help,
                 .player = m_player,
                 .sound = m_sound,
                 .printer = m_printer,
                 .screen = m_screen,
                 .clock = m_clock,
                 .random = m_random},
                store, folders),
      m_translator(m_program.language.ownTexts)
{
    m_messages.form = &m_program.frmMessageBox;
    m_files.documentFormat = [this] { return m_program.document.curFormatId; };
    m_files.hasMovie = [this] { return !m_player.fileName().isEmpty(); };
    addWindows();
}

// The windows show the program and go before it.
Shell::~Shell()
{
    m_mainWindow.reset();
    m_forms.clear();
}

void Shell::addWindows()
{
    Program &program = m_program;
    m_forms.add(program.frmSplash, [&program](QWidget *parent) {
        return new SplashView(program.frmSplash, program.splash, parent);
    });
    m_forms.add(program.frmTip, [&program](QWidget *parent) {
        return new TipView(program.frmTip, program.tips, parent);
    });
    m_forms.add(program.frmHistory, [&program](QWidget *parent) {
        return new HistoryView(program.frmHistory, program.history, parent);
    });
    m_forms.add(program.frmGoto, [&program](QWidget *parent) {
        return new GotoView(program.frmGoto, program.goTo, parent);
    });
    m_forms.add(program.frmHelp, [&program, this](QWidget *parent) {
        return new HelpWindowView(program.frmHelp, program.help, m_help, parent);
    });
    m_forms.add(program.frmWizard, [&program](QWidget *parent) {
        return new WizardView(program.frmWizard, program.wizard, parent);
    });
    m_forms.add(program.frmAbout, [&program](QWidget *parent) {
        return new AboutView(program.frmAbout, program.about, parent);
    });
    m_forms.add(program.frmSettings, [&program](QWidget *parent) {
        return new SettingsView(program.frmSettings, program.settingsWindow, program.settings,
                                parent);
    });
    m_forms.add(program.frmPreview, [&program](QWidget *parent) {
        return new PreviewView(program.frmPreview, program.scriptPreview, parent);
    });
    m_forms.add(
        program.frmControl,
        [&program](QWidget *parent) {
            return new ControlWindowView(program.frmControl, program.controlWindow, parent);
        },
        true);
    // Made when it opens: by then everything that it shows is there.
    QObject::connect(&program.frmMain, &Form::openChanged, &m_forms, [this](bool open) {
        if (open && !m_mainWindow) {
            openMainWindow();
        }
    });
}

void Shell::openMainWindow()
{
    m_mainWindow = std::make_unique<MainWindow>(m_program, m_help);
    m_forms.parent = m_mainWindow.get();
    m_mainWindow->open();
}

} // namespace kavro
