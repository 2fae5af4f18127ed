#include "core/edit_history.h"

#include "controls/form.h"
#include "core/diagnose_host.h"
#include "core/editor_page.h"
#include "core/folders.h"
#include "core/messages.h"
#include "core/ports.h"
#include "core/safe_file.h"

#include <QStringBuilder>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int maxBoundedSnapshots = 100;
constexpr int noSnapshot = -1;

QString lineNumber(int line)
{
    return u"%1"_s.arg(line, 4, 10, '0'_L1);
}

} // namespace

EditHistory::EditHistory(Form &frmHistory, const Parts &parts)
    : List1(frmHistory, u"List1"_s),
      List2(frmHistory, u"List2"_s),
      lblHistComment(frmHistory, u"lblHistComment"_s),
      Command1(frmHistory, u"Command1"_s),
      m_form(frmHistory),
      m_parts(parts)
{
    List2.setVisible(false);
    Command1[1].setEnabled(false);
    connectWindow();
}

void EditHistory::connectWindow()
{
    QObject::connect(&List1, &ListBox::selectedChanged, &List1,
                     [this](int line) { showDetail(line); });
    QObject::connect(&Command1[1], &Button::clicked, &Command1[1],
                     [this] { RestoreHistory(List1.selectedText()); });
    for (Button &button : Command1) {
        QObject::connect(&button, &Button::clicked, &button, [this] { m_form.hide(); });
    }
    QObject::connect(&m_form, &Form::closeRequested, &List1, [this] { m_form.hide(); });
}

void EditHistory::showDetail(int line)
{
    lblHistComment.setCaption(List2.item(line));
    Command1[1].setEnabled(line >= 0);
}

void EditHistory::show()
{
    m_parts.forms.runModal(m_form);
}

void EditHistory::LogHistory(const QString &action, const QString &detail)
{
    const int line = List1.count();
    const QDateTime now = m_parts.clock.now();
    List2.addItem(detail);
    List1.addItem(u"%1 [%2,%3] %4"_s.arg(lineNumber(line), now.toString(u"yyyy-MM-dd"_s),
                                         now.toString(u"HH:mm:ss"_s), action));
    m_snapshots.push_back(keepDocument(line));
}

int EditHistory::keepDocument(int line)
{
    if (m_bounds > 0 && m_written >= maxBoundedSnapshots) {
        return m_snapshots.back();
    }
    ++m_written;
    const QString file = path(line);
    FileStatus status = m_parts.folders.makeRoomFor(file);
    if (status.ok()) {
        status = writeSnapshot(m_parts.store, file, m_parts.document, m_parts.versionNumber);
    }
    if (!status.ok()) {
        tellFailed(status);
        return noSnapshot;
    }
    m_failureTold = false;
    return line;
}

void EditHistory::tellFailed(const FileStatus &status)
{
    if (m_failureTold) {
        return;
    }
    m_failureTold = true;
    m_parts.messages.ShowMessage(
        {u"The history can't keep the document as it stands./n%1/n/nThe change is made all the "
         "same; 'Undo' takes it back."_s,
         {},
         status.text},
        Answer::Ok, u"ok"_s, u"History"_s);
}

QString EditHistory::path(int number) const
{
    const QString name = lineNumber(number) % u".shd";
    return m_parts.folders.writablePath(Folder::Temporary, name);
}

void EditHistory::RestoreHistory(const QString &line)
{
    // Lines begin with their number, which grows beyond four digits.
    const auto number = static_cast<std::size_t>(line.section(u' ', 0, 0).toUInt());
    if (!List1.items().contains(line) || number >= m_snapshots.size()) {
        return;
    }
    Snapshot snapshot;
    const FileStatus status =
        m_snapshots[number] == noSnapshot
            ? FileStatus{.fault = FileFault::Missing, .text = u"No snapshot was written."_s}
            : readSnapshot(path(m_snapshots[number]), snapshot);
    if (status.ok()) {
        take(snapshot);
        return;
    }
    m_parts.messages.ShowMessage(
        {u"The document can't be brought back to '%1'./n%2"_s, {line}, status.text}, Answer::Ok,
        u"ok"_s, u"History"_s);
}

void EditHistory::take(const Snapshot &snapshot)
{
    SubtitleDocument &document = m_parts.document;
    const SubtitleDocument::Act act(document);
    Grid &grid = document.editor.grdSubEdit;
    document.editorBlocked = true;
    {
        const Grid::Batch batch(grid);
        document.clearFindings();
        grid.setAllRows(QList<GridRow>{grid.allRows().constFirst()} + snapshot.rows);
        std::ranges::copy(snapshot.nodes, document.nodes.begin());
        document.nodeCount = static_cast<int>(snapshot.nodes.size()) - 1;
        document.curNode = snapshot.curNode;
        fitFonts();
    }
    document.editorBlocked = false;
    document.markEdited();
    document.RefreshCurrentRow();
    document.editor.rtfEdit.setVisible(false);
    document.editor.cmdInvCalc.setVisible(false);
    document.ShowNodeMarks(1);
    m_parts.diagnose.GoDiagnose();
}

// Fonts are no part of a snapshot: those of rows that are gone go, new rows have the regular one.
void EditHistory::fitFonts()
{
    const SubtitleDocument &document = m_parts.document;
    QStringList entries = document.editor.lstFont.items();
    const qsizetype rows = document.subtitleCount() + 1;
    if (entries.isEmpty()) {
        entries.append(QString());
    }
    while (entries.size() < rows) {
        entries.append(document.regularFontEntry());
    }
    document.editor.lstFont.setItems(entries.first(rows));
}

void EditHistory::reset()
{
    List1.clear();
    List2.clear();
    lblHistComment.setCaption({});
    Command1[1].setEnabled(false);
    m_snapshots.clear();
    m_failureTold = false;
}

EditHistory::Bounded::Bounded(EditHistory &history) : m_history(history)
{
    if (m_history.m_bounds++ == 0) {
        m_history.m_written = 0;
    }
}

EditHistory::Bounded::~Bounded()
{
    --m_history.m_bounds;
}

} // namespace kavro
