#include "diagnose/scan.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/macro_variables.h"
#include "core/ports.h"
#include "core/status_panels.h"
#include "core/text.h"
#include "core/timecode.h"
#include "diagnose/findings.h"
#include "tools/basic_edit.h"

#include <QDateTime>
#include <QScopedValueRollback>
#include <QStringBuilder>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;
using enum DiagnoseSwitch;

namespace {

constexpr int scanCode = 719;
constexpr std::size_t errorVariable = 31;
constexpr Color faultyColor = Color::fromBgr(0x0080FF);
constexpr Color repairedColor = Color::fromBgr(0x80000005);

/// Frames that a time lasts, with the rate: "1438 (23.97 fps)".
QString framesText(QStringView time, QStringView frameRate, const LanguageTable &language)
{
    const double rate = Val(frameRate);
    return language.ownText(u"%1 (%2 fps)"_s)
        .arg(numberText(cutToWhole(rate * TimeCodeToMs(time) / 1000)), numberText(rate));
}

} // namespace

DiagnoseScan::DiagnoseScan(const Parts &parts, const DiagnoseSwitches &switches)
    : m_parts(parts),
      m_switches(switches),
      m_grid(parts.document.editor.grdSubEdit),
      m_facts(m_grid, m_switches),
      m_tree(parts.language)
{}

void DiagnoseScan::run()
{
    const QScopedValueRollback blocked(m_parts.document.editorBlocked, true);
    const Grid::Batch batch(m_grid);
    beginRun();
    while (!m_runs.empty()) {
        walk();
    }
}

void DiagnoseScan::beginRun()
{
    SubtitleDocument &document = m_parts.document;
    const QDateTime now = m_parts.clock.now();
    document.clearRowErrors();
    m_silentLines.clear();
    document.errorCount = 0;
    const QString file = document.subFileName;
    const QString format = m_parts.status.StatusBar1.panel(2);
    const LanguageTable &language = m_parts.language;
    m_tree.begin({.file = file.isEmpty() ? language.ownText(u"None loaded"_s) : file,
                  .format = trimmed(format).isEmpty() ? language.ownText(u"Unknown"_s) : format,
                  .date = now.toString(u"yyyy-MM-dd"_s),
                  .time = now.toString(u"HH:mm:ss"_s),
                  .errors = language.text(LangGroup::Report, 13)});
    m_runs.push_back(
        {.startTime = now.time().msecsSinceStartOfDay(), .nodeCount = document.nodeCount});
}

/// Takes the run to its end, or to a deletion that another run follows.
void DiagnoseScan::walk()
{
    while (nextLine()) {
        if (!scanLine()) {
            return;
        }
    }
    endRun();
    if (!m_runs.empty()) {
        endDeletion();
    }
}

/// Moves on to the next line, in the next node when this one is through. The end row ends a node
/// wherever the node ends.
bool DiagnoseScan::nextLine()
{
    Run &run = current();
    const auto isLine = [&] { return run.row <= run.lastRow && run.row < m_grid.rows() - 1; };
    ++run.row;
    while (run.node == 0 || !isLine()) {
        if (run.node == run.nodeCount) {
            return false;
        }
        const Node &node = m_parts.document.nodes[static_cast<std::size_t>(++run.node)];
        m_tree.addNode(run.node, node.firstRow, node.lastRow);
        run.row = std::max(node.firstRow, 1);
        run.lastRow = node.lastRow;
    }
    return true;
}

void DiagnoseScan::endRun()
{
    tellSummary();
    const Run &run = current();
    m_parts.document.errorCount = run.errorCount - run.fixedCount;
    m_parts.variables.sysVar[errorVariable] = QString::number(m_parts.document.errorCount);
    m_grid.setCurrent(1, FirstTextColumn);
    m_parts.trace.RecordAction({}, scanCode);
    m_runs.pop_back();
}

