#include "core/undo_store.h"

#include "core/diagnose_host.h"
#include "core/editor_page.h"
#include "core/main_menu.h"
#include "core/time_page.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace kavro {

namespace {

/// A row this far below the top row is taken for visible.
constexpr int rowsInSight = 10;

constexpr qsizetype bytesOfColor = 32;

qsizetype bytesOf(const QString &text)
{
    return static_cast<qsizetype>(sizeof(QString)) + 2 * text.size();
}

qsizetype bytesOf(const QStringList &texts)
{
    constexpr qsizetype head = sizeof(QStringList) + 16;
    return std::transform_reduce(texts.begin(), texts.end(), head, std::plus(),
                                 [](const QString &text) { return bytesOf(text); });
}

} // namespace

UndoStore::UndoStore(SubtitleDocument &document, MainMenu &menu, DiagnoseHost &diagnose,
                     ActionTrace &trace)
    : m_document(document), m_menu(menu), m_diagnose(diagnose), m_trace(trace)
{
    m_document.actBegins = [this] { beginAct(); };
    m_document.actEnded = [this] { endAct(); };
    connect(&m_document, &SubtitleDocument::replaced, this, &UndoStore::clear);
    connect(&m_document, &SubtitleDocument::fileChangedChanged, this, &UndoStore::documentSaved);
    connect(&m_document, &SubtitleDocument::savedInPart, this, [this] { m_savedRevision = -1; });
    connect(&m_menu.mnuUndo, &Button::clicked, this, &UndoStore::undo);
    connect(&m_menu.mnuRedo, &Button::clicked, this, &UndoStore::redo);
    clear();
}

UndoStore::~UndoStore()
{
    m_document.actBegins = nullptr;
    m_document.actEnded = nullptr;
}

void UndoStore::clear()
{
    m_steps.clear();
    m_at = 0;
    m_bytes = 0;
    remember();
    m_moment.revision = ++m_lastRevision;
    m_savedRevision = m_document.fileChanged() ? -1 : m_moment.revision;
    showWays();
}

void UndoStore::documentSaved(bool changed)
{
    if (!changed && !m_walking) {
        adoptNaming();
        keepStep(true);
        m_savedRevision = m_moment.revision;
        showWays();
    }
}

void UndoStore::beginAct()
{
    if (!m_walking) {
        keepForeignChange();
        remember();
        // An act that changed nothing may have set the flag all the same; it comes back with it.
        if (m_document.fileChanged() && m_moment.revision == m_savedRevision) {
            m_moment.revision = ++m_lastRevision;
        }
    }
}

void UndoStore::endAct()
{
    if (!m_walking) {
        keepStep(m_document.fileChanged());
        showWays();
    }
}

void UndoStore::keepForeignChange()
{
    adoptNaming();
    if (keepStep(m_document.fileChanged())) {
        showWays();
    }
}

// Outside an act another header comes with another language, another format or font with a save or
// a choice of the person's: no change of the document.
void UndoStore::adoptNaming()
{
    const GridRow &header = m_document.editor.grdSubEdit.allRows().constFirst();
    if (m_rows.constFirst() != header) {
        m_rows[0] = header;
    }
    m_moment.content.formatId = m_document.curFormatId;
    m_moment.content.fontName = m_document.curFontName;
    m_moment.savedPath = m_document.savedPath;
}

UndoStore::Place UndoStore::place() const
{
    const Grid &grid = m_document.editor.grdSubEdit;
    return {.row = grid.row(), .col = grid.col(), .top = grid.topRow()};
}

UndoStore::Moment UndoStore::present() const
{
    const auto nodes = m_document.nodes.begin();
    return {.content = {.nodes = {nodes, std::next(nodes, m_document.nodeCount + 1)},
                        .formatId = m_document.curFormatId,
                        .fontName = m_document.curFontName},
            .curNode = m_document.curNode,
            .errors = m_document.rowErrors(),
            .errorCount = m_document.errorCount,
            .colors = m_document.editor.grdSubEdit.allColors(),
            .savedPath = m_document.savedPath,
            .place = place(),
            .revision = m_moment.revision};
}

void UndoStore::remember()
{
    m_rows = m_document.editor.grdSubEdit.allRows();
    m_fonts = m_document.editor.lstFont.items();
    m_moment = present();
}

/// Makes a step of what differs from the document as it was last seen; false when nothing does.
bool UndoStore::keepStep(bool newContent)
{
    Step step{.rows = {m_rows, m_document.editor.grdSubEdit.allRows()},
              .fonts = {m_fonts, m_document.editor.lstFont.items()},
              .before = m_moment,
              .after = present()};
    const bool changed =
        !step.rows.isEmpty() || !step.fonts.isEmpty() || step.before.content != step.after.content;
    if (!changed) {
        return false;
    }
    // What leaves an unchanged document unchanged, such as a mark, isn't in its file.
    if (newContent) {
        step.after.revision = ++m_lastRevision;
    }
    step.bytes = bytesOf(step.fonts.before);
    for (const GridRow &row : std::as_const(step.rows.before)) {
        step.bytes += bytesOf(row);
    }
    if (!step.before.errors.isSharedWith(step.after.errors)) {
        step.bytes += bytesOf(step.before.errors);
    }
    if (!step.before.colors.isSharedWith(step.after.colors)) {
        step.bytes += step.before.colors.size() * bytesOfColor;
    }
    while (m_steps.size() > m_at) {
        m_bytes -= m_steps.back().bytes;
        m_steps.pop_back();
    }
    m_bytes += step.bytes;
    remember();
    m_moment.revision = step.after.revision;
    m_steps.push_back(std::move(step));
    ++m_at;
    dropOldest();
    return true;
}

