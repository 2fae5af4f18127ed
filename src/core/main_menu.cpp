#include "core/main_menu.h"

namespace kavro {

using namespace Qt::StringLiterals;

MainMenu::MainMenu(Form &frmMain)
    : mnuFile(frmMain, u"mnuFile"_s),
      mnuCollection(frmMain, u"mnuCollection"_s),
      mnuEdit(frmMain, u"mnuEdit"_s),
      mnuView(frmMain, u"mnuView"_s),
      mnuOptions(frmMain, u"mnuOptions"_s),
      mnuWizards(frmMain, u"mnuWizards"_s),
      mnuHelp(frmMain, u"mnuHelp"_s),
      mnuNewFile(frmMain, u"mnuNewFile"_s),
      mnuLoadFile(frmMain, u"mnuLoadFile"_s),
      mnuAddFile(frmMain, u"mnuAddFile"_s),
      mnuSave(frmMain, u"mnuSave"_s),
      mnuSavesubfile(frmMain, u"mnuSavesubfile"_s),
      mnuSaveSettings(frmMain, u"mnuSaveSettings"_s),
      mnuReopen(frmMain, u"mnuReopen"_s),
      mnuDBManage(frmMain, u"mnuDBManage"_s),
      mnuPrint(frmMain, u"mnuPrint"_s),
      mnuExit(frmMain, u"mnuExit"_s),
      mnuUndo(frmMain, u"mnuUndo"_s),
      mnuRedo(frmMain, u"mnuRedo"_s),
      mnuGotoLine(frmMain, u"mnuGotoLine"_s),
      mnuNextFinding(frmMain, u"mnuNextFinding"_s),
      mnuPreviousFinding(frmMain, u"mnuPreviousFinding"_s),
      mnuSearch(frmMain, u"mnuSearch"_s),
      mnuReplace(frmMain, u"mnuReplace"_s),
      mnuSearchAgain(frmMain, u"mnuSearchAgain"_s),
      mnuPreview(frmMain, u"mnuPreview"_s),
      mnuSettings(frmMain, u"mnuSettings"_s),
      mnuSystem(frmMain, u"mnuSystem"_s),
      mnuHistory(frmMain, u"mnuHistory"_s),
      mnuWizard(frmMain, u"mnuWizard"_s),
      mnuHelpIndex(frmMain, u"mnuHelpIndex"_s),
      mnuShowTips(frmMain, u"mnuShowTips"_s),
      mnuAbout(frmMain, u"mnuAbout"_s)
{}

} // namespace kavro
