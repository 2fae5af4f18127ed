#include "controls/grid.h"

#include "controls/form.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

constexpr Color green = Color::fromBgr(0x00FF00);

class GridTest : public testing::Test
{
protected:
    GridTest() : form(u"frmMain"_s), grid(form, u"grdSubEdit"_s, 5, 3)
    {
        for (int row = 0; row < grid.rows(); ++row) {
            grid.setText(row, 0, QString::number(row));
        }
        const auto note = [this](const QString &what) { heard.append(what); };
        const auto numbers = [](int a, int b) { return u" %1,%2"_s.arg(a).arg(b); };
        QObject::connect(&grid, &Grid::cellChanged, &grid,
                         [=](int row, int col) { note(u"cell"_s + numbers(row, col)); });
        QObject::connect(&grid, &Grid::rowsInserted, &grid, [=](int first, int count) {
            note(u"inserted"_s + numbers(first, count));
        });
        QObject::connect(&grid, &Grid::rowsRemoved, &grid,
                         [=](int first, int count) { note(u"removed"_s + numbers(first, count)); });
        QObject::connect(&grid, &Grid::reset, &grid, [=] { note(u"reset"_s); });
        QObject::connect(&grid, &Grid::currentChanged, &grid,
                         [=](int row, int col) { note(u"current"_s + numbers(row, col)); });
        QObject::connect(&grid, &Grid::clicked, &grid,
                         [=](int row, int col) { note(u"clicked"_s + numbers(row, col)); });
        QObject::connect(&grid, &Grid::topRowChanged, &grid,
                         [=](int row) { note(u"top %1"_s.arg(row)); });
    }

    std::string takeHeard() { return std::exchange(heard, {}).join(u"; "_s).toStdString(); }

    /// Column 0 from row 0 on.
    [[nodiscard]] std::string numbers() const
    {
        QStringList texts;
        for (const GridRow &row : grid.allRows()) {
            texts.append(row.at(0));
        }
        return texts.join(u","_s).toStdString();
    }

    Form form;
    Grid grid;
    QStringList heard;
};

TEST_F(GridTest, OutsideTheTableNothingIsReadOrWritten)
{
    for (const auto &[row, col] : {std::pair(-1, 0), {5, 0}, {0, -1}, {0, 3}}) {
        EXPECT_FALSE(grid.setText(row, col, u"x"_s)) << row << ',' << col;
        EXPECT_TRUE(grid.text(row, col).isEmpty()) << row << ',' << col;
        grid.setCellColor(row, col, green);
        grid.click(row, col);
    }
    EXPECT_TRUE(grid.coloredCells().isEmpty());
    EXPECT_EQ(takeHeard(), "");
    EXPECT_TRUE(grid.setText(4, 2, u"x"_s));
    EXPECT_TRUE(grid.setText(4, 2, u"x"_s)); // the same text again is no change
    EXPECT_EQ(takeHeard(), "cell 4,2");
}

TEST_F(GridTest, ColoursMoveWithTheirRows)
{
    grid.setCellColor(2, 1, green);
    grid.setCellColor(4, 1, green);
    grid.insertRow(3, {u"new"_s});
    EXPECT_EQ(numbers(), "0,1,2,new,3,4");
    EXPECT_EQ(grid.coloredCells(), (QList<QPair<int, int>>{{2, 1}, {5, 1}}));
    EXPECT_EQ(grid.text(3, 2), QString()); // a short row is filled up

    grid.removeRow(2);
    EXPECT_EQ(grid.coloredCells(), (QList<QPair<int, int>>{{4, 1}}));
    grid.setRows(4);
    EXPECT_TRUE(grid.coloredCells().isEmpty());

    grid.setCellColor(3, 0, green);
    grid.setAllRows({{u"#"_s}, {u"1"_s}});
    EXPECT_TRUE(grid.coloredCells().isEmpty());
    grid.setRows(4);
    EXPECT_TRUE(grid.cellColor(3, 0).isDesktop()); // not the colour of the row that was there
}

TEST_F(GridTest, DesktopsOwnColourIsNone)
{
    grid.setCellColor(1, 1, green);
    takeHeard();
    grid.setCellColor(1, 1, Color::fromBgr(0xFFFFFF));
    EXPECT_TRUE(grid.coloredCells().isEmpty());
    EXPECT_EQ(takeHeard(), "cell 1,1");
    grid.clearCellColors();
    EXPECT_EQ(takeHeard(), "");
}

TEST_F(GridTest, HeaderStays)
{
    grid.removeRow(0);
    grid.insertRow(0, {u"new"_s});
    EXPECT_EQ(numbers(), "0,new,1,2,3,4");
    grid.setRows(0);
    EXPECT_EQ(grid.rows(), 1);
    grid.setAllRows({});
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.row(), 0);
}

TEST_F(GridTest, SettingMovesSilentlyToWhereItStandsAndActsDoNot)
{
    grid.setCurrent(1, 1);
    EXPECT_EQ(takeHeard(), "");
    grid.moveTo(1, 1);
    EXPECT_EQ(takeHeard(), "current 1,1");
    grid.click(1, 1);
    EXPECT_EQ(takeHeard(), "clicked 1,1");
    grid.click(3, 2);
    EXPECT_EQ(takeHeard(), "current 3,2; clicked 3,2");
    grid.click(0, 1);
    EXPECT_EQ(takeHeard(), "clicked 0,1");
    EXPECT_EQ(grid.mouseRow(), 0);
    EXPECT_EQ(grid.row(), 3);
}

TEST_F(GridTest, CurrentCellIsCutToTheTable)
{
    grid.setCurrent(99, 99);
    EXPECT_EQ(takeHeard(), "current 4,2");
    grid.setRow(0); // code may go to the header, keys may not
    EXPECT_EQ(grid.row(), 0);
    grid.moveTo(0, 0);
    EXPECT_EQ(grid.row(), 1);
    grid.setCurrent(4, 2);
    takeHeard();
    grid.setRows(3);
    EXPECT_EQ(takeHeard(), "removed 3,2; current 2,2");
}

TEST_F(GridTest, CurrentCellNeverScrolls)
{
    grid.setTopRow(2);
    EXPECT_EQ(takeHeard(), "top 2");
    grid.setCurrent(4, 1);
    grid.moveTo(1, 1);
    EXPECT_EQ(grid.topRow(), 2);
    takeHeard();
    grid.scrollTo(99);
    EXPECT_EQ(takeHeard(), "top 4");
    grid.setTopRow(-3);
    EXPECT_EQ(takeHeard(), "top 1");
    grid.setTopRow(4);
    grid.setRows(3);
    EXPECT_EQ(grid.topRow(), 2);
}

TEST_F(GridTest, BulkEditRaisesOneReset)
{
    {
        const Grid::Batch outer(grid);
        grid.setRows(9);
        {
            const Grid::Batch inner(grid);
            grid.setText(8, 1, u"x"_s);
            grid.setCellColor(8, 1, green);
            grid.clearCellColors();
        }
        grid.insertRow(2);
        grid.removeRow(3);
        grid.setAllRows(grid.allRows());
        EXPECT_EQ(takeHeard(), "");
    }
    EXPECT_EQ(takeHeard(), "reset");
}

} // namespace
} // namespace kavro
