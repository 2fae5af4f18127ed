#pragma once

namespace kavro {

class SubtitleDocument;
struct ActionTrace;
struct EditorPage;

/// Edits the document one line at a time from the Basic page. Its buttons stand on the editor page,
/// since row changes switch them.
class BasicEdit
{
public:
    BasicEdit(EditorPage &editor, SubtitleDocument &document, ActionTrace &trace);

private:
    void changeCell(); ///< Command14

    EditorPage &m_editor;
    SubtitleDocument &m_document;
    ActionTrace &m_trace;
};

} // namespace kavro
