#pragma once

#include "controls/control_array.h"
#include "controls/drop_list.h"

namespace kavro {

/// The options, which live in the controls of the Settings window and are read in place.
struct SettingsPage
{
    explicit SettingsPage(Form &frmSettings);

    /// 0 check for updates, 1 load last files, 2 update FTP list, 3 check for news, 4 show tips,
    /// 5 show wizard, 6 auto help, 7 check that recent files exist, 8 auto set stretch,
    /// 9 script player on, 10 load the subtitle beside a movie.
    ControlArray<CheckBox, 0, 10> Check7;
    ControlArray<CheckBox, 0, 1> Check5; ///< sounds: 0 download done, 1 incoming data
    ControlArray<CheckBox, 0, 1> Check6; ///< 0 use the script of cmbScript, 1 detect the script
    ControlArray<CheckBox, 0, 1> Check1; ///< calculator history: 0 date, 1 time
    CheckBox Check2;                     ///< use a language pack
    CheckBox Check3;                     ///< close the control window when an operation ends
    CheckBox Check4;                     ///< save in the document's format
    DropList List1;                      ///< language packs by name
    ListBox List2;                       ///< their paths, in the order of List1
    DropList Combo2;                     ///< default frame rate
    DropList cmbScript; ///< writing system, and code page of files that are not Unicode

    /// Number of the character set of an entry: "Greek (161)" and a typed "161" name the same.
    static int characterSetOf(QStringView entry);

    QString languageFile;         ///< path of the chosen pack, empty for none
    bool languageChanged = false; ///< another pack was chosen; it counts from the next start

    /// Named indexes of `Check7`.
    enum Startup {
        CheckForUpdates = 0,
        LoadLastFiles = 1,
        UpdateFtpList = 2,
        CheckForNews = 3,
        ShowTips = 4,
        ShowWizard = 5,
        AutoHelp = 6,
        CheckExists = 7,
        AutoSetStretch = 8,
        ScriptPlayerOn = 9,
        LoadSubtitle = 10
    };
};

} // namespace kavro