void DiagnoseScan::tellSummary()
{
    const Run &run = current();
    const int elapsed = m_parts.clock.now().time().msecsSinceStartOfDay() - run.startTime;
    const LanguageTable &language = m_parts.language;
    const QString notCounted = language.ownText(u"Not counted"_s);
    const auto counted = [&](DiagnoseSwitch one, int count) {
        return isOn(one) ? QString::number(count) : notCounted;
    };
    m_tree.end({.duration = language.ownText(u"%1 seconds."_s).arg(numberText(elapsed / 1000.0)),
                .lines = m_grid.rows() - 2,
                .words = counted(CountWords, run.wordCount),
                .multiLines = counted(CountMultiLines, run.multiLineCount),
                .time = isOn(CountTime) ? run.totalTime : notCounted,
                .frames = isOn(CountTime)
                              ? framesText(run.totalTime, m_parts.document.frameRate, language)
                              : notCounted,
                .detected = run.errorCount,
                .fixed = run.fixedCount});
}

/// False when the line was taken away and a run of its own has begun.
bool DiagnoseScan::scanLine()
{
    Run &run = current();
    const LineFacts &facts = m_facts.facts(run.row);
    if (isOn(CountTime)) {
        run.totalTime = TimeCodeAdd(run.totalTime, facts.duration, u'+');
    }
    if (!facts.inOrder || (facts.mayHoldSaved && isOnSavedMark())) {
        return scanFaultyLine();
    }
    run.wordCount += facts.words;
    run.multiLineCount += facts.isMultiLine ? 1 : 0;
    return true;
}

bool DiagnoseScan::scanFaultyLine()
{
    const int row = current().row;
    const LineValues line{.row = row,
                          .previousEnd =
                              row > 1 ? m_grid.text(row - 1, EndColumn) : u"00:00:00,000"_s,
                          .start = m_grid.text(row, StartColumn),
                          .end = m_grid.text(row, EndColumn)};
    checkTimes(line);
    const unsigned filled = filledCells(m_grid.allRows().at(row));
    const QString first = trimmed(m_grid.text(row, FirstTextColumn)).toString();
    if (isOn(CheckEmpty) && !checkTexts(line, filled)) {
        return false;
    }
    countTexts(first);
    return true;
}

// What a repair writes isn't read by the checks behind it, but for the end at the last of them.
void DiagnoseScan::checkTimes(const LineValues &line)
{
    const auto isBefore = [](QStringView a, QStringView b) {
        return TimeCodeAdd(a, b, u'-').startsWith(u'-');
    };
    if (isOn(CheckOverlapping) && isBefore(line.start, line.previousEnd)) {
        tellTime(overlapping, line);
    }
    if (isOn(CheckNegative) && isBefore(line.end, line.start)) {
        tellTime(negative, line);
    }
    if (isOn(CheckInvalid) && TimeCodeToMs(line.start) < 0) {
        tellTime(invalidStart, line);
    }
    if (isOn(CheckInvalid) && TimeCodeToMs(m_grid.text(line.row, EndColumn)) < 0) {
        tellTime(invalidEnd, line);
    }
}

/// False when the line was taken away and a run of its own has begun.
bool DiagnoseScan::checkTexts(const LineValues &line, unsigned filled)
{
    if (const TextFinding *finding = textFinding(filled)) {
        tellText(*finding, line);
        return filled != NoCell || !isOn(RepairEmpty) || !beginDeletion();
    }
    // Asked only of lines with a first and a second text, as ever.
    if ((filled & (First | Second)) == (First | Second) && isOnSavedMark()) {
        tellSavedEmpty(line);
    }
    return true;
}

/// It is the grid's current cell that is read, whatever line the run has come to.
bool DiagnoseScan::isOnSavedMark() const
{
    return trimmed(m_grid.text(m_grid.row(), m_grid.col())) == SavedEmptyLine::mark;
}

void DiagnoseScan::countFinding()
{
    m_parts.document.errorCount = ++current().errorCount;
}

