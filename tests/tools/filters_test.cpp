#include "core/text.h"
#include "tests/tools/tool_test.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class FiltersTest : public ToolTest
{
protected:
    /// The text cells of a document of one line behind a run, "|" between them.
    QString applied(const QString &texts)
    {
        fill({u"1|2|"_s + texts});
        tool.Command30.click();
        return grid.allRows().at(1).sliced(FirstTextColumn).join(u'|');
    }

    Filters &tool = run.program().filters;
};

TEST_F(FiltersTest, ReverseTurnsEachCellAndPutsABlankInFront)
{
    const struct
    {
        const char *name;
        QString before, after;
    } rows[] = {
        {"no blanks", u"abc"_s, u" cba| | "_s},
        {"a blank at the end", u"abc "_s, u"  cba| | "_s},
        {"a blank in front", u" abc"_s, u" cba | | "_s},
        {"all cells", u"ab|1, 2|x"_s, u" ba| 2 ,1| x"_s},
        {"nothing", u"||"_s, u" | | "_s},
        {"Hebrew", u"\u05E9\u05DC\u05D5\u05DD!"_s, u" !\u05DD\u05D5\u05DC\u05E9| | "_s},
        {"points stay with their letter", u"\u05E9\u05C1\u05B8\u05DC"_s,
         u" \u05DC\u05E9\u05C1\u05B8| | "_s},
        {"accent of its own", u"ae\u0301b"_s, u" be\u0301a| | "_s},
        {"letters of two units", u"a\U0001F600\U00010400"_s, u" \U00010400\U0001F600a| | "_s},
        {"joined pictures", u"a\U0001F469\u200D\U0001F680b"_s,
         u" b\U0001F469\u200D\U0001F680a| | "_s},
        {"an accent without a letter", u"\u0301a"_s, u" a\u0301| | "_s},
        {"half a letter", u"a"_s + QChar(0xD83D) + u"b"_s, u" b"_s + QChar(0xD83D) + u"a| | "_s},
    };
    tool.Check4[0].setOn(true);
    for (const auto &row : rows) {
        EXPECT_EQ(applied(row.before), row.after) << row.name;
    }
}

TEST_F(FiltersTest, LongLinesBreakAtTheFirstBlankBehindTheLimit)
{
    const struct
    {
        const char *name;
        QString max, before, after;
    } rows[] = {
        {"four words", u"3"_s, u"aaa bbb ccc ddd"_s, u"aaa |bbb |ccc ddd "_s},
        {"the limit itself is no break", u"4"_s, u"aaa bbb ccc ddd"_s, u"aaa bbb |ccc ddd |"_s},
        {"short", u"40"_s, u"aaa bbb"_s, u"aaa bbb ||"_s},
        {"a word longer than the limit", u"2"_s, u"abcdefgh ij"_s, u"abcdefgh |ij |"_s},
        {"the last takes all", u"2"_s, u"a b c d e"_s, u"a b |c d |e "_s},
        {"each blank", u"0"_s, u"a b c d e"_s, u"a |b |c d e "_s},
        {"no number", u"many"_s, u"a b"_s, u"a |b |"_s},
        {"no text", u""_s, u"a b"_s, u"a |b |"_s},
        {"below zero", u"-5"_s, u"a b"_s, u"a |b |"_s},
        {"part of a character", u"3.5"_s, u"aaa bb"_s, u"aaa |bb |"_s},
        {"a number ahead of words", u"3 letters"_s, u"aaa bbb"_s, u"aaa |bbb |"_s},
        {"cells are joined by what ends them", u"3"_s, u"aaa |bbb|ccc "_s, u"aaa |bbbccc |"_s},
        {"two blanks", u"3"_s, u"aaa  bbb"_s, u"aaa | bbb |"_s},
        {"two blanks break twice", u"0"_s, u"a  b"_s, u"a | |b "_s},
        {"blanks at the ends go", u"40"_s, u"  aa  | |bb  "_s, u"aa   bb ||"_s},
        {"nothing", u"40"_s, u"||"_s, u" ||"_s},
        {"the word that ends a text", u"40"_s, u"aaa {end} bbb|ccc"_s, u"aaa  ||"_s},
        {"in the last cell", u"2"_s, u"aaa bbb ccc {end} ddd"_s, u"aaa |bbb |ccc  "_s},
        {"nothing ahead of it", u"40"_s, u"{end}aaa"_s, u" ||"_s},
        {"in other letters it is a word", u"40"_s, u"{End} {en"_s, u"{End} {en ||"_s},
    };
    tool.Check4[1].setOn(true);
    for (const auto &row : rows) {
        tool.txtMaxCount.setText(row.max);
        EXPECT_EQ(applied(row.before), row.after) << row.name;
        EXPECT_TRUE(tool.txtMaxCount.isEnabled());
    }
}

TEST_F(FiltersTest, HistoryAndFlagsOfARun)
{
    const struct
    {
        bool turn, breakLines;
        QString history;
    } rows[] = {
        {true, false, u"Reversed hebrew: [No details]"_s},
        {false, true, u"Corrected long lines:  [Correct amount:=x5]"_s},
        {true, true, u"Reversed hebrew, Corrected long lines: [No details] [Correct amount:=x5]"_s},
        {false, false, {}},
    };
    tool.txtMaxCount.setText(u"x5"_s);
    for (const auto &row : rows) {
        tool.Check4[0].setOn(row.turn);
        tool.Check4[1].setOn(row.breakLines);
        fill({u"1|2|a b"_s, u"3|4|c"_s});
        const QStringList before = cells();
        Repaints view(grid);
        tool.Command30.click();
        EXPECT_EQ(lastHistory(), row.history);
        EXPECT_EQ(run->trace.lastActionCode, 513);
        EXPECT_TRUE(document.fileChanged()) << "also when nothing was switched on";
        EXPECT_FALSE(document.subtitleChanged);
        EXPECT_EQ(view.painted, 1);
        EXPECT_EQ(cells() == before, !row.turn && !row.breakLines);
        EXPECT_EQ(document.editor.rtfSubEditBasic.text(),
                  trimmed(grid.text(1, FirstTextColumn)).toString());
        EXPECT_EQ(grid.allRows().constLast(), GridRow(ColumnCount));
    }
}

TEST_F(FiltersTest, TheBoxesRecordAndSwitchTheField)
{
    const struct
    {
        int box;
        bool on;
        int code;
        bool field;
    } rows[] = {
        {0, true, 511, false},  {1, true, 566, true},   {0, false, 512, true},
        {1, false, 567, false}, {1, false, 567, false},
    };
    EXPECT_FALSE(tool.txtMaxCount.isEnabled());
    for (const auto &row : rows) {
        tool.Check4[row.box].check(row.on);
        EXPECT_EQ(run->trace.lastActionCode, row.code);
        EXPECT_EQ(tool.txtMaxCount.isEnabled(), row.field);
    }
}

} // namespace
} // namespace kavro::test
