#pragma once

#include "controls/control.h"

#include <QString>
#include <QStringList>

namespace kavro {

class Folders;
class Form;
class LanguageTable;
class RandomNumbers;
struct SettingsPage;

/// The window of tips, `frmTip`.
class TipWindow
{
public:
    TipWindow(Form &frmTip, SettingsPage &settings, const LanguageTable &language, Folders &folders,
              RandomNumbers &random);

    /// Opens the window with a tip of the language in use.
    void show();
    /// Reads one tip a line and shows a random one. False when there is no such file.
    bool LoadTips(const QString &file);
    /// Nothing while there are no tips.
    void DisplayCurrentTip();

    Label lblTipText;
    Button cmdNextTip;
    Button cmdOk;
    CheckBox chkLoadTipsAtStartup; ///< "Show tips" of the settings

private:
    void pickTip();

    Form &m_form;
    SettingsPage &m_settings;
    const LanguageTable &m_language;
    Folders &m_folders;
    RandomNumbers &m_random;
    QStringList m_tips;
    qsizetype m_current = 0; ///< 1-based
};

} // namespace kavro
