#pragma once

#include "controls/control_array.h"
#include "controls/tree_view.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace kavro {

class Folders;
class Form;
class LanguagePack;
class LanguageTable;
class Messages;
class SettingsFiles;
struct ActionTrace;
struct FrameRatePage;
struct Ports;
struct SettingsPage;

/// The window of the options, `frmSettings`: a tree and six pages.
///
/// What is changed in it counts at once and is stored by OK. Cancel brings back what stood when the
/// window opened.
class SettingsWindow
{
public:
    /// All are borrowed and outlive the window.
    struct Parts
    {
        const Ports &ports;
        SettingsPage &settings;
        FrameRatePage &frameRates;
        SettingsFiles &files;
        LanguagePack &languagePack;
        Messages &messages;
        const LanguageTable &language;
        ActionTrace &trace;
    };

    SettingsWindow(Form &frmSettings, const Parts &parts);

    /// Builds the tree from the captions of the language pack.
    void LoadNodes();
    /// Opens the window and waits until it is closed.
    void open();
    /// Brings a page to the front, by the key of its node; nothing for a key that has none.
    void ShowTab(QStringView key);
    /// Stores the options; false when that failed, which was told then.
    bool SaveSettings();

    TreeView TV2;
    /// The pages by the keys of their nodes; "system" has none of its own and shows `general`.
    Frame startup, defaults, lng, general, script, audio;
    Label lblFrameRate;                  ///< stands beside `Combo2`
    ControlArray<Button, 0, 1> Command1; ///< cancel, OK

private:
    void connectBoxes();
    void connectLanguage();
    void connectScript();
    void switchOthersOff(int box);
    void listPacks();
    void takeScript();
    void keepState();
    void bringBackState();
    void confirm();
    void cancel();

    /// The options as they stood when the window opened.
    struct State
    {
        QList<QPair<CheckBox *, bool>> boxes;
        int frameRate = 0;
        QStringList scripts;
        int script = 0;
        QString languageFile;
        bool languageChanged = false;
    };

    Form &m_form;
    Parts m_parts;
    State m_kept;
    int m_script = 0; ///< the last entry of `cmbScript` that could be used
};

} // namespace kavro
