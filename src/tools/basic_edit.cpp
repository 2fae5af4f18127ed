#include "tools/basic_edit.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/text.h"

namespace kavro {

BasicEdit::BasicEdit(EditorPage &editor, SubtitleDocument &document, ActionTrace &trace)
    : m_editor(editor), m_document(document), m_trace(trace)
{
    QObject::connect(&m_editor.Command14, &Button::clicked, &m_editor.Command14,
                     [this] { changeCell(); });
}

void BasicEdit::changeCell()
{
    Grid &grid = m_editor.grdSubEdit;
    if (grid.row() > 0 && grid.row() < grid.rows() - 1) {
        QString text = trimmed(m_editor.rtfSubEditBasic.text()).toString();
        if (grid.col() >= FirstTextColumn) {
            text += u' ';
        }
        grid.setText(grid.row(), grid.col(), text);
        m_document.markEdited();
    }
    m_document.RefreshCurrentRow();
    m_trace.RecordAction({}, 504);
}

} // namespace kavro
