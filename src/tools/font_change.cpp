#include "tools/font_change.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/font_lists.h"
#include "core/language.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int fontCode = 514;

} // namespace

FontChange::FontChange(SubtitleDocument &document, EditHistory &history,
                       const LanguageTable &language, ActionTrace &trace)
    : m_document(document), m_history(history), m_language(language), m_trace(trace)
{
    Button &button = m_document.fonts.Command42;
    QObject::connect(&button, &Button::clicked, &button, [this] { changeFont(); });
}

// A change of the font alone isn't one that closing the document asks about.
void FontChange::changeFont()
{
    m_trace.RecordAction({}, fontCode);
    const SubtitleDocument::Act act(m_document);
    const QString font = m_document.fonts.Combo9[0].selectedText();
    const QString style = m_document.fonts.Combo9[1].selectedText();
    m_history.LogHistory(m_language.ownText(u"Changed Font"_s),
                         m_language.ownText(u"[From: %1] [To: %2]"_s).arg(font, style));

    const qsizetype row = m_document.editor.grdSubEdit.row();
    QStringList entries = m_document.editor.lstFont.items();
    if (row >= entries.size()) {
        entries.resize(row + 1); // the end row may have a font before it becomes a line
    }
    entries[row] = m_document.makeFontEntry(font, style, {});
    m_document.editor.lstFont.setItems(entries);
    m_document.RefreshCurrentRow();
}

} // namespace kavro
