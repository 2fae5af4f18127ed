#pragma once

#include <QString>

#include <vector>

namespace kavro {

class DiagnoseHost;
class EditHistory;
class LanguageTable;
class Messages;
class SubtitleDocument;
struct ActionTrace;
struct EditorPage;

/// Edits the document one line at a time from the Basic page. Its buttons stand on the editor page,
/// since row changes switch them.
class BasicEdit
{
public:
    /// All are borrowed and outlive the tool.
    struct Parts
    {
        SubtitleDocument &document;
        EditHistory &history;
        DiagnoseHost &diagnose;
        Messages &messages;
        const LanguageTable &language;
        ActionTrace &trace;
    };

    explicit BasicEdit(const Parts &parts);

    /// Deletes the current row, up to the place where the scan runs, and logs it. True when a scan
    /// is due; `endDelete` follows it in any case. A scan may delete rows of its own meanwhile:
    /// each begin has its end, the last begun ends first.
    bool beginDelete();
    void endDelete();

private:
    void insertRow();  ///< Command10
    void deleteRow();  ///< Command11
    void changeCell(); ///< Command14

    [[nodiscard]] QString newStart(int row) const;
    void moveRowsDown(int row);
    void moveRowsUp(int row);
    void moveNodesDown(int row);
    void moveNodesUp(int top);
    void whitenFindings(int row);
    void clearPreview();
    void showEdited();

    /// A delete that has begun.
    struct Deletion
    {
        int top;      ///< the grid's top row ahead of it
        bool deleted; ///< false on the end row, where nothing goes
    };

    Parts m_parts;
    EditorPage &m_editor;
    std::vector<Deletion> m_deletions;
};

} // namespace kavro
