#pragma once

#include "controls/control_array.h"
#include "controls/text_box.h"

namespace kavro {

class EditHistory;
class LanguageTable;
class SubtitleDocument;
struct ActionTrace;

/// Filters over the texts of the whole document.
class Filters
{
public:
    Filters(Form &frmMain, SubtitleDocument &document, EditHistory &history,
            const LanguageTable &language, ActionTrace &trace);

    ControlArray<CheckBox, 0, 1> Check4; ///< 0 turns texts around, 1 breaks long lines
    TextBox txtMaxCount;                 ///< characters a line may have before it is broken
    Label lblMaxCount;                   ///< names the number
    Button Command30;                    ///< runs the filters that are switched on

private:
    void apply(); ///< Command30
    void logRun();
    void turnTexts();
    void breakLines();

    SubtitleDocument &m_document;
    EditHistory &m_history;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
