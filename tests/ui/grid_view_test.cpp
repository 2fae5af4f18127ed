#include "ui/grid_view.h"

#include "controls/form.h"
#include "tests/ui/paint_counter.h"
#include "tests/ui/settle.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class GridViews : public ::testing::Test
{
protected:
    GridViews()
    {
        fill(1000);
        view.setColumnWidths({50, 80, 80, 100, 100, 100}, 3, 5);
        view.resize(700, 400);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }

    void fill(int rows)
    {
        const Grid::Batch batch(grid);
        grid.setRows(rows);
        for (int row = 1; row < rows; ++row) {
            grid.setText(row, 0, QString::number(row));
        }
    }
    void click(int row, int col)
    {
        const auto *model = static_cast<GridModel *>(view.model());
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualRect(model->indexOf(row, col)).center());
    }
    QPair<int, int> shown()
    {
        return {view.currentIndex().row() + 1, view.currentIndex().column()};
    }
    QPair<int, int> held() { return {grid.row(), grid.col()}; }

    Form form{u"frmMain"_s};
    Grid grid{form, u"grdSubEdit"_s, 2, 6};
    GridView view{grid, u"Subtitles"_s, {}, nullptr};
};

using Cell = QPair<int, int>;

TEST_F(GridViews, StepIsAnActAndScrollsWhenItMust)
{
    const QSignalSpy moved(&grid, &Grid::currentChanged);
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(held(), (Cell{2, 2}));
    EXPECT_EQ(moved.count(), 2);
    QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(held(), (Cell{999, 5}));
    EXPECT_GT(grid.topRow(), 900) << "a person's step brings its cell into sight";
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(held(), (Cell{999, 1})) << "the fixed column is no cell";
}

TEST_F(GridViews, ProgramsMoveScrollsNothing)
{
    grid.setCurrent(800, 3);
    EXPECT_EQ(shown(), (Cell{800, 3}));
    EXPECT_TRUE(view.selectionModel()->isRowSelected(799));
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    EXPECT_EQ(grid.topRow(), 1);
}

TEST_F(GridViews, TopRowGoesBothWaysWithoutFeedback)
{
    grid.setTopRow(500);
    EXPECT_EQ(view.verticalScrollBar()->value(), 499);
    view.verticalScrollBar()->setValue(200);
    EXPECT_EQ(grid.topRow(), 201);
    // The view can't have the last row at its top; the number stays the program's.
    grid.setTopRow(999);
    EXPECT_EQ(grid.topRow(), 999);
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    view.resize(700, 300);
    EXPECT_EQ(grid.topRow(), 999);
}

TEST_F(GridViews, ClickIsAnActAlsoOnTheCellThatStands)
{
    const QSignalSpy clicked(&grid, &Grid::clicked);
    click(3, 4);
    click(3, 4);
    EXPECT_EQ(clicked.count(), 2);
    EXPECT_EQ(grid.mouseRow(), 3);
    EXPECT_EQ(held(), (Cell{3, 4}));
    click(5, 0);
    EXPECT_EQ(held(), (Cell{5, 4})) << "the fixed column stands for its row";
    EXPECT_EQ(grid.mouseRow(), 5);
}

TEST_F(GridViews, BulkChangeKeepsSelectionAndScrollAndPaintsOnce)
{
    grid.setCurrent(310, 3);
    grid.setTopRow(300);
    settle();
    const PaintCounter paints(*view.viewport());
    const QSignalSpy moved(&grid, &Grid::currentChanged);
    const QSignalSpy scrolled(&grid, &Grid::topRowChanged);
    fill(800);
    settle();
    EXPECT_EQ(paints.count, 1);
    EXPECT_EQ(shown(), (Cell{310, 3}));
    EXPECT_TRUE(view.selectionModel()->isRowSelected(309));
    EXPECT_EQ(view.verticalScrollBar()->value(), 299);
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(scrolled.count(), 0);
}

TEST_F(GridViews, RowsThatGoMoveTheCurrentCellOnlyByTheControlsRule)
{
    grid.setCurrent(10, 2);
    grid.removeRow(10);
    EXPECT_EQ(held(), (Cell{10, 2}));
    EXPECT_EQ(shown(), (Cell{10, 2}));
    grid.insertRow(5);
    EXPECT_EQ(held(), (Cell{10, 2})) << "the number stays, not the line";
    EXPECT_EQ(shown(), (Cell{10, 2}));
    grid.setCurrent(900, 2);
    grid.setRows(4);
    EXPECT_EQ(held(), (Cell{3, 2}));
    EXPECT_EQ(shown(), (Cell{3, 2}));
}

TEST_F(GridViews, TextColumnsShareTheRoom)
{
    const auto width = [this] {
        int all = 0;
        for (int col = 0; col < 6; ++col) {
            all += view.columnWidth(col);
        }
        return all;
    };
    EXPECT_EQ(width(), view.viewport()->width());
    view.resize(1000, 400);
    EXPECT_EQ(width(), view.viewport()->width());
    EXPECT_EQ(view.columnWidth(1), 80);
    EXPECT_NEAR(view.columnWidth(3), view.columnWidth(5), 2);
    view.resize(200, 400);
    EXPECT_GE(view.columnWidth(4), 80);
}

TEST_F(GridViews, OnlyPlainTypingAsksForAnEdit)
{
    const QSignalSpy edits(&view, &GridView::editAsked);
    const QSignalSpy typings(&view, &GridView::typedOver);
    QTest::keyClick(&view, Qt::Key_F2);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(edits.count(), 2);
    QTest::keyClick(&view, Qt::Key_A);
    QTest::keyClick(&view, Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(typings.count(), 2);
    QTest::keyClick(&view, Qt::Key_Space);
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_Escape);
    QTest::keyClick(&view, Qt::Key_Tab);
    EXPECT_EQ(typings.count(), 2);
    EXPECT_EQ(edits.count(), 2);
}

} // namespace
} // namespace kavro::test
