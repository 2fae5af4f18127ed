#include "tests/support/test_program.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class NodeToolTest : public testing::Test
{
protected:
    NodeToolTest()
    {
        QString text;
        for (int row = 1; row <= 210; ++row) {
            text += u"%1\n00:00:%2,000 --> 00:00:%2,900\nLine\n\n"_s.arg(row).arg(row % 60, 2, 10,
                                                                                  QChar(u'0'));
        }
        run.start(run.write(u"film.srt"_s, text));
    }

    void toggleAt(int row)
    {
        grid.setRow(row);
        run->editor.btnNode[0].click();
    }

    TestProgram run;
    Grid &grid = run->editor.grdSubEdit;
};

TEST_F(NodeToolTest, ToggleTellsWhatItDoesAndRecordsNothing)
{
    QStringList states;
    StatusBar &bar = run->status.StatusBar1;
    QObject::connect(&bar, &StatusBar::panelChanged, &bar,
                     [&](int panel) { states.append(bar.panel(panel)); });
    const QString state = bar.panel(StatePanel);
    run->trace.RecordAction(u"before"_s, 1);
    toggleAt(100);
    EXPECT_EQ(run->document.nodeCount, 2);
    EXPECT_EQ(states, (QStringList{u"Calculating nodes"_s, state}));
    EXPECT_EQ(run->trace.lastActionText, u"before"_s);
    EXPECT_EQ(run->history.List1.count(), 0);
}

TEST_F(NodeToolTest, TheLimitIsTold)
{
    for (int number = 1; number < SubtitleDocument::maxNodes; ++number) {
        toggleAt(2 * number);
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
    const QString state = run->status.StatusBar1.panel(StatePanel);
    toggleAt(205);
    EXPECT_EQ(run->document.nodeCount, SubtitleDocument::maxNodes);
    EXPECT_EQ(run.takeMessages(), QStringList(u"A document can't have more than 99 nodes.\n"
                                              "Please end one before you start another."_s));
    EXPECT_EQ(run->status.StatusBar1.panel(StatePanel), state);
    grid.setRow(0);
    run->editor.btnNode[0].click();
    EXPECT_EQ(run.takeMessages(),
              QStringList(u"There is no line here that a node could start at."_s));
}

TEST_F(NodeToolTest, StepsGoToTheFirstRowAndEndAtTheEnds)
{
    toggleAt(50);
    toggleAt(120);
    grid.setCurrent(3, 4);
    const auto place = [this] {
        return u"%1 %2 %3,%4"_s.arg(run->document.curNode)
            .arg(grid.topRow())
            .arg(grid.row())
            .arg(grid.col());
    };
    const QString start = place();
    run->editor.Label74.click();
    EXPECT_EQ(place(), start) << "before the first";
    for (const QString &expected : {u"2 50 50,4"_s, u"3 120 120,4"_s, u"3 120 120,4"_s}) {
        run->editor.Label75.click();
        EXPECT_EQ(place(), expected);
    }
    EXPECT_EQ(run->document.curRow, 120) << "the panels follow";
    for (const QString &expected : {u"2 50 50,4"_s, u"1 1 1,4"_s, u"1 1 1,4"_s}) {
        run->editor.Label74.click();
        EXPECT_EQ(place(), expected);
    }
}

TEST_F(NodeToolTest, AStepBackFromAJoinedNodeGoesToTheLastThatIsLeft)
{
    for (const int row : {50, 120, 160, 200}) {
        toggleAt(row);
    }
    run->document.curNode = run->document.nodeCount;
    for (const int row : {120, 160, 200}) {
        toggleAt(row);
    }
    run->editor.Label75.click();
    EXPECT_EQ(grid.row(), 200) << "there is no next one";
    run->editor.Label74.click();
    EXPECT_EQ(run->document.curNode, 2);
    EXPECT_EQ(grid.row(), 50);
}

} // namespace
} // namespace kavro::test
