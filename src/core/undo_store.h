#pragma once

#include "controls/grid.h"
#include "core/document.h"
#include "core/list_patch.h"

#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

namespace kavro {

class DiagnoseHost;
struct MainMenu;

/// Walks back and forward over what was changed in the document since it was opened.
///
/// One outermost `SubtitleDocument::Act` that changed rows, fonts, nodes or format is one step; an
/// act that changed nothing is none. A change made outside an act becomes a step of its own at the
/// next act. The store lives in memory and shares the rows that a step left alone. It holds at most
/// `maxSteps` steps, and the oldest go while what they keep is above about `maxBytes`; the last
/// step always stays.
///
/// A save clears nothing: the state that was saved comes back as unchanged, all others as changed.
/// After a save that left rows out all are changed.
/// A plain load or a new document clears all.
///
/// A walk brings findings back as they were, and has a scan run with the repairs off when there
/// were findings before or behind it; a document that no scan found fault with isn't scanned. It
/// writes nothing into the history and records no action.
class UndoStore : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t maxSteps = 1000;
    static constexpr qsizetype maxBytes = 64 << 20;

    /// `mnuUndo` and `mnuRedo` run the walks, and are enabled while there is somewhere to walk to.
    UndoStore(SubtitleDocument &document, MainMenu &menu, DiagnoseHost &diagnose,
              ActionTrace &trace);
    ~UndoStore() override;
    Q_DISABLE_COPY_MOVE(UndoStore)

    [[nodiscard]] bool canUndo() const { return m_at > 0; }
    [[nodiscard]] bool canRedo() const { return m_at < m_steps.size(); }
    /// Nothing when there is nowhere to walk to.
    void undo();
    void redo();
    /// Forgets all steps.
    void clear();

    /// A walk led to another format; what shows the format follows.
    std::function<void()> formatChanged;

private:
    /// Where the person is in the grid.
    struct Place
    {
        int row = 0;
        int col = 0;
        int top = 0;

        bool operator==(const Place &) const = default;
    };

    /// What belongs to the document besides rows and fonts, and isn't derived from it.
    struct Content
    {
        std::vector<Node> nodes; ///< from element 0 on
        int formatId = 0;
        QString fontName;

        bool operator==(const Content &) const = default;
    };

    /// One moment of the document, all of it shared.
    struct Moment
    {
        Content content;
        int curNode = 0;
        QStringList errors;
        int errorCount = 0;
        Grid::Colors colors;
        QString savedPath;
        Place place;
        int revision = 0; ///< content of a number of its own; see `m_savedRevision`
    };

    struct Step
    {
        ListPatch<GridRow> rows;
        ListPatch<QString> fonts;
        Moment before;
        Moment after;
        qsizetype bytes = 0;
    };

    void beginAct();
    void endAct();
    [[nodiscard]] Moment present() const;
    void remember();
    void keepForeignChange();
    void adoptNaming();
    void putNaming(const Moment &from, const Moment &to);
    bool keepStep(bool newContent);
    void dropOldest();
    void documentSaved(bool changed);

    void walk(Step &step, bool back);
    void putContent(const Step &step, bool back);
    void putMoment(const Moment &moment);
    [[nodiscard]] Place placeFor(const Step &step, const Moment &from, const Moment &to) const;
    void goTo(const Place &place);
    void scanQuietly();
    [[nodiscard]] Place place() const;
    void showWays();

    SubtitleDocument &m_document;
    MainMenu &m_menu;
    DiagnoseHost &m_diagnose;
    ActionTrace &m_trace;

    std::deque<Step> m_steps;
    std::size_t m_at = 0; ///< steps before it lead back, those from it on forward
    qsizetype m_bytes = 0;
    bool m_walking = false;

    // The document as it was last seen.
    QList<GridRow> m_rows;
    QStringList m_fonts;
    Moment m_moment;
    int m_lastRevision = 0;
    int m_savedRevision = 0; ///< -1 when no state is on disk
};

} // namespace kavro