void UndoStore::dropOldest()
{
    while (m_steps.size() > maxSteps || (m_steps.size() > 1 && m_bytes > maxBytes)) {
        m_bytes -= m_steps.front().bytes;
        m_steps.pop_front();
        --m_at;
    }
}

void UndoStore::undo()
{
    keepForeignChange();
    if (canUndo()) {
        walk(m_steps[--m_at], true);
    }
}

void UndoStore::redo()
{
    keepForeignChange();
    if (canRedo()) {
        walk(m_steps[m_at++], false);
    }
}

void UndoStore::walk(Step &step, bool back)
{
    const QScopedValueRollback walking(m_walking, true);
    Moment &from = back ? step.after : step.before;
    const Moment &to = back ? step.before : step.after;
    const Place goal = placeFor(step, from, to);
    // Who comes back finds what a scan has found since.
    from.errors = m_document.rowErrors();
    from.errorCount = m_document.errorCount;
    from.colors = m_document.editor.grdSubEdit.allColors();
    const bool hadFindings = m_document.errorCount > 0;
    const int formatBefore = m_document.curFormatId;
    m_document.editorBlocked = true;
    {
        const Grid::Batch batch(m_document.editor.grdSubEdit);
        putContent(step, back);
        putMoment(to);
        putNaming(from, to);
        goTo(goal);
    }
    m_document.editorBlocked = false;
    m_document.setFileChanged(to.revision != m_savedRevision);
    m_document.subtitleChanged = false;
    m_document.RefreshCurrentRow();
    if (m_document.curFormatId != formatBefore && formatChanged) {
        formatChanged();
    }
    if (hadFindings || to.errorCount > 0) {
        scanQuietly();
        goTo(goal);
    }
    const int revision = to.revision;
    remember();
    m_moment.revision = revision;
    showWays();
}

void UndoStore::putContent(const Step &step, bool back)
{
    EditorPage &editor = m_document.editor;
    const auto there = [back]<class T>(const ListPatch<T> &patch, const QList<T> &list) {
        return back ? patch.replaced(list, patch.after, patch.before)
                    : patch.replaced(list, patch.before, patch.after);
    };
    if (!step.rows.isEmpty()) {
        editor.grdSubEdit.setAllRows(there(step.rows, editor.grdSubEdit.allRows()));
    }
    if (!step.fonts.isEmpty()) {
        editor.lstFont.setItems(there(step.fonts, editor.lstFont.items()));
    }
    if (step.rows.changesCount()) {
        for (const int field : {1, 3}) {
            m_document.times.Text1[field].setText(QString::number(m_document.subtitleCount()));
        }
    }
}

void UndoStore::putMoment(const Moment &moment)
{
    std::ranges::copy(moment.content.nodes, m_document.nodes.begin());
    m_document.nodeCount = static_cast<int>(moment.content.nodes.size()) - 1;
    m_document.curNode = moment.curNode;
    m_document.setRowErrors(moment.errors);
    m_document.errorCount = moment.errorCount;
    m_document.editor.grdSubEdit.setAllColors(moment.colors);
}

// What was named otherwise since, by a save or a choice, keeps its name.
void UndoStore::putNaming(const Moment &from, const Moment &to)
{
    const Content &old = from.content;
    if (old.formatId != to.content.formatId && m_document.curFormatId == old.formatId) {
        m_document.curFormatId = to.content.formatId;
        m_document.savedPath = to.savedPath;
    }
    if (m_document.curFontName == old.fontName) {
        m_document.curFontName = to.content.fontName;
    }
}

// Who hasn't moved since goes back to where the act was made. Who has moved stays where the change
// is in sight, and else comes to it.
UndoStore::Place UndoStore::placeFor(const Step &step, const Moment &from, const Moment &to) const
{
    Place goal = place();
    if (goal == from.place) {
        return to.place;
    }
    if (step.rows.isEmpty()) {
        return goal;
    }
    const int first = static_cast<int>(step.rows.first);
    const qsizetype count = std::max(step.rows.before.size(), step.rows.after.size());
    const auto isChanged = [&](int row) { return row >= first && row < first + count; };
    if (!isChanged(goal.row)) {
        goal.row = isChanged(to.place.row) ? to.place.row : std::max(first, 1);
    }
    if (goal.row < goal.top || goal.row >= goal.top + rowsInSight) {
        goal.top = goal.row;
    }
    return goal;
}

void UndoStore::goTo(const Place &place)
{
    Grid &grid = m_document.editor.grdSubEdit;
    grid.setCurrent(place.row, place.col);
    grid.setTopRow(place.top);
}

// The scan is no action of the person's here.
void UndoStore::scanQuietly()
{
    const ActionTrace before = m_trace;
    m_diagnose.diagnoseWithoutRepairs();
    m_trace.RecordAction(before.lastActionText, before.lastActionCode);
}

void UndoStore::showWays()
{
    m_menu.mnuUndo.setEnabled(canUndo());
    m_menu.mnuRedo.setEnabled(canRedo());
}

} // namespace kavro
