#pragma once

#include "controls/control.h"

namespace kavro {

/// The entries of the main window's menu.
struct MainMenu
{
    explicit MainMenu(Form &frmMain);

    Button mnuFile, mnuCollection, mnuEdit, mnuView, mnuOptions, mnuWizards, mnuHelp; ///< titles
    Button mnuNewFile, mnuLoadFile, mnuAddFile, mnuSave, mnuSavesubfile, mnuSaveSettings;
    Button mnuReopen; ///< reads the file again in another encoding
    Button mnuDBManage, mnuPrint, mnuExit;
    Button mnuUndo, mnuRedo, mnuGotoLine, mnuNextFinding, mnuPreviousFinding;
    Button mnuSearch, mnuReplace; ///< lead to the search page
    Button mnuSearchAgain;        ///< goes on with the search
    Button mnuPreview;
    Button mnuSettings, mnuSystem, mnuHistory;
    Button mnuWizard;
    Button mnuHelpIndex, mnuShowTips, mnuAbout;
};

} // namespace kavro
