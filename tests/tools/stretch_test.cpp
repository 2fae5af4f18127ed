#include "tests/tools/timing_test.h"
#include "tools/row_range.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class StretchTest : public TimingTest
{
protected:
    /// Stretches the rows onto those two starts.
    void stretch(const RowRange &rows, const QString &firstTime, const QString &lastTime)
    {
        times.Text1[2].type(QString::number(rows.first));
        times.Text1[3].type(QString::number(rows.last));
        times.rtfStretchFirst.type(firstTime);
        times.rtfStretchLast.type(lastTime);
        tool.Command12.click();
    }

    /// The starts of all rows, shortened to seconds where they are whole.
    [[nodiscard]] std::string starts() const
    {
        QStringList texts;
        for (int row = 1; row <= document.subtitleCount(); ++row) {
            texts.append(numberText(TimeCodeToMs(grid.text(row, StartColumn)) / 1000));
        }
        return texts.join(u' ').toStdString();
    }

    Stretch &tool = run.program().stretch;
};

TEST_F(StretchTest, StartsAreScaledAndLengthsKept)
{
    fill({u"00:00:00,000|00:00:02,000| a"_s, u"00:00:10,000|00:00:12,000| b"_s,
          u"00:00:20,000|00:00:22,000| c"_s});
    run->controlWindow.ProgressBar1.setValue(40);
    const Repaints repaints(grid);
    stretch({1, 3}, u"00:00:10,000"_s, u"00:00:50,000"_s);
    EXPECT_EQ(repaints.painted, 1);
    EXPECT_EQ(run->controlWindow.ProgressBar1.value(), 0);
    EXPECT_EQ(cells(),
              (QStringList{u"00:00:10,000|00:00:12,000| a"_s, u"00:00:30,000|00:00:32,000| b"_s,
                           u"00:00:50,000|00:00:52,000| c"_s}));
    EXPECT_TRUE(document.fileChanged());
    EXPECT_FALSE(document.subtitleChanged);
    EXPECT_EQ(run->trace.lastActionCode, 522);
    EXPECT_EQ(lastHistory(), u"Script Stretched: [Range: 00:00:00,000 to 00:00:20,000] [First: "
                             "00:00:10,000] [Last: 00:00:50,000]"_s);
    EXPECT_EQ(times.rtfTimeStart.text(), u"00:00:10,000"_s) << "the current row is shown anew";
}

