#pragma once

#include "controls/control_array.h"
#include "controls/list_box.h"
#include "core/snapshot.h"

#include <vector>

namespace kavro {

class Clock;
class DiagnoseHost;
class Folders;
class Form;
class FormRunner;
class Messages;

/// The list of what was changed since the document was opened, in `frmHistory`, and the snapshots
/// that bring the document back to the moment before a change.
///
/// A snapshot is a plain text file NNNN.shd in the folder of temporary files, NNNN being the number
/// of the line in the list.
class EditHistory
{
public:
    /// All are borrowed and outlive the history.
    struct Parts
    {
        SubtitleDocument &document;
        FormRunner &forms;
        Clock &clock;
        Folders &folders;
        FileStore &store;
        Messages &messages;
        DiagnoseHost &diagnose;
        QString versionNumber; ///< stands at the head of each snapshot
    };

    EditHistory(Form &frmHistory, const Parts &parts);

    /// Adds a line to the list and keeps the document as it stands; every tool calls this before it
    /// changes anything. A snapshot that can't be written is told once, till one succeeds again;
    /// the tool goes on, and undo takes the change back.
    void LogHistory(const QString &action, const QString &detail);

    /// Brings the document back to the moment before the action of that line of the list. The list
    /// stays as it is. A snapshot that is missing or damaged is told and leaves the document alone.
    void RestoreHistory(const QString &line);

    /// Opens the window until it is closed.
    void show();

    /// A document was opened, started or named: its list begins anew.
    void reset();

    /// While one lives at most 100 snapshots are written; the lines behind them share the last one.
    /// For acts that log thousands of lines. Scopes nest, and the outermost counts.
    class Bounded
    {
    public:
        explicit Bounded(EditHistory &history);
        ~Bounded();
        Q_DISABLE_COPY_MOVE(Bounded)

    private:
        EditHistory &m_history;
    };

    ListBox List1;                       ///< one line an action
    ListBox List2;                       ///< the detail of each line, never shown
    Label lblHistComment;                ///< detail of the selected line
    ControlArray<Button, 0, 1> Command1; ///< 0 closes, 1 restores

private:
    void connectWindow();
    void showDetail(int line);
    [[nodiscard]] int keepDocument(int line);
    void tellFailed(const FileStatus &status);
    [[nodiscard]] QString path(int number) const;
    void take(const Snapshot &snapshot);
    void fitFonts();

    Form &m_form;
    Parts m_parts;
    std::vector<int> m_snapshots; ///< the number of each line's snapshot, -1 for none
    int m_bounds = 0;             ///< `Bounded` scopes that live
    int m_written = 0;            ///< snapshots in the outermost of them
    bool m_failureTold = false;
};

} // namespace kavro
