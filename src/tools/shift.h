#pragma once

#include "controls/drop_list.h"
#include "controls/text_box.h"

namespace kavro {

class EditHistory;
class LanguageTable;
class Messages;
class SubtitleDocument;
struct ActionTrace;

/// Moves both times of a range of lines by one duration. The range stands in `Text1(0)` and
/// `Text1(1)` of the time page.
///
/// A range may end in the end row, whose times are then moved from zero: no writer and no list
/// reads them. One that leaves the rows is refused with a message and changes nothing; the history
/// has a line of the attempt.
class Shift
{
public:
    Shift(Form &frmMain, SubtitleDocument &document, EditHistory &history, Messages &messages,
          const LanguageTable &language, ActionTrace &trace);

    /// Fills the direction list with the language's words and selects the first.
    void fillDirections();

    Label Label26;            ///< names the duration
    TextBox rtfShiftDuration; ///< the step, a TimeCode
    DropList Combo2;          ///< direction: 0 towards the beginning, 1 towards the end
    Label Label39;            ///< names the range
    Label Label5;             ///< steps the range through the nodes
    Label Label76;            ///< number of the node that the range was stepped to
    Button Command13;         ///< "Execute shifting"

private:
    void stepToNextNode();
    void shiftRange();

    SubtitleDocument &m_document;
    EditHistory &m_history;
    Messages &m_messages;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
