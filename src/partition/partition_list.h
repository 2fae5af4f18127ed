#pragma once

#include "controls/text_box.h"

namespace kavro {

class Form;
class LanguageTable;
struct ActionTrace;
struct FormatLists;
struct PartitionPage;

/// Edits the partition list in place, and chooses the format of its files. The list belongs to the
/// settings: a load of a document leaves it as it is.
class PartitionList
{
public:
    PartitionList(Form &frmMain, PartitionPage &page, FormatLists &formats, ActionTrace &trace);

    /// The captions of the list's columns from the language table.
    void fillCaptions(const LanguageTable &language);

    /// What entering a cell does: the box shows the text of the current cell. Also brings the box
    /// back after a scroll.
    void enterCell();

    /// False while the parts are previewed: the box and the buttons are gone, the format is fixed.
    void setEditable(bool editable);

    TextBox rtfSplitEdit;   ///< the cell editor, laid over the current cell
    Button cmdInvSplitCalc; ///< lends the calculator to a length
    Button command6;        ///< removes the part
    Label Label66;          ///< the same
    Label Label8;           ///< heading of the list of formats

private:
    void connectGrid();
    void connectBox(ActionTrace &trace);
    void editCell();
    void finishCell(ActionTrace &trace);
    void keepCell(const QString &text);
    void removePart();
    void numberRows();
    void enableRemove();
    void showBox(bool shown);
    [[nodiscard]] bool isEditableCell() const;

    PartitionPage &m_page;
    FormatLists &m_formats;
    bool m_editable = true;
};

} // namespace kavro
