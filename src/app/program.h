#pragma once

#include "app/about_window.h"
#include "app/document_host.h"
#include "app/file_commands.h"
#include "app/goto_window.h"
#include "app/help_window.h"
#include "app/language_pack.h"
#include "app/navigation.h"
#include "app/recovery.h"
#include "app/settings_files.h"
#include "app/settings_window.h"
#include "app/splash_window.h"
#include "app/tip_window.h"
#include "app/wizard_window.h"
#include "controls/form.h"
#include "core/clipboard_panel.h"
#include "core/control_window.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/folders.h"
#include "core/font_lists.h"
#include "core/format_lists.h"
#include "core/frame_rate_page.h"
#include "core/language.h"
#include "core/macro_variables.h"
#include "core/main_menu.h"
#include "core/messages.h"
#include "core/partition_page.h"
#include "core/player_page.h"
#include "core/ports.h"
#include "core/safe_file.h"
#include "core/settings_page.h"
#include "core/status_panels.h"
#include "core/time_page.h"
#include "core/undo_store.h"
#include "diagnose/diagnose.h"
#include "formats/create_subfile.h"
#include "formats/load_subfile.h"
#include "formats/node_file.h"
#include "partition/node_tool.h"
#include "partition/partition_list.h"
#include "partition/script_preview.h"
#include "partition/split_output.h"
#include "tools/basic_edit.h"
#include "tools/clipboard.h"
#include "tools/filters.h"
#include "tools/font_change.h"
#include "tools/frame_rate_conversion.h"
#include "tools/search_replace.h"
#include "tools/shift.h"
#include "tools/stretch.h"
#include "tools/time_change.h"

#include <QList>
#include <QString>

namespace kavro {

/// Builds everything once and knows everybody; nobody else does.
///
/// A shell makes the ports, the file store and the folders, then a `Program`, then calls `start`,
/// or `startForVerb` when it shows no windows and needs the document alone.
class Program
{
public:
    Program(const Ports &doors, FileStore &fileStore, Folders &appFolders);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// The whole start in its order: folders, settings, language, lists, the file of the command
    /// line, else the last file when the setting says so. A start without a file leaves the splash
    /// open with its countdown running; `frmMain` opens when it ends.
    ///
    /// @param file  path as the shell gave it, empty for none
    void start(const QString &file);
    /// The same without splash, settings of a person, tips, recent or last files: defaults stand,
    /// `frmMain` is open, and nothing is written at the end.
    ///
    /// @param captions  false leaves the controls without captions and tool tips: nobody sees them
    void startForVerb(bool captions = true);

    /// The exit command: asks about unsaved changes, writes the stored files, tidies. True when the
    /// program ended; its question comes back until the save succeeds or the answer is no.
    bool exit();
    [[nodiscard]] bool hasEnded() const { return m_ended; }

    /// Opens a file that was dropped on the window, as the load command with that path would.
    void dropFile(const QString &path);

    /// nullptr when there is no form of that name, in any case of letters.
    [[nodiscard]] Form *form(QStringView name) const;
    [[nodiscard]] const QList<Form *> &forms() const { return m_forms; }
    /// "Name", "Name(index)" on `frmMain`, or "form.Name(index)"; nullptr when there is none.
    [[nodiscard]] Control *control(QStringView name) const;

    Ports ports;
    FileStore &store;
    Folders &folders;

    // Forms come first: controls register with them and go before them.
    Form frmMain;
    Form frmFile;
    Form frmControl;
    Form frmMessageBox;
    Form frmSplash;
    Form frmTip;
    Form frmHelp;
    Form frmAbout;
    Form frmWizard;
    Form frmSettings;
    Form frmHistory;
    Form frmPreview;
    Form frmGoto;

    LanguageTable language;
    ActionTrace trace;
    MacroVariables variables;

    MainMenu menu;
    EditorPage editor;
    TimePage times;
    FontLists fonts;
    FormatLists formats;
    FrameRatePage frameRates;
    PlayerPage player;
    ClipboardPanel clipboard;
    PartitionPage partition;
    StatusPanels status;
    SettingsPage settings;

    Messages messages;
    ControlWindow controlWindow;
    SubtitleDocument document;
    Diagnose diagnose;
    EditHistory history;
    UndoStore undo;
    SubtitleWriter writer;
    NodeFile nodeFile;
    DocumentHost host;
    SubtitleLoader loader;
    BasicEdit basicEdit;
    Shift shift;
    Stretch stretch;
    TimeChange timeChange;
    FrameRateConversion frameRateConversion;
    SearchReplace searchReplace;
    Filters filters;
    FontChange fontChange;
    NodeTool nodeTool;
    PartitionList partitionList;
    SplitOutput splitOutput;
    ScriptPreview scriptPreview;
    FileCommands fileCommands;
    SettingsFiles settingsFiles;
    Navigation navigation;
    Clipboard clips;
    SplashWindow splash;
    TipWindow tips;
    WizardWindow wizard;
    HelpWindow help;
    GotoWindow goTo;
    AboutWindow about;
    LanguagePack languagePack;
    SettingsWindow settingsWindow;
    Recovery recovery;

private:
    void connectMenu();
    void connectTools();
    void setInitialValues();

    // The steps of the start.
    void prepareFolders();
    void loadSettings();
    void fillTexts();
    void fillFormatLists();
    void fillLanguageLists();
    void fillFonts();
    void showFirstTabs();
    void loadNamedFile(const QString &file);
    void loadLastFiles();
    void splashGone();
    void bringBack(const KeptDocument &kept);

    bool keepsChanges();

    QList<Form *> m_forms;
    bool m_ended = false;
    bool m_forVerb = false;
};

} // namespace kavro
