#pragma once

#include "controls/control_array.h"
#include "controls/text_box.h"

namespace kavro {

class EditHistory;
class LanguageTable;
class Messages;
class SubtitleDocument;
struct ActionTrace;

/// Changes the two times of the current line through a working copy, `rtfTimeStart` and
/// `rtfTimeEnd` of the time page, which a row change fills. Four buttons step the copy, the fifth
/// writes it; the end row takes it as any other.
class TimeChange
{
public:
    TimeChange(Form &frmMain, SubtitleDocument &document, EditHistory &history, Messages &messages,
               const LanguageTable &language, ActionTrace &trace);

    ControlArray<Label, 0, 2> lblTime; ///< name the two times and the step
    TextBox rtfDurShift;               ///< the step, "mm:ss,mmm"
    Button Command15;                  ///< both times earlier
    Button Command16;                  ///< both times later
    Button Command17; ///< shorter, at the edge whose column is current, at both from a text
    Button Command18; ///< longer, likewise
    Button Command19; ///< writes the copy into the current line

private:
    void move(QChar op);
    void stepEdges(QChar startOp, QChar endOp);
    void step(TextBox &field, QChar op);
    void changeLine();

    SubtitleDocument &m_document;
    EditHistory &m_history;
    Messages &m_messages;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
