#pragma once

#include "controls/grid.h"
#include "diagnose/line_facts.h"
#include "diagnose/result_tree.h"
#include "diagnose/switches.h"

#include <QList>
#include <QString>

#include <vector>

namespace kavro {

class BasicEdit;
class Clock;
class LanguageTable;
class SubtitleDocument;
struct ActionTrace;
struct LineValues;
struct MacroVariables;
struct StatusPanels;
struct TextFinding;
struct TimeFinding;

/// One pass over the lines of a document, node by node, that finds faults, counts, and repairs.
///
/// A line that is taken away has the whole document scanned anew before the pass goes on behind
/// that line. So each deletion leaves a run that waits for the next one; they wait on a stack of
/// their own, each with its place and its counts.
class DiagnoseScan
{
public:
    /// All are borrowed.
    struct Parts
    {
        SubtitleDocument &document;
        BasicEdit &basicEdit; ///< deletes the lines that are empty
        const StatusPanels &status;
        const LanguageTable &language;
        MacroVariables &variables;
        ActionTrace &trace;
        const Clock &clock;
    };

    DiagnoseScan(const Parts &parts, const DiagnoseSwitches &switches);

    /// Goes through the document. The current row's panels are the caller's to refresh.
    void run();

    /// What the runs had to tell.
    [[nodiscard]] const ResultTree &tree() const { return m_tree; }
    /// Lines with a finding of which no line of the document has the text.
    [[nodiscard]] const QList<int> &silentLines() const { return m_silentLines; }

private:
    /// A run at work, or one that waits for those behind it on the stack.
    struct Run
    {
        int startTime = 0; ///< milliseconds since midnight
        int nodeCount = 0; ///< nodes when it began
        int node = 0;
        int row = 0;
        int lastRow = 0; ///< of the node, when the run came to it
        int errorCount = 0;
        int fixedCount = 0;
        int wordCount = 0;
        int multiLineCount = 0;
        QString totalTime = QStringLiteral("00:00:00,000");
    };

    [[nodiscard]] bool isOn(DiagnoseSwitch one) const { return m_switches.isOn(one); }
    [[nodiscard]] Run &current() { return m_runs.back(); }

    void beginRun();
    void walk();
    bool nextLine();
    void endRun();
    void tellSummary();

    [[nodiscard]] bool scanLine();
    [[nodiscard]] bool scanFaultyLine();
    void checkTimes(const LineValues &line);
    [[nodiscard]] bool checkTexts(const LineValues &line, unsigned filled);
    [[nodiscard]] bool isOnSavedMark() const;

    void countFinding();
    void countRepair();
    void countTexts(QStringView first);
    [[nodiscard]] QString told(QStringView text, const LineValues &line) const;
    void tellTime(const TimeFinding &finding, const LineValues &line);
    void tellText(const TextFinding &finding, const LineValues &line);
    void tellSavedEmpty(const LineValues &line);
    void tellRepairedText(const TextFinding &finding, const LineValues &line);
    [[nodiscard]] bool beginDeletion();
    void endDeletion();

    Parts m_parts;
    DiagnoseSwitches m_switches;
    Grid &m_grid;
    LineFactsCache m_facts;
    ResultTree m_tree;
    QList<int> m_silentLines;
    std::vector<Run> m_runs;
};

} // namespace kavro
