#pragma once

#include "controls/control_array.h"
#include "controls/list_box.h"
#include "controls/text_box.h"

#include <QString>

namespace kavro {

class Folders;
class Form;
class LanguageTable;
class Messages;
struct ActionTrace;
struct Ports;

/// What a command opens the file window with besides the state that stands.
struct FileWindowOptions
{
    QString info;              ///< the window's heading
    bool nameEnabled = false;  ///< a name may be typed: the window is for saving
    bool mediaName = false;    ///< "Save as current loaded media name" is offered
    bool formatNeeded = false; ///< an entry that is no subtitle format isn't accepted
};

/// The file window, `frmFile`, as state. The shell's own file dialog stands in for the window: it
/// is handed what stands in the controls, and its reply goes into them as the window's buttons
/// would write it. The state stays from one command to the next, the filter above all.
class FileWindowState
{
public:
    FileWindowState(Form &frmFile, const Ports &ports, const Folders &folders, Messages &messages,
                    const LanguageTable &language, ActionTrace &trace);

    /// Fills the list of file types in the person's language and selects all that is supported.
    void fillFilters();

    /// The folder and the name that the window opens with.
    void goTo(const QString &path);

    /// Opens the window and waits. True for OK with a name: `lblFullName` has the path, `List3` the
    /// filter. Cancel stops a running macro.
    bool show(const FileWindowOptions &options);

    /// True when the filter that is selected is a subtitle format.
    [[nodiscard]] bool isFormatChosen() const;

    ListBox List1;                        ///< drives
    ListBox List2;                        ///< the folder
    ListBox List3;                        ///< filters; the index of an entry is its FormatId
    ListBox File1;                        ///< files of the folder that match the filter
    TextBox txtFilename;                  ///< name without folder
    CheckBox Check1;                      ///< "Save as current loaded media name"
    Label lblInfo;                        ///< heading
    Label lblFullName;                    ///< the path that was chosen
    Label lblErr;                         ///< what is wrong with a drive
    Label Label1;                         ///< the folder
    Label Label5;                         ///< the filter
    Label Label36;                        ///< the drive
    ControlArray<Button, 0, 1> cmdAction; ///< 0 Cancel, 1 OK

private:
    [[nodiscard]] QStringList filters() const;
    void showFilter();
    void setFolder(const QString &folder);
    void listFiles();
    void close(int button);
    bool accept();

    const Ports &m_ports;
    const Folders &m_folders;
    Messages &m_messages;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
