#include "tests/tools/timing_test.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class ShiftTest : public TimingTest
{
protected:
    ShiftTest() { setRange(u"1"_s, u"1"_s); }

    void setRange(const QString &first, const QString &last)
    {
        times.Text1[0].type(first);
        times.Text1[1].type(last);
    }

    void shift(const QString &duration, int direction)
    {
        tool.rtfShiftDuration.type(duration);
        tool.Combo2.setSelected(direction);
        tool.Command13.click();
    }

    Shift &tool = run.program().shift;
};

TEST_F(ShiftTest, BothTimesMoveByTheDuration)
{
    const struct
    {
        const char *name;
        QString before, duration;
        int direction;
        QString after;
    } rows[] = {
        {"later", u"00:00:01,500|00:00:02,750"_s, u"00:00:01,250"_s, 1,
         u"00:00:02,750|00:00:04,000"_s},
        {"earlier", u"00:00:10,000|00:01:00,000"_s, u"00:00:00,001"_s, 0,
         u"00:00:09,999|00:00:59,999"_s},
        {"by hours", u"00:59:59,999|01:00:00,000"_s, u"01:00:00,001"_s, 1,
         u"02:00:00,000|02:00:00,001"_s},
        {"to before zero", u"00:00:00,000|00:00:00,500"_s, u"00:00:01,000"_s, 0,
         u"-1:59:59,000|-1:59:59,500"_s},
        {"back from before zero", u"-1:59:59,500|00:00:00,500"_s, u"00:00:01,000"_s, 1,
         u"00:00:00,500|00:00:01,500"_s},
        {"past the last hour", u"99:59:58,500|99:59:59,500"_s, u"00:00:01,000"_s, 1,
         u"99:59:59,500|99:59:59,500"_s},
        {"past the first hour", u"-9:00:00,500|-9:00:01,500"_s, u"00:00:01,000"_s, 0,
         u"-9:00:00,500|-9:00:00,500"_s},
        {"by a text", u"00:00:01,000|00:00:02,000"_s, u"soon"_s, 1, u"00:00:01,000|00:00:02,000"_s},
        {"of a text", u"soon|"_s, u"00:00:01,000"_s, 1, u"00:00:01,000|00:00:01,000"_s},
        {"nowhere", u"00:00:01,000|00:00:02,000"_s, u"00:00:01,000"_s, -1,
         u"00:00:00,000|00:00:00,000"_s},
    };
    for (const auto &row : rows) {
        fill({row.before + u"| text "_s});
        shift(row.duration, row.direction);
        EXPECT_EQ(cells(), QStringList{row.after + u"| text "_s}) << row.name;
        EXPECT_TRUE(document.fileChanged()) << row.name;
        EXPECT_FALSE(document.subtitleChanged) << row.name;
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(ShiftTest, OnlyTheRangeMoves)
{
    const struct
    {
        QString first, last;
        std::vector<int> moved;
    } rows[] = {
        {u"1"_s, u"4"_s, {1, 2, 3, 4}},
        {u"2"_s, u"3"_s, {2, 3}},
        {u" 3 "_s, u"3 and more"_s, {3}},
        {u"1.6"_s, u"2.4"_s, {2}},
        {u"3"_s, u"2"_s, {}},
        {u"99"_s, u"1"_s, {}},
        {u"1"_s, u""_s, {}},
        {u"1"_s, u"0"_s, {}},
        {u"-2"_s, u"-3"_s, {}},
    };
    for (const auto &row : rows) {
        fillSeconds({1, 1, 1, 1});
        setRange(row.first, row.last);
        shift(u"00:00:01,000"_s, 1);
        std::vector<int> moved;
        for (int line = 1; line <= 4; ++line) {
            if (grid.text(line, StartColumn) == u"00:00:02,000") {
                moved.push_back(line);
            }
        }
        const std::string name = (row.first + u" to "_s + row.last).toStdString();
        EXPECT_EQ(moved, row.moved) << name;
        EXPECT_TRUE(document.fileChanged()) << name << " changed, even when it holds no row";
        EXPECT_EQ(grid.text(5, StartColumn), QString()) << name << " leaves the end row";
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(ShiftTest, ARangeMayEndInTheEndRow)
{
    fillSeconds({1});
    setRange(u"1"_s, u"2"_s);
    shift(u"00:00:01,000"_s, 1);
    EXPECT_EQ(grid.text(2, StartColumn), u"00:00:01,000"_s);
    EXPECT_EQ(document.subtitleCount(), 1);
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(ShiftTest, ARangeOutsideTheRowsChangesNothing)
{
    const std::pair<QString, QString> ranges[] = {
        {u"0"_s, u"2"_s},           {u""_s, u"2"_s},       {u"all"_s, u"all"_s}, {u"-1"_s, u"1"_s},
        {u"1"_s, u"4"_s},           {u"4"_s, u"4"_s},      {u"1"_s, u"40000"_s}, {u""_s, u""_s},
        {u"99999999999"_s, u"1"_s}, {u"1"_s, u"-32769"_s},
    };
    for (const auto &[first, last] : ranges) {
        fillSeconds({1, 2});
        const QList<GridRow> before = grid.allRows();
        setRange(first, last);
        shift(u"00:00:01,000"_s, 1);
        const std::string name = (first + u" to "_s + last).toStdString();
        EXPECT_EQ(run.takeMessages(), QStringList{u"The first and the last line of the range must "
                                                  "lie in 1 to 2.\nNothing was changed."_s})
            << name;
        expectUntouched(before, name);
        EXPECT_TRUE(lastHistory().startsWith(u"Script Shifted: ")) << name;
    }
}

TEST_F(ShiftTest, ADocumentWithoutALineIsToldSo)
{
    fill({});
    const QList<GridRow> before = grid.allRows();
    setRange(u"1"_s, u"3"_s);
    shift(u"00:00:01,000"_s, 1);
    EXPECT_EQ(run.takeMessages(),
              QStringList{u"The document has no line.\nNothing was changed."_s});
    expectUntouched(before, "1 to 3");
}

TEST_F(ShiftTest, PaintsOnceAndLogsTheWholeDocument)
{
    fillSeconds({1, 5, 9});
    setRange(u"1"_s, u"2"_s);
    const Repaints repaints(grid);
    shift(u"00:00:00,500"_s, 0);
    EXPECT_EQ(repaints.painted, 1);
    EXPECT_EQ(times.rtfTimeStart.text(), u"00:00:00,500"_s) << "the current row is shown anew";
    EXPECT_EQ(lastHistory(), u"Script Shifted: [Range: 00:00:01,000 to 00:00:09,000] [Duration: "
                             "00:00:00,500] [Direction: Beginning]"_s);
    EXPECT_EQ(run->trace.lastActionCode, 518);
    shift(u"x"_s, 1);
    EXPECT_TRUE(lastHistory().endsWith(u"[Duration: x] [Direction: End]"));
}

TEST_F(ShiftTest, ThereAndBackIsWhereItWas)
{
    for (const QString &duration : {u"00:00:00,001"_s, u"00:59:59,999"_s, u"01:23:45,678"_s}) {
        QStringList lines;
        for (int i = 0; i < 500; ++i) {
            const int start = i * 7919 % 36'000'000;
            lines.append(timeOf(start) + u'|' + timeOf(start + i % 9001) + u"| line"_s);
        }
        fill(lines);
        setRange(u"1"_s, u"500"_s);
        for (const int direction : {0, 1}) {
            shift(duration, direction);
            EXPECT_NE(cells(), lines);
            shift(duration, 1 - direction);
            EXPECT_EQ(cells(), lines) << duration.toStdString() << " by " << direction;
        }
    }
}

TEST_F(ShiftTest, TheDirectionIsPickedFromAListWithoutAToggle)
{
    EXPECT_EQ(tool.Combo2.items(), (QStringList{u"Beginning"_s, u"End"_s}));
    EXPECT_EQ(tool.Combo2.label()->caption(), u"Beginning"_s);
    EXPECT_FALSE(tool.Combo2.isEnabled());
    tool.Combo2.pick(1);
    EXPECT_EQ(tool.Combo2.label()->caption(), u"End"_s);
    EXPECT_EQ(run->trace.lastActionCode, 516);
    tool.Combo2.pick(0);
    EXPECT_EQ(run->trace.lastActionCode, 515);
    EXPECT_EQ(tool.rtfShiftDuration.text(), u"00:00:00,000"_s);
}

TEST_F(ShiftTest, BothRangesStepThroughTheSameNodes)
{
    fillSeconds({1, 2, 3, 4, 5});
    setNodes({{1, 2}, {3, 5}});
    document.curNode = 0;
    const auto ranges = [this] {
        QStringList texts;
        for (const TextBox &field : times.Text1) {
            texts.append(field.text());
        }
        return texts.join(u' ') + u" ("_s + tool.Label76.caption() + u", "_s
               + run->stretch.Label77.caption() + u')';
    };
    times.Text1[2].setText(u"-"_s);
    times.Text1[3].setText(u"-"_s);
    tool.Label5.click();
    EXPECT_EQ(ranges(), u"1 2 - - (1, )"_s);
    EXPECT_EQ(run->trace.lastActionCode, 521);
    run->stretch.Label63.click();
    EXPECT_EQ(ranges(), u"1 2 3 5 (1, 2)"_s);
    EXPECT_EQ(run->trace.lastActionCode, 527);
    tool.Label5.click();
    EXPECT_EQ(ranges(), u"1 5 3 5 (0, 2)"_s) << "behind the last node comes the whole document";
    EXPECT_EQ(document.curNode, 0);
    EXPECT_FALSE(document.fileChanged());
}

} // namespace
} // namespace kavro::test
