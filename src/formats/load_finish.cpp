#include "core/control_window.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/format_lists.h"
#include "core/kept_document.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/player_page.h"
#include "core/time_page.h"
#include "formats/load_run.h"
#include "formats/node_file.h"

#include <QFileInfo>
#include <QStringBuilder>

#include <algorithm>

// The end of a load: the document becomes what was read, and what shows it follows.

using namespace Qt::StringLiterals;

namespace kavro {

void LoadRun::replaceDocument(ReadFrame &frame)
{
    m_parts.document.editorBlocked = true;
    {
        // One reset stands for all; the editor's pages need not be hidden while it fills.
        const Grid::Batch batch(m_parts.document.editor.grdSubEdit);
        nameDocument();
        fill(frame);
        setNodes();
        m_parts.document.ShowNodeMarks(1);
    }
    m_parts.host.EnableDocumentCommands();
    showDocument();
}

void LoadRun::bringBack(const KeptDocument &kept)
{
    m_format = kept.formatId;
    m_parts.document.editorBlocked = true;
    {
        const Grid::Batch batch(m_parts.document.editor.grdSubEdit);
        if (m_format != UnknownFormat)
            selectFormat();
        m_parts.host.setFileName(m_request.path, m_format);
        clearDocument();
        takeKept(kept);
        m_parts.document.ShowNodeMarks(1);
    }
    m_parts.document.markEdited();
    m_parts.host.EnableDocumentCommands();
    showDocument();
    if (QFileInfo::exists(m_request.path))
        m_parts.host.addRecent(m_request.path);
}

void LoadRun::takeKept(const KeptDocument &kept)
{
    SubtitleDocument &document = m_parts.document;
    document.encoding = kept.encoding;
    document.savedPath = kept.savedPath;
    document.savedFormatId = kept.savedFormatId;
    document.curFontName = kept.fontName;
    document.editor.grdSubEdit.setAllRows(kept.rows);
    document.editor.lstFont.setItems(kept.fonts);
    document.nodes.fill({});
    std::ranges::copy(kept.nodes, document.nodes.begin());
    document.nodeCount = static_cast<int>(kept.nodes.size()) - 1;
    document.curNode = kept.curNode;
}

// A plain load meets the limit when it has put the old document away already; an added file leaves
// the document as it was.
LoadResult LoadRun::refuseForLimit()
{
    if (m_firstRow == 1) {
        m_parts.document.editorBlocked = true;
        nameDocument();
        m_parts.document.nodes = {};
        m_parts.document.nodes[0].firstRow = 1;
        m_parts.document.nodeCount = 0;
        m_parts.document.curNode = 1;
        showDocument();
    }
    const QString count = QString::number(m_count);
    m_parts.messages.ShowMessage({u"File '%1' reached limit of 9999 lines. File contains%2 lines. "
                                  "Select 'Cancel' to exit."_s,
                                  {m_request.path, count}},
                                 Answer::Cancel, u"cancel"_s, u"Reading limit"_s);
    return {.kind = Kind::LimitReached,
            .error = u"It reached the limit of 9999 lines, it contains %1."_s.arg(count)};
}

void LoadRun::nameDocument()
{
    selectFormat();
    if (m_firstRow == 1) {
        m_parts.host.setFileName(m_request.path, m_format);
        clearDocument();
    }
    m_parts.host.addRecent(m_request.path);
}

void LoadRun::selectFormat()
{
    SubtitleDocument &document = m_parts.document;
    if (m_firstRow > 1 && document.curFormatId != m_format)
        document.savedPath.clear();
    document.curFormatId = m_format;
    SubtitleLoader(m_parts).showFormat(m_format);
}

void LoadRun::clearDocument()
{
    SubtitleDocument &document = m_parts.document;
    document.ClearGrid();
    document.clearFindings();
    document.editor.lstFont.setItems({QString()});
    document.setFileChanged(false);
    // Nothing may be written to the old file any more, and not yet to the new one.
    document.savedPath.clear();
    document.savedFormatId = UnknownFormat;
    document.encoding = m_reader.encoding();
}

void LoadRun::fill(ReadFrame &frame)
{
    SubtitleDocument &document = m_parts.document;
    document.editor.lstFont.setItems(frame.fontEntries());
    document.editor.grdSubEdit.setAllRows(frame.takeRows());
    if (!frame.curFontName.isEmpty())
        document.curFontName = frame.curFontName;
    if (m_firstRow > 1) {
        document.markEdited();
        return;
    }
    document.savedPath = m_request.path;
    document.savedFormatId = m_format;
}

// The count that was foreseen is what the nodes go by; where a format counts lines it lies behind
// the last row.
void LoadRun::setNodes()
{
    SubtitleDocument &document = m_parts.document;
    if (m_firstRow == 1) {
        m_parts.nodeFile.load();
    } else {
        const int added = ++document.nodeCount;
        document.nodes[static_cast<std::size_t>(added)] = {
            .firstRow = m_firstRow, .lastRow = m_count - 1, .name = u"Part_%1"_s.arg(added)};
        if (added == 2)
            document.nodes[1].name = u"Part_1"_s;
    }
    document.nodes[0].firstRow = 1;
    document.nodes[0].lastRow = m_count - 1;
    document.curNode = 1;
}

void LoadRun::showDocument()
{
    SubtitleDocument &document = m_parts.document;
    for (int index = 0; index < 3; ++index)
        document.subShowSubtitle(QString(), index);
    fillPlayerList();
    fillRangeFields();
    enableControls();
    document.editorBlocked = false;
    document.RefreshCurrentRow();
    m_parts.host.documentLoaded();
    if (m_firstRow == 1)
        emit document.replaced();
}

void LoadRun::fillPlayerList()
{
    const Grid &grid = m_parts.document.editor.grdSubEdit;
    QStringList entries;
    entries.reserve(m_parts.document.subtitleCount());
    for (int row = 1; row <= m_parts.document.subtitleCount(); ++row) {
        entries.append(grid.text(row, StartColumn) % u"; " % grid.text(row, FirstTextColumn) % u' '
                       % grid.text(row, FirstTextColumn + 1));
    }
    ListBox &list = m_parts.document.player.Combo1;
    list.setSelected(-1);
    list.setItems(entries);
}

void LoadRun::fillRangeFields()
{
    SubtitleDocument &document = m_parts.document;
    Grid &grid = document.editor.grdSubEdit;
    const int last = document.subtitleCount();
    for (const int field : {0, 2}) {
        document.times.Text1[field].setText(u"1"_s);
        document.times.Text1[field + 1].setText(QString::number(last));
    }
    grid.setCurrent(1, FirstTextColumn);
    document.times.rtfStretchFirst.setText(grid.text(1, StartColumn));
    document.times.rtfStretchLast.setText(grid.text(last, StartColumn));
}

void LoadRun::enableControls()
{
    EditorPage &editor = m_parts.document.editor;
    editor.grdSubEdit.setVisible(true);
    editor.SSTab2.setVisible(true);
    editor.SSTab3.setVisible(true);
    editor.Label74.setEnabled(true);
    editor.Label75.setEnabled(true);
    editor.btnNode[0].setEnabled(true);
    for (Button &button : m_parts.document.player.Command49)
        button.setEnabled(true);
    m_parts.lists.Combo8[0].setAvailable(true);
    m_parts.lists.Combo8[1].setAvailable(true);
}

} // namespace kavro
