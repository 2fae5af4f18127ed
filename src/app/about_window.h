#pragma once

#include "controls/control.h"

namespace kavro {

class Form;
class LanguageTable;

/// The window `frmAbout`: version, build, and the language pack in use with its author.
class AboutWindow
{
public:
    AboutWindow(Form &frmAbout, const LanguageTable &language);

    void show();

    Label lblTitle;
    Label lblBuild;
    Label lblProgrammed; ///< who made the program
    Label lblLanguage;   ///< the language pack
    Label lblAuthor;     ///< who made the pack; hidden when the pack names nobody
    Button cmdOk;

private:
    Form &m_form;
    const LanguageTable &m_language;
};

} // namespace kavro
