// Repairs that delete lines run the scan within the scan.

#include "tests/diagnose/plain_diagnose.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DiagnoseFixture;
using test::PlainDiagnose;

/// All that a run leaves behind, as text.
std::string stateOf(DiagnoseFixture &fixture, const TreeView &tree)
{
    const SubtitleDocument &document = fixture.document;
    QStringList lines;
    DiagnoseFixture::addLines(tree, tree.roots(), 0, lines);
    for (const GridRow &row : fixture.grid.allRows()) {
        lines.append(row.join(u'|'));
    }
    for (int n = 0; n <= document.nodeCount; ++n) {
        const Node &node = document.nodes[static_cast<std::size_t>(n)];
        lines.append(u"%1-%2"_s.arg(node.firstRow).arg(node.lastRow));
    }
    lines += fixture.run->history.List1.items();
    lines += fixture.run->history.List2.items();
    lines += document.editor.lstFont.items();
    lines.append(u"at %1,%2 top %3"_s.arg(fixture.grid.row())
                     .arg(fixture.grid.col())
                     .arg(fixture.grid.topRow()));
    lines.append(u"errors %1 changed %2 %3 action %4 variable %5"_s.arg(document.errorCount)
                     .arg(document.fileChanged())
                     .arg(document.subtitleChanged)
                     .arg(fixture.run->trace.lastActionCode)
                     .arg(fixture.run->variables.sysVar[31]));
    return lines.join(u'\n').toStdString() + '\n' + fixture.errors() + '\n' + fixture.colours();
}

/// Small documents with faults of every kind, the same for the same number.
class RandomDocument
{
public:
    explicit RandomDocument(unsigned number) : m_random(number)
    {
        const int count = pick(11);
        for (int row = 0; row < count; ++row) {
            QStringList cells{time(), time()};
            for (int col = 0; col < 3; ++col) {
                cells.append(text());
            }
            m_rows.append(cells.join(u'|'));
        }
        m_firstRows.append(1);
        for (int first = 2 + pick(4); first <= count; first += 1 + pick(4)) {
            m_firstRows.append(first);
        }
        // Nodes out of order, over one another and behind the last row, as an old snapshot may
        // hold them.
        for (int odd = number % 4 == 0 ? 1 + pick(3) : 0; odd > 0; --odd) {
            m_oddNodes.append({1 + pick(count + 2), pick(count + 5)});
        }
        m_current = {1 + pick(count + 1), pick(6)};
        m_topRow = 1 + pick(count + 1);
        m_allChecks = pick(3) > 0;
        m_switches = static_cast<unsigned>(pick(1024));
    }

    void putInto(DiagnoseFixture &fixture) const
    {
        fixture.fill(m_rows);
        if (!m_rows.isEmpty()) {
            fixture.setNodes(m_firstRows, static_cast<int>(m_rows.size()));
        }
        if (!m_oddNodes.isEmpty()) {
            SubtitleDocument &document = fixture.document;
            document.nodeCount = static_cast<int>(m_oddNodes.size());
            for (std::size_t n = 0; const auto &[first, last] : m_oddNodes) {
                document.nodes[++n] = {
                    .firstRow = first, .lastRow = last, .name = {}, .flag = false};
            }
        }
        fixture.document.ShowNodeMarks(m_topRow);
        fixture.grid.setCurrent(m_current.first, m_current.second);
        for (CheckBox &box : fixture.run->diagnose.Check3) {
            box.setOn((m_allChecks && box.index() != 7 && box.index() != 8)
                      || (m_switches >> box.index() & 1U) != 0);
        }
    }

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    QString time()
    {
        const QStringView times[] = {u"-1:59:59,000",
                                     u"00:00:01,000",
                                     u"00:00:02,500",
                                     u"00:00:04,000",
                                     u"00:00:06,000",
                                     u"abc",
                                     u""};
        return times[pick(7)].toString();
    }

    QString text()
    {
        const QStringView texts[] = {u"", u" ", u"", u"", u" one", u"two  three", u"{}"};
        return texts[pick(7)].toString();
    }

    std::mt19937 m_random;
    QStringList m_rows;
    QList<int> m_firstRows;
    QList<std::pair<int, int>> m_oddNodes;
    std::pair<int, int> m_current;
    int m_topRow = 1;
    bool m_allChecks = false;
    unsigned m_switches = 0;
};

TEST(DiagnoseNested, AgreesWithRunsThatCallThemselves)
{
    DiagnoseFixture plainFixture;
    DiagnoseFixture fixture;
    PlainDiagnose plain(plainFixture);
    for (unsigned number = 0; number < 500; ++number) {
        const RandomDocument random(number);
        random.putInto(plainFixture);
        random.putInto(fixture);
        plain.GoDiagnose();
        fixture.go();
        ASSERT_EQ(stateOf(fixture, fixture.run->diagnose.tvDiag), stateOf(plainFixture, plain.tree))
            << "document " << number;
    }
}

TEST(DiagnoseNested, TwoEmptyLinesGoOneRunAfterTheOther)
{
    DiagnoseFixture fixture;
    fixture.fill({u"00:00:01,000|00:00:02,000| one"_s, u"00:00:03,000|00:00:04,000"_s,
                  u"00:00:05,000|00:00:06,000| "_s, u"00:00:07,000|00:00:08,000| two words"_s});
    fixture.switchOn(
        {DiagnoseSwitch::CheckEmpty, DiagnoseSwitch::RepairEmpty, DiagnoseSwitch::CountWords});
    fixture.go();
    EXPECT_EQ(fixture.rows(), "00:00:01,000|00:00:02,000|one\n00:00:07,000|00:00:08,000|two words");
    // The run that ended first stands at the top, those that waited for it add to its tree.
    EXPECT_EQ(fixture.below(u"errsum"_s), "Node\n"
                                          "  Node[1] = 1 to 2\n"
                                          "Detected\n  0\n  1\n  1\n"
                                          "Fixed\n  0\n  1\n  1\n"
                                          "Remaining\n  0\n  0\n  0");
    EXPECT_EQ(fixture.below(u"errsol"_s), "Line\n"
                                          "  Line 0002\n"
                                          "    Line removed from subtitle\n"
                                          "    Line removed from subtitle");
    EXPECT_EQ(fixture.document.errorCount, 0);
    EXPECT_EQ(fixture.run->history.List1.items(),
              (QStringList{u"0000 [2026-01-02,03:04:05] Row 2 deleted"_s,
                           u"0001 [2026-01-02,03:04:05] Row 2 deleted"_s}));
    EXPECT_EQ(fixture.run->trace.lastActionCode, 719);
}

TEST(DiagnoseNested, ManyRunsNeedNoDeepStack)
{
    DiagnoseFixture fixture;
    QStringList rows;
    for (int row = 1; row <= 1000; ++row) {
        rows.append(u"00:00:01,000|00:00:02,000| "_s + (row % 10 == 0 ? u"text"_s : QString()));
    }
    fixture.fill(rows);
    fixture.switchOn({DiagnoseSwitch::CheckEmpty, DiagnoseSwitch::RepairEmpty});
    fixture.go();
    EXPECT_EQ(fixture.document.subtitleCount(), 100);
    EXPECT_EQ(fixture.run->history.List1.count(), 900);
    const TreeView &tree = fixture.run->diagnose.tvDiag;
    EXPECT_EQ(tree.node(tree.find(u"errfix"_s)).children.size(), 901);
}

} // namespace
} // namespace kavro
