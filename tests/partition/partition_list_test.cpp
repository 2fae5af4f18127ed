#include "tests/support/test_program.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class PartitionListTest : public testing::Test
{
protected:
    PartitionListTest() { run.startForVerb(); }

    void edit(int row, int col, const QString &text)
    {
        grid.moveTo(row, col);
        list.rtfSplitEdit.type(text);
        list.rtfSplitEdit.press(Key::Enter);
    }

    /// "number name length" of each part, then the end row.
    [[nodiscard]] std::string rows() const
    {
        QStringList lines;
        for (const GridRow &row : grid.allRows().sliced(1)) {
            lines.append(row.join(u' '));
        }
        return lines.join(u'|').toStdString();
    }

    TestProgram run;
    Grid &grid = run->partition.grid;
    PartitionList &list = run->partitionList;
};

TEST_F(PartitionListTest, TheEndRowBecomesAPartWhenItIsEdited)
{
    EXPECT_FALSE(list.command6.isEnabled());
    edit(1, PartNameColumn, u"one"_s);
    EXPECT_EQ(rows(), "1 one |  ");
    EXPECT_EQ(grid.row(), 1);
    EXPECT_TRUE(list.command6.isEnabled());
    EXPECT_TRUE(list.Label66.isEnabled());
    EXPECT_TRUE(grid.hasFocus());
    EXPECT_EQ(run->trace.lastActionText, u"one"_s);
    EXPECT_EQ(run->trace.lastActionCode, 421);
    edit(1, PartLengthColumn, u"00:10:00,000"_s);
    edit(2, PartLengthColumn, u"any text"_s);
    edit(3, PartNameColumn, {});
    edit(1, PartNameColumn, {});
    EXPECT_EQ(rows(), "1  00:10:00,000|2  any text|  ") << "nothing makes no part of the end row";
}

TEST_F(PartitionListTest, TheNumberIsNoCellToEdit)
{
    edit(1, PartNameColumn, u"one"_s);
    edit(1, PartNumberColumn, u"7"_s);
    edit(2, PartNumberColumn, u"7"_s);
    EXPECT_EQ(rows(), "1 one |  ");
}

TEST_F(PartitionListTest, KeysGoBetweenTheListAndItsBox)
{
    int calculator = 0;
    QObject::connect(&list.cmdInvSplitCalc, &Button::clicked, &grid, [&] { ++calculator; });
    edit(1, PartNameColumn, u"name"_s);
    grid.press(Key::Enter);
    EXPECT_TRUE(list.rtfSplitEdit.hasFocus());
    EXPECT_EQ(list.rtfSplitEdit.selLength(), 4);
    list.rtfSplitEdit.type(u"dropped"_s);
    list.rtfSplitEdit.press(Key::Escape);
    EXPECT_TRUE(grid.hasFocus());
    EXPECT_EQ(list.rtfSplitEdit.text(), u"name"_s);
    EXPECT_EQ(rows(), "1 name |  ");
    grid.press(Key::Enter);
    list.rtfSplitEdit.type(u"disc"_s);
    list.rtfSplitEdit.press(Key::Tab);
    EXPECT_EQ(rows(), "1 disc |  ");
    EXPECT_EQ(grid.col(), PartLengthColumn);
    EXPECT_TRUE(list.rtfSplitEdit.hasFocus());
    EXPECT_EQ(calculator, 0);
    list.rtfSplitEdit.press(Key::Tab);
    EXPECT_EQ(calculator, 1);
}

TEST_F(PartitionListTest, AScrollHidesTheBox)
{
    for (int part = 0; part < 9; ++part) {
        run->partition.append(u"part"_s, u"00:10:00,000"_s);
    }
    grid.moveTo(5, PartLengthColumn);
    grid.scrollTo(4);
    EXPECT_FALSE(list.rtfSplitEdit.isVisible());
    EXPECT_FALSE(list.cmdInvSplitCalc.isVisible());
    grid.click(5, PartLengthColumn);
    EXPECT_TRUE(list.rtfSplitEdit.isVisible()) << "a click on the same cell";
    grid.scrollTo(3);
    grid.press(Key::Enter);
    EXPECT_TRUE(list.rtfSplitEdit.hasFocus());
}

TEST_F(PartitionListTest, PartsFromElsewhereCanBeRemoved)
{
    grid.setCurrent(1, PartNameColumn);
    run->partition.append(u"clip"_s, u"00:01:02.500"_s);
    EXPECT_EQ(rows(), "1 clip 00:01:02.500|  ");
    EXPECT_TRUE(list.command6.isEnabled());
    EXPECT_EQ(list.rtfSplitEdit.text(), u"clip"_s) << "the cell that was the end row's";

    const QString film = run.write(u"film.srt"_s, twoSubtitles());
    const QString settings =
        run.write(u"a.scd"_s, film + u"\n{partitionlist}\nfirst>00:10:00,000\nno length\n"_s);
    run->dropFile(settings);
    EXPECT_EQ(rows(), "1 first 00:10:00,000|2 no length |  ");
    edit(3, PartNameColumn, u"third"_s);
    EXPECT_EQ(rows(), "1 first 00:10:00,000|2 no length |3 third |  ");
    run->dropFile(film);
    EXPECT_EQ(run->partition.partCount(), 3) << "the list survives a load";
}

} // namespace
} // namespace kavro::test
