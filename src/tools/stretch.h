#pragma once

#include "controls/control.h"

namespace kavro {

class ControlWindow;
class EditHistory;
class LanguageTable;
class Messages;
class SubtitleDocument;
struct ActionTrace;
struct RowRange;

/// Rescales the starts of a range of lines so that its first and its last line start at two given
/// times; each line keeps its length. The range stands in `Text1(2)` and `Text1(3)` of the time
/// page, the two times beside it.
///
/// A message tells why nothing was changed: the range leaves the subtitles (the end row has no
/// start to spread to), its first and last line start at the same time, or a line would come before
/// the first time. The history has a line of the attempt.
class Stretch
{
public:
    Stretch(Form &frmMain, SubtitleDocument &document, EditHistory &history,
            ControlWindow &progress, Messages &messages, const LanguageTable &language,
            ActionTrace &trace);

    Label Label40;    ///< names the start of the first line
    Label Label41;    ///< names the start of the last line
    Label Label63;    ///< steps the range through the nodes
    Label Label77;    ///< number of the node that the range was stepped to
    Button Command12; ///< "Execute stretch"

private:
    struct Scale;

    void stepToNextNode();
    void stretchRange();
    bool checkScale(const Scale &scale, const RowRange &range);
    void writeStarts(const Scale &scale, const RowRange &range);

    SubtitleDocument &m_document;
    EditHistory &m_history;
    ControlWindow &m_progress;
    Messages &m_messages;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
