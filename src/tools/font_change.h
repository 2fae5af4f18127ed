#pragma once

namespace kavro {

class EditHistory;
class LanguageTable;
class SubtitleDocument;
struct ActionTrace;

/// Gives the current line the font and style that the font lists show. Its controls stand among
/// the font lists, since row changes select in them and formats switch them.
class FontChange
{
public:
    FontChange(SubtitleDocument &document, EditHistory &history, const LanguageTable &language,
               ActionTrace &trace);

private:
    void changeFont(); ///< Command42

    SubtitleDocument &m_document;
    EditHistory &m_history;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
