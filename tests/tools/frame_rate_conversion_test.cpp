#include "tests/tools/timing_test.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class FrameRateConversionTest : public TimingTest
{
protected:
    void convert(int from, int to)
    {
        rates.Combo14[0].pick(from);
        rates.Combo14[1].pick(to);
        tool.Command52.click();
    }

    FrameRatePage &rates = run.program().frameRates;
    FrameRateConversion &tool = run.program().frameRateConversion;
};

enum Rate { Rate23970, Rate24, Rate25, Rate29970, Rate30 };

TEST_F(FrameRateConversionTest, TimesAreMultipliedByToOverFromAndCut)
{
    const struct
    {
        QString before;
        Rate from, to;
        QString after;
    } rows[] = {
        {u"00:00:10,000"_s, Rate25, Rate30, u"00:00:12,000"_s},
        {u"00:00:01,000"_s, Rate30, Rate25, u"00:00:00,833"_s},
        {u"00:10:00,000"_s, Rate25, Rate24, u"00:09:36,000"_s},
        {u"00:10:00,000"_s, Rate24, Rate25, u"00:10:25,000"_s},
        {u"01:00:00,000"_s, Rate25, Rate23970, u"00:57:31,680"_s},
        {u"01:00:00,000"_s, Rate23970, Rate25, u"01:02:34,693"_s},
        {u"00:00:29,970"_s, Rate29970, Rate30, u"00:00:30,000"_s},
        {u"00:00:00,001"_s, Rate30, Rate23970, u"00:00:00,000"_s},
        {u""_s, Rate25, Rate30, u"00:00:00,000"_s},
        {u"no time"_s, Rate25, Rate30, u"00:00:00,000"_s},
        {u"00.00.10.000"_s, Rate25, Rate30, u"00:00:12,000"_s},
        {u"99:00:00,000"_s, Rate25, Rate30, u"118:48:00,000"_s},
    };
    for (const auto &row : rows) {
        fill({row.before + u'|' + row.before + u"| 00:00:01,000"_s});
        convert(row.from, row.to);
        EXPECT_EQ(cells(), QStringList{row.after + u'|' + row.after + u"| 00:00:01,000"_s})
            << row.before.toStdString();
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(FrameRateConversionTest, TheSameRateKeepsEveryMillisecond)
{
    QStringList lines;
    for (int i = 0; i < 3000; ++i) {
        lines.append(timeOf(i * 1237.0) + u'|' + timeOf(i * 1237.0 + i));
    }
    for (int rate = Rate23970; rate <= Rate30; ++rate) {
        fill(lines);
        convert(rate, rate);
        EXPECT_EQ(cells(), lines) << rate;
        EXPECT_TRUE(document.fileChanged()) << rate;
    }
}

TEST_F(FrameRateConversionTest, ThePlayersListIsNotCalledOld)
{
    fillSeconds({10, 20, 30});
    const Repaints repaints(grid);
    convert(Rate25, Rate30);
    EXPECT_TRUE(document.fileChanged());
    EXPECT_TRUE(document.subtitleChanged);
    EXPECT_EQ(repaints.painted, 1);
    EXPECT_EQ(times.rtfTimeStart.text(), u"00:00:12,000"_s);
    EXPECT_EQ(run->trace.lastActionCode, 548);
    EXPECT_EQ(lastHistory(), u"Changed Framerate: [From: 25.000] [To: 30.000]"_s);
    EXPECT_EQ(grid.text(4, StartColumn), QString()) << "the end row is no subtitle";
}

TEST_F(FrameRateConversionTest, ATimeBeforeZeroChangesNothing)
{
    for (const QString &line : {u"-1:59:59,000|00:00:02,000"_s, u"00:00:01,000|-1:59:59,000"_s}) {
        fill({u"00:00:10,000|00:00:12,000"_s, line});
        const QList<GridRow> before = grid.allRows();
        convert(Rate25, Rate30);
        EXPECT_EQ(run.takeMessages(),
                  QStringList{u"Line 2 has the time -1:59:59,000, which lies before zero and can't "
                              "be converted.\nNothing was changed."_s});
        expectUntouched(before, line.toStdString());
        EXPECT_EQ(lastHistory(), u"Changed Framerate: [From: 25.000] [To: 30.000]"_s);
    }
}

TEST_F(FrameRateConversionTest, WithoutARateNothingIsConverted)
{
    for (DropList &list : rates.Combo14) {
        fillSeconds({10});
        const QList<GridRow> before = grid.allRows();
        const int chosen = list.selected();
        list.setSelected(-1);
        tool.Command52.click();
        EXPECT_EQ(run.takeMessages(),
                  QStringList{u"Please choose both frame rates.\nNothing was changed."_s});
        expectUntouched(before, list.nameWithIndex().toStdString());
        list.setSelected(chosen);
    }
}

TEST_F(FrameRateConversionTest, ListsRecordTheirRate)
{
    for (int rate = Rate23970; rate <= Rate30; ++rate) {
        rates.Combo14[0].pick(rate);
        EXPECT_EQ(run->trace.lastActionCode, 538 + rate);
        rates.Combo14[1].pick(rate);
        EXPECT_EQ(run->trace.lastActionCode, 543 + rate);
    }
    EXPECT_EQ(rates.Combo14[1].label()->caption(), u"30.000"_s);
    EXPECT_EQ(document.frameRate, u"25.000"_s) << "a conversion leaves the rate in force";
}

TEST_F(FrameRateConversionTest, AClickOnARateTakesTheListsAlong)
{
    rates.optFrameRate[Rate29970].click();
    EXPECT_EQ(document.frameRate, u"29.970"_s);
    EXPECT_EQ(run->trace.lastActionCode, 315);
    EXPECT_EQ(rates.Combo14[0].selected(), Rate29970);
    EXPECT_EQ(rates.Combo14[1].selected(), Rate29970);

    // The second click on it makes the conversion safe once more.
    rates.Combo14[1].pick(Rate24);
    rates.optFrameRate[Rate29970].click();
    EXPECT_EQ(rates.Combo14[1].label()->caption(), u"29.970"_s);

    // A rate that the program sets is no act.
    run->trace.RecordAction({}, -1);
    rates.optFrameRate[Rate24].setOn();
    EXPECT_EQ(document.frameRate, u"24.000"_s);
    EXPECT_EQ(rates.Combo14[0].selected(), Rate24);
    EXPECT_EQ(run->trace.lastActionCode, -1);
}

} // namespace
} // namespace kavro::test
