#pragma once

#include "controls/control_array.h"
#include "controls/drop_list.h"
#include "controls/indicators.h"
#include "controls/text_box.h"

#include <functional>

namespace kavro {

class EditHistory;
class LanguageTable;
class SubtitleDocument;
struct ActionTrace;
struct MainMenu;
struct StatusPanels;

/// Finds a text in the document in any case of letters, or replaces it.
///
/// A search begins at the document's `searchIndex`, which a click in the grid moves, and looks
/// through the times too. It doesn't begin anew at the end: nothing is found there until the
/// person clicks elsewhere.
class SearchReplace
{
public:
    /// All are borrowed and outlive the tool.
    struct Parts
    {
        MainMenu &menu;
        StatusPanels &status;
        SubtitleDocument &document;
        EditHistory &history;
        const LanguageTable &language;
        ActionTrace &trace;
    };

    SearchReplace(Form &frmMain, const Parts &parts);

    /// Brings the page with these fields to the front.
    std::function<void()> showPage;

    TextBox rtfSearch;
    TextBox rtfReplace;                       ///< a text in it chooses Replace, none Search
    ControlArray<OptionButton, 0, 1> Option1; ///< 0 searches, 1 replaces
    Button cmdSearch;                         ///< searches or replaces
    DropList List4;  ///< searches that came to their end: the text, or text + ">" + replacement
    Button Command2; ///< takes the selected search off the list
    Label lblSearch, lblReplace, lblStored; ///< name the fields and the list
    Label lblMatches;                       ///< in how many cells the text stands
    Timer timMatches; ///< counts them when it fires; runs while the count is not up to date

private:
    void connectFields();
    void connectMenu();
    void connectCount();
    void go();               ///< cmdSearch
    void openPage(int mode); ///< mnuSearch, mnuReplace
    void searchAgain();      ///< mnuSearchAgain
    [[nodiscard]] int firstRow() const;
    void search();
    void replaceAll();
    void reachEnd(bool found);
    void clearResult();
    void takeStored(const QString &item);
    void countMatches();

    Parts m_parts;
    QString m_notFound; ///< what the status bar was told, empty for nothing
};

} // namespace kavro
