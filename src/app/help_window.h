#pragma once

#include "controls/control.h"

namespace kavro {

class Folders;
class Form;
class HelpBrowser;
class LanguageTable;

/// The help pages, shown by the help browser, and the help centre, `frmHelp`.
class HelpWindow
{
public:
    HelpWindow(Form &frmHelp, HelpBrowser &browser, const LanguageTable &language,
               const Folders &folders);

    /// Opens a page of `helpPages` in the language in use; nothing outside the table.
    void ShowHelpPage(int index);
    /// Opens the index of the whole help.
    void showIndex();
    /// Opens the help centre.
    void show();

    Button cmdOk;

private:
    Form &m_form;
    HelpBrowser &m_browser;
    const LanguageTable &m_language;
    const Folders &m_folders;
};

} // namespace kavro
