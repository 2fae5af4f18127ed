#pragma once

#include "controls/control_array.h"
#include "controls/list_box.h"
#include "controls/text_box.h"

#include <QString>

namespace kavro {

class Folders;
class Form;
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
    FileWindowState(Form &frmFile, const Ports &ports, Folders &folders, Messages &messages,
                    ActionTrace &trace);

    /// The folder and the name that the window opens with; an empty folder stands for the one of
    /// subtitle files.
    void goTo(const QString &folder, const QString &name);

    /// Opens the window and waits. True for OK: `lblFullName` has the path, `List3` the filter.
    /// Cancel stops a running macro.
    bool show(const FileWindowOptions &options);

    ListBox List1;                        ///< drives
    ListBox List2;                        ///< folders, the chosen one last
    ListBox List3;                        ///< filters; the index of an entry is its FormatId
    ListBox File1;                        ///< files of the folder that match the filter
    TextBox txtFilename;                  ///< name without folder
    CheckBox Check1;                      ///< "Save as current loaded media name"
    Label lblInfo;                        ///< heading
    Label lblFullName;                    ///< the path that was chosen
    Label lblErr;                         ///< what went wrong with a drive
    Label Label1;                         ///< the folder
    Label Label5;                         ///< the filter
    Label Label36;                        ///< the drive
    Label Label6;                         ///< opens the list of filters
    ControlArray<Button, 0, 1> cmdAction; ///< 0 Cancel, 1 OK

private:
    void fill();
    void listFiles();
    void takeName();
    void act(int button);

    const Ports &m_ports;
    Folders &m_folders;
    Messages &m_messages;
    ActionTrace &m_trace;
    bool m_filled = false;
};

} // namespace kavro