void DiagnoseScan::countRepair()
{
    ++current().fixedCount;
    m_parts.document.setFileChanged(true);
}

/// The first text counts as it was read, the second as the cell holds it now.
void DiagnoseScan::countTexts(QStringView first)
{
    Run &run = current();
    const QString &second = m_grid.text(run.row, FirstTextColumn + 1);
    if (isOn(CountMultiLines) && !trimmed(second).isEmpty()) {
        ++run.multiLineCount;
    }
    if (isOn(CountWords)) {
        run.wordCount += countWords(first, second);
    }
}

/// A text of a finding in the person's language, with the line's values.
QString DiagnoseScan::told(QStringView text, const LineValues &line) const
{
    return findingText(m_parts.language.ownText(text.toString()), line);
}

void DiagnoseScan::tellTime(const TimeFinding &finding, const LineValues &line)
{
    SubtitleDocument &document = m_parts.document;
    const int row = line.row + finding.rowOffset;
    const QString explanation = told(finding.explanation, line);
    countFinding();
    if (finding.ownLine) {
        m_tree.addFinding(current().node, line.row, explanation);
    } else {
        m_tree.addBareFinding(current().node, explanation);
    }
    // Ahead of the first line there is none that could be repaired, or show the text.
    const bool repair = isOn(finding.repair) && row > 0;
    if (row == 0) {
        m_silentLines.append(line.row);
    }
    document.setRowErrorText(row, repair ? QString() : explanation);
    m_tree.addSolution(ResultTree::Solution::OfTime, line.row,
                       told(repair ? finding.solved : finding.advice, line));
    if (repair) {
        m_grid.setText(row, finding.column, findingText(finding.newTime, line));
        countRepair();
        m_grid.setCurrent(row, finding.column);
    }
    m_grid.setCellColor(row, finding.column, repair ? repairedColor : faultyColor);
}

void DiagnoseScan::tellText(const TextFinding &finding, const LineValues &line)
{
    const QString explanation = told(finding.explanation, line);
    countFinding();
    m_parts.document.setRowErrorText(line.row, explanation);
    m_tree.addFinding(current().node, line.row, explanation);
    if (!isOn(RepairEmpty)) {
        m_tree.addSolution(ResultTree::Solution::OfText, line.row, told(finding.advice, line));
        m_grid.setCellColor(line.row, finding.column, faultyColor);
    } else if (finding.filled != NoCell) {
        for (const TextFinding::Move &move : finding.moves) {
            if (move.to != 0) {
                m_grid.setText(line.row, move.to,
                               move.from == 0 ? QString() : m_grid.text(line.row, move.from));
            }
        }
        tellRepairedText(finding, line);
    }
}

void DiagnoseScan::tellRepairedText(const TextFinding &finding, const LineValues &line)
{
    m_parts.document.setRowErrorText(line.row, {});
    m_tree.addSolution(ResultTree::Solution::OfText, line.row, told(finding.solved, line));
    countRepair();
    m_grid.setCellColor(line.row, finding.column, repairedColor);
}

void DiagnoseScan::tellSavedEmpty(const LineValues &line)
{
    countFinding();
    m_silentLines.append(line.row);
    m_tree.addFinding(current().node, line.row, told(SavedEmptyLine::explanation, line));
    m_tree.addSolution(ResultTree::Solution::OfText, line.row, told(SavedEmptyLine::advice, line));
}

/// True when the document is to be scanned anew ahead of the deletion's end.
bool DiagnoseScan::beginDeletion()
{
    m_grid.setRow(current().row);
    if (m_parts.basicEdit.beginDelete()) {
        beginRun();
        return true;
    }
    endDeletion();
    return false;
}

// The line that has moved up into the row isn't looked at by this run.
void DiagnoseScan::endDeletion()
{
    m_parts.basicEdit.endDelete();
    tellRepairedText(*textFinding(NoCell),
                     {.row = current().row, .previousEnd = {}, .start = {}, .end = {}});
    countTexts({});
}

} // namespace kavro
