#include "tests/diagnose/plain_diagnose.h"

#include "core/text.h"
#include "core/timecode.h"

#include <QStringBuilder>

#include <cmath>

namespace kavro::test {

using namespace Qt::StringLiterals;

namespace {

QString pad(int row)
{
    return QString::number(row).rightJustified(4, u'0');
}

QString signedNumber(int number)
{
    return u' ' % QString::number(number);
}

QString trim(const QString &text)
{
    return trimmed(text).toString();
}

bool isNegative(const QString &a, const QString &b)
{
    return TimeCodeAdd(a, b, u'-').startsWith(u'-');
}

} // namespace

void PlainDiagnose::add(const QString &parent, const QString &key, const QString &text)
{
    tree.add(parent.isEmpty() ? TreeView::noNode : tree.find(parent), text, key);
}

void PlainDiagnose::layOut()
{
    const QString none;
    tree.clear();
    add(none, u"file"_s, u"File"_s);
    add(none, u"scan"_s, u"Scan"_s);
    add(none, u"err"_s, m_program.language.text(LangGroup::Report, 13));
    add(u"err"_s, u"errsum"_s, u"Summary"_s);
    add(u"err"_s, u"errsol"_s, u"Solutions"_s);
    add(u"file"_s, u"fname"_s,
        m_document.subFileName.isEmpty() ? u"None loaded"_s : m_document.subFileName);
    add(u"fname"_s, u"format"_s, u"Format"_s);
    add(u"fname"_s, u"lines"_s, u"Lines"_s);
    add(u"fname"_s, u"words"_s, u"Words"_s);
    add(u"fname"_s, u"mlines"_s, u"Multi Lines"_s);
    add(u"format"_s, none, u"Unknown"_s);
    add(u"scan"_s, u"date"_s, u"Date"_s);
    add(u"scan"_s, u"time"_s, u"Time"_s);
    add(u"scan"_s, u"dur"_s, u"Duration"_s);
    add(u"scan"_s, u"count"_s, u"Count"_s);
    add(u"count"_s, u"ctime"_s, u"Time"_s);
    add(u"count"_s, u"cframe"_s, u"Frames"_s);
    add(u"date"_s, none, u"2026-01-02"_s);
    add(u"time"_s, none, u"03:04:05"_s);
    add(u"errsum"_s, u"sum_node"_s, u"Node"_s);
    add(u"errsol"_s, u"sol_line"_s, u"Line"_s);
}

void PlainDiagnose::GoDiagnose()
{
    m_document.clearRowErrors();
    m_document.errorCount = 0;
    layOut();
    Counts counts;
    const int nodeCount = m_document.nodeCount;
    for (int n = 1; n <= nodeCount; ++n) {
        const int first = m_document.nodes[static_cast<std::size_t>(n)].firstRow;
        const int last = m_document.nodes[static_cast<std::size_t>(n)].lastRow;
        add(u"sum_node"_s, u"sum_node"_s % signedNumber(n),
            u"Node[%1] = %2 to %3"_s.arg(n).arg(first).arg(last));
        for (int i = first; i <= last && i < m_grid.rows() - 1; ++i) {
            scanLine(n, i, counts);
        }
    }
    summary(counts);
}

void PlainDiagnose::scanLine(int n, int i, Counts &counts)
{
    const QString prevEnd = i > 1 ? m_grid.text(i - 1, 2) : u"00:00:00,000"_s;
    const QString end = m_grid.text(i, 2);
    const QString start = m_grid.text(i, 1);
    if (box(6)) {
        counts.total = TimeCodeAdd(counts.total, TimeCodeAdd(end, start, u'-'), u'+');
    }
    const QString diff = TimeCodeAdd(prevEnd, start, u'-');
    const QString invalid = u"Mark [Repair.Invalid] to repair"_s;
    if (box(1) && isNegative(start, prevEnd)) {
        time(n, i, counts,
             u"End.Time "_s % pad(i - 1) % u" > Start.Time " % pad(i) % u". Diff = " % diff, false,
             7, start, prevEnd % u" set to " % start, u"Mark [Repair.Overlapping] to repair"_s,
             i - 1, 2);
    }
    if (box(3) && isNegative(end, start)) {
        time(n, i, counts, u"End.Time < Start.Time. Diff = "_s % diff, false, 8, start,
             end % u" set to " % start, invalid, i, 2);
    }
    if (box(2) && TimeCodeToMs(start) < 0) {
        time(n, i, counts, u"Start.Time < 0 or invalid"_s, false, 8, u"00:00:00,000"_s,
             start % u" set to 00:00:00,000", invalid, i, 1);
    }
    if (box(2) && TimeCodeToMs(m_grid.text(i, 2)) < 0) {
        time(n, i, counts, u"Line "_s % pad(i) % u"End.Time < 0 or invalid", true, 8, start,
             end % u" set to " % start, invalid, i, 2);
    }
    checkText(n, i, counts);
}

void PlainDiagnose::checkText(int n, int i, Counts &counts)
{
    QString t3 = trim(m_grid.text(i, 3));
    const bool has3 = !t3.isEmpty();
    const bool has4 = !trim(m_grid.text(i, 4)).isEmpty();
    const bool has5 = !trim(m_grid.text(i, 5)).isEmpty();
    const QString row = QString::number(i);
    const QString from3 = u"Cel ["_s % row % u",3] is empty while cel [" % row;
    const QString put = u"Put spoken text in cel ["_s % row;
    const QString put3 = put % u",3] or mark [Repair.Empty]";
    const QString cell4 = u"cel ["_s % row % u",4]";
    const QString cell3 = u"cel ["_s % row % u",3]";
    const QString moved5 = u"Data moved from cel ["_s % row % u",5] to ";
    if (box(0)) {
        if (!has3 && !has4 && !has5) {
            text(n, i, counts, u"Complete line is empty"_s, {}, u"Line removed from subtitle"_s,
                 put % u",3..5] or mark [Repair.Empty]", 3);
        } else if (!has3 && has4 && !has5) {
            text(n, i, counts, from3 % u",4] contains data", {{3, 4}, {4, 0}},
                 u"Data moved from "_s % cell4 % u" to " % cell3, put3, 3);
        } else if (!has3 && has4 && has5) {
            text(n, i, counts, from3 % u",4] and cel [" % row % u",5] contains data",
                 {{3, 4}, {4, 5}, {5, 0}}, moved5 % cell4 % u" to " % cell3, put3, 3);
        } else if (!has3 && !has4) {
            text(n, i, counts, from3 % u",5] contains data", {{3, 5}, {5, 0}}, moved5 % cell3, put3,
                 3);
        } else if (!has4 && has5) {
            text(n, i, counts,
                 u"Cel ["_s % row % u",4] is empty while cel [" % row % u",5] contains data",
                 {{4, 5}, {5, 0}}, moved5 % cell4, put % u",5] or mark [Repair.Empty]", 4);
        } else if (has4 && trim(m_grid.text(m_grid.row(), m_grid.col())) == u"{}") {
            counted(counts);
            finding(n, i, u"Saved Empty line"_s);
            solution(u"nosol_"_s, i, put % u",3]");
        }
    }
    t3 = trim(t3 % u' ' % m_grid.text(i, 4));
    if (box(5) && !trim(m_grid.text(i, 4)).isEmpty()) {
        ++counts.multiLines;
    }
    if (box(4) && !t3.isEmpty()) {
        counts.words += static_cast<int>(t3.count(u' ')) + 1;
    }
}

void PlainDiagnose::counted(Counts &counts)
{
    m_document.errorCount = ++counts.errors;
}

void PlainDiagnose::finding(int n, int i, const QString &explanation)
{
    const QString key = u"err_"_s % signedNumber(i);
    add(u"sum_node"_s % signedNumber(n), key, u"Line "_s % pad(i));
    add(key, {}, explanation);
}

void PlainDiagnose::solution(const QString &kind, int i, const QString &text)
{
    add(u"sol_line"_s, kind % signedNumber(i), u"Line "_s % pad(i));
    add(kind % signedNumber(i), {}, text);
}

void PlainDiagnose::time(int n, int i, Counts &counts, const QString &explanation, bool bare,
                         int repairBox, const QString &newTime, const QString &solved,
                         const QString &advice, int row, int col)
{
    counted(counts);
    m_document.setRowErrorText(row, explanation);
    if (bare) {
        add(u"sum_node"_s % signedNumber(n), {}, explanation);
    } else {
        finding(n, i, explanation);
    }
    if (!box(repairBox) || row == 0) {
        solution(u"sol_"_s, i, advice);
        m_grid.setCellColor(row, col, Color::fromBgr(0x0080FF));
        return;
    }
    m_grid.setText(row, col, newTime);
    m_document.setRowErrorText(row, {});
    solution(u"sol_"_s, i, solved);
    ++counts.fixed;
    m_document.setFileChanged(true);
    m_grid.setCurrent(row, col);
    m_grid.setCellColor(row, col, {});
}

void PlainDiagnose::text(int n, int i, Counts &counts, const QString &explanation,
                         const QList<std::pair<int, int>> &moves, const QString &solved,
                         const QString &advice, int col)
{
    counted(counts);
    m_document.setRowErrorText(i, explanation);
    finding(n, i, explanation);
    if (!box(9)) {
        solution(u"nosol_"_s, i, advice);
        m_grid.setCellColor(i, col, Color::fromBgr(0x0080FF));
        return;
    }
    for (const auto &[to, from] : moves) {
        m_grid.setText(i, to, from == 0 ? QString() : m_grid.text(i, from));
    }
    if (moves.isEmpty()) {
        m_grid.setRow(i);
        if (m_program.basicEdit.beginDelete()) {
            GoDiagnose();
        }
        m_program.basicEdit.endDelete();
    }
    m_document.setRowErrorText(i, {});
    solution(u"nosol_"_s, i, solved);
    ++counts.fixed;
    m_document.setFileChanged(true);
    m_grid.setCellColor(i, col, {});
}

void PlainDiagnose::summary(const Counts &counts)
{
    const auto number = [](int count) { return QString::number(count); };
    const QString none = u"Not counted"_s;
    const double rate = m_document.frameRate.toDouble();
    const double frames = std::floor(rate * TimeCodeToMs(counts.total) / 1000 + 1e-9);
    add(u"dur"_s, {}, u"0 seconds."_s);
    add(u"lines"_s, {}, number(m_grid.rows() - 2));
    add(u"words"_s, {}, box(4) ? number(counts.words) : none);
    add(u"mlines"_s, {}, box(5) ? number(counts.multiLines) : none);
    add(u"ctime"_s, {}, box(6) ? counts.total : none);
    add(u"cframe"_s, {},
        box(6) ? u"%1 (%2 fps)"_s.arg(number(static_cast<int>(frames)), numberText(rate)) : none);
    add(u"errsum"_s, u"errdet"_s, u"Detected"_s);
    add(u"errdet"_s, {}, number(counts.errors));
    add(u"errsum"_s, u"errfix"_s, u"Fixed"_s);
    add(u"errfix"_s, {}, number(counts.fixed));
    add(u"errsum"_s, u"errrem"_s, u"Remaining"_s);
    add(u"errrem"_s, {}, number(counts.errors - counts.fixed));
    m_document.errorCount = counts.errors - counts.fixed;
    m_program.variables.sysVar[31] = number(m_document.errorCount);
    m_grid.setCurrent(1, 3);
    m_program.trace.RecordAction({}, 719);
}

} // namespace kavro::test