TEST_F(StretchTest, Ranges)
{
    const struct
    {
        const char *name;
        QList<int> before;
        RowRange rows;
        QString firstTime, lastTime; ///< to the second
        std::string after;
    } rows[] = {
        {"part", {0, 10, 20, 30}, {2, 3}, u"00:00:12"_s, u"00:00:14"_s, "0 12 14 30"},
        {"to one moment", {0, 10, 20}, {1, 3}, u"00:00:05"_s, u"00:00:05"_s, "5 5 5"},
        {"one behind", {0, 30, 20}, {1, 3}, u"00:00:00"_s, u"00:00:40"_s, "0 60 40"},
        {"runs back", {20, 10, 0}, {1, 3}, u"00:00:20"_s, u"00:00:40"_s, "20 30 40"},
        {"from before zero", {10, 20}, {1, 2}, u"-1:59:59"_s, u"00:00:01"_s, "-1 1"},
        {"no row", {0, 10}, {2, 1}, u"00:00:40"_s, u"00:00:50"_s, "0 10"},
        {"no times", {0, 10}, {1, 2}, u"first"_s, u""_s, "0 0"},
        {"too late", {0, 2, 1}, {1, 3}, u"60:00:00"_s, u"99:59:59"_s, "216000 216000 359999"},
    };
    for (const auto &row : rows) {
        fillSeconds(row.before);
        stretch(row.rows, row.firstTime + u",000"_s, row.lastTime + u",000"_s);
        EXPECT_EQ(starts(), row.after) << row.name;
        EXPECT_TRUE(document.fileChanged()) << row.name;
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(StretchTest, DigitsBehindTheThirdAreCut)
{
    const struct
    {
        QString middle, last, newLast, after;
    } rows[] = {
        // 1.23456 s
        {u"00:00:12,345"_s, u"00:02:05,000"_s, u"00:00:12,500"_s, u"00:00:01,234"_s},
        // 2/3 of a second
        {u"00:00:01,000"_s, u"00:00:03,000"_s, u"00:00:02,000"_s, u"00:00:00,666"_s},
        // 1.9999...: as near to 2 ms as a whole film can come
        {u"00:00:00,002"_s, u"02:46:40,000"_s, u"02:46:39,999"_s, u"00:00:00,001"_s},
        // 0.29 of 1 s is no number of binary digits
        {u"00:00:00,290"_s, u"00:00:01,000"_s, u"00:00:10,000"_s, u"00:00:02,900"_s},
        // less than a millisecond, a number that others write with an exponent
        {u"00:00:00,001"_s, u"27:46:40,000"_s, u"00:00:00,100"_s, u"00:00:00,000"_s},
    };
    for (const auto &row : rows) {
        fill({u"00:00:00,000|00:00:00,000"_s, row.middle + u"|00:00:00,000"_s, row.last});
        stretch({1, 3}, u"00:00:00,000"_s, row.newLast);
        EXPECT_EQ(grid.text(2, StartColumn), row.after) << row.middle.toStdString();
        EXPECT_EQ(grid.text(3, StartColumn), row.newLast) << row.middle.toStdString();
    }
}

TEST_F(StretchTest, EveryMillisecondStandsInItsPlace)
{
    QStringList lines;
    for (int i = 0; i <= 2000; ++i) {
        const QString start = timeOf(i * 3571.0);
        lines.append(start + u'|' + start);
    }
    fill(lines);
    stretch({1, 2001}, u"00:00:00,000"_s, timeOf(3571 * 2000.0));
    EXPECT_EQ(cells(), lines);
}

TEST_F(StretchTest, WhatCannotBeStretchedChangesNothing)
{
    const QString noRange = u"The first and the last line of the range must lie in 1 to 3."_s;
    const QString noLength =
        u"Line %1 and line %2 start at the same time: there is no length to stretch."_s;
    const QString tooEarly = u"Line 2 would start before the first time, 00:00:10,000."_s;
    const struct
    {
        QList<int> before;
        RowRange rows;
        QString lastTime, message;
    } rows[] = {
        {{1, 2, 3}, {2, 2}, u"00:00:50,000"_s, noLength.arg(2).arg(2)},
        {{1, 2, 1}, {1, 3}, u"00:00:50,000"_s, noLength.arg(1).arg(3)},
        {{5, 1, 9}, {1, 3}, u"00:00:50,000"_s, tooEarly},
        {{1, 2, 3}, {1, 3}, u"00:00:05,000"_s, tooEarly},
        {{1, 2, 3}, {0, 3}, u"00:00:50,000"_s, noRange},
        {{1, 2, 3}, {1, 4}, u"00:00:50,000"_s, noRange},
        {{1, 2, 3}, {4, 4}, u"00:00:50,000"_s, noRange},
        {{1, 2, 3}, {3, 9999}, u"00:00:50,000"_s, noRange},
    };
    for (const auto &row : rows) {
        fillSeconds(row.before);
        const QList<GridRow> before = grid.allRows();
        stretch(row.rows, u"00:00:10,000"_s, row.lastTime);
        const std::string name =
            std::to_string(row.rows.first) + " to " + std::to_string(row.rows.last);
        EXPECT_EQ(run.takeMessages(), QStringList{row.message + u"\nNothing was changed."_s})
            << name;
        expectUntouched(before, name);
        EXPECT_TRUE(lastHistory().startsWith(u"Script Stretched: ")) << name;
    }
}

} // namespace
} // namespace kavro::test
