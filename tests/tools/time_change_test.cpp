#include "tests/tools/timing_test.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class TimeChangeTest : public TimingTest
{
protected:
    TimeChangeTest() { fill({u"00:00:10,000|00:00:20,000| text "_s, u"00:00:30,000|"_s}); }

    [[nodiscard]] QString copy() const
    {
        return times.rtfTimeStart.text() + u' ' + times.rtfTimeEnd.text();
    }

    TimeChange &tool = run.program().timeChange;
};

TEST_F(TimeChangeTest, TheButtonsStepTheWorkingCopyAlone)
{
    const struct
    {
        const char *name;
        Button &button;
        int code, col;
        QString step, copy;
    } rows[] = {
        {"earlier", tool.Command15, 534, 3, u"00:01,000"_s, u"00:00:09,000 00:00:19,000"_s},
        {"later", tool.Command16, 535, 1, u"00:01,000"_s, u"00:00:11,000 00:00:21,000"_s},
        {"shorter, start", tool.Command17, 536, 1, u"00:01,000"_s, u"00:00:11,000 00:00:20,000"_s},
        {"shorter, end", tool.Command17, 536, 2, u"00:01,000"_s, u"00:00:10,000 00:00:19,000"_s},
        {"shorter, text", tool.Command17, 536, 3, u"00:01,000"_s, u"00:00:11,000 00:00:19,000"_s},
        {"shorter, number", tool.Command17, 536, 0, u"00:01,000"_s, u"00:00:11,000 00:00:19,000"_s},
        {"longer, start", tool.Command18, 537, 1, u"00:01,000"_s, u"00:00:09,000 00:00:20,000"_s},
        {"longer, end", tool.Command18, 537, 2, u"00:01,000"_s, u"00:00:10,000 00:00:21,000"_s},
        {"longer, text", tool.Command18, 537, 5, u"00:01,000"_s, u"00:00:09,000 00:00:21,000"_s},
        {"by minutes", tool.Command16, 535, 3, u"02:30,250"_s, u"00:02:40,250 00:02:50,250"_s},
        {"to before zero", tool.Command15, 534, 3, u"00:15,000"_s, u"-1:59:55,000 00:00:05,000"_s},
        {"by nothing", tool.Command15, 534, 3, u""_s, u"00:00:10,000 00:00:20,000"_s},
    };
    const QList<GridRow> before = grid.allRows();
    EXPECT_EQ(tool.rtfDurShift.text(), u"00:01,000"_s);
    for (const auto &row : rows) {
        grid.setCurrent(1, row.col);
        document.RefreshCurrentRow();
        tool.rtfDurShift.type(row.step);
        row.button.click();
        EXPECT_EQ(copy(), row.copy) << row.name;
        EXPECT_EQ(run->trace.lastActionCode, row.code) << row.name;
        expectUntouched(before, row.name);
        EXPECT_EQ(lastHistory(), QString()) << row.name;
    }
}

TEST_F(TimeChangeTest, ExecuteWritesTheCopyUnchecked)
{
    times.rtfTimeStart.type(u"00:00:11,000"_s);
    times.rtfTimeEnd.type(u" no time"_s);
    tool.Command19.click();
    EXPECT_EQ(cells(), (QStringList{u"00:00:11,000| no time| text "_s, u"00:00:30,000"_s}));
    EXPECT_TRUE(document.fileChanged());
    EXPECT_FALSE(document.subtitleChanged);
    EXPECT_EQ(run->trace.lastActionCode, 530);
    EXPECT_EQ(lastHistory(), u"Line Shifted/Stretched: [Duration: 00:01,000] [Start: 00:00:11,000] "
                             "[End:  no time]"_s);
    grid.setCurrent(1, StartColumn);
    EXPECT_EQ(document.editor.rtfSubEditBasic.text(), u"00:00:11,000"_s);
}

TEST_F(TimeChangeTest, TheHeaderIsNeverWritten)
{
    grid.setCurrent(0, StartColumn);
    const QList<GridRow> before = grid.allRows();
    times.rtfTimeStart.type(u"00:00:40,000"_s);
    tool.Command19.click();
    EXPECT_EQ(run.takeMessages(), QStringList{u"No line is selected.\nNothing was changed."_s});
    expectUntouched(before, "header");
    EXPECT_EQ(lastHistory(), QString());
}

} // namespace
} // namespace kavro::test
