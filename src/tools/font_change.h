#pragma once

namespace kavro {

class EditHistory;
class SubtitleDocument;
struct ActionTrace;

/// Gives the current line the font and style that the font lists show. Its controls stand among
/// the font lists, since row changes select in them and formats switch them.
class FontChange
{
public:
    FontChange(SubtitleDocument &document, EditHistory &history, ActionTrace &trace);

private:
    void changeFont(); ///< Command42

    SubtitleDocument &m_document;
    EditHistory &m_history;
    ActionTrace &m_trace;
};

} // namespace kavro
