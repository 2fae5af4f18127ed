#include "partition/node_tool.h"

#include "core/document.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/status_panels.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

NodeTool::NodeTool(const Parts &parts) : m_parts(parts)
{
    EditorPage &editor = m_parts.editor;
    QObject::connect(&editor.btnNode[0], &Button::clicked, &editor.btnNode[0],
                     [this] { toggle(); });
    QObject::connect(&editor.Label74, &Label::clicked, &editor.Label74, [this] { step(-1); });
    QObject::connect(&editor.Label75, &Label::clicked, &editor.Label75, [this] { step(1); });
}

void NodeTool::toggle()
{
    const StatusNote note(m_parts.status, m_parts.language.ownText(u"Calculating nodes"_s));
    const int row = m_parts.editor.grdSubEdit.row();
    if (!m_parts.document.toggleNode(row)) {
        refuse(row);
    }
}

void NodeTool::refuse(int row)
{
    const MessageText text =
        row < 1 ? MessageText(u"There is no line here that a node could start at."_s)
                : MessageText(u"A document can't have more than %1 nodes./nPlease end one before "
                              "you start another."_s,
                              {QString::number(SubtitleDocument::maxNodes)});
    m_parts.messages.ShowMessage(text, Answer::Ok, u"ok"_s,
                                 m_parts.language.text(LangGroup::Report, 13));
}

void NodeTool::step(int by)
{
    SubtitleDocument &document = m_parts.document;
    // Nodes that were joined may have left the current one behind the last.
    const int next = std::min(document.curNode + by, std::max(document.nodeCount, 1));
    if (by < 0 ? document.curNode <= 1 : document.curNode >= document.nodeCount) {
        return;
    }
    document.curNode = next;
    Grid &grid = m_parts.editor.grdSubEdit;
    grid.setTopRow(document.nodes.at(static_cast<std::size_t>(next)).firstRow);
    grid.setRow(grid.topRow());
}

} // namespace kavro
