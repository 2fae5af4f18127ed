#include "ui/grid_model.h"

#include "controls/form.h"
#include "ui/cell_colors.h"
#include "ui/theme.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QPalette>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class GridModels : public ::testing::Test
{
protected:
    GridModels()
    {
        grid.setText(0, 1, u"Start.Time"_s);
        for (int row = 1; row <= 3; ++row) {
            grid.setText(row, 0, QString::number(row));
            grid.setText(row, 3, u" line %1"_s.arg(row));
        }
    }

    QStringList numbers()
    {
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row) {
            all.append(model.index(row, 0).data().toString());
        }
        return all;
    }

    Form form{u"frmMain"_s};
    Grid grid{form, u"grdSubEdit"_s, 5, 6};
    GridModel model{grid, [](int row) { return row == 2 ? u"Overlap"_s : QString(); }};
};

TEST_F(GridModels, HeaderIsRowZeroAndRowsBeginBehindIt)
{
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"Start.Time"_s);
    EXPECT_EQ(numbers(), (QStringList{u"1"_s, u"2"_s, u"3"_s, QString()}));
    EXPECT_EQ(model.index(1, 3).data().toString(), u" line 2"_s);
    EXPECT_EQ(GridModel::rowOf(model.indexOf(3, 4)), 3);
    EXPECT_FALSE(model.indexOf(0, 1).isValid());
    EXPECT_FALSE(model.indexOf(5, 1).isValid());
    EXPECT_FALSE(model.flags(model.indexOf(1, 0)).testFlag(Qt::ItemIsEnabled))
        << "nobody steps into the fixed column";
}

TEST_F(GridModels, EachChangeIsToldOnceAndWhereItIs)
{
    const QSignalSpy data(&model, &QAbstractItemModel::dataChanged);
    const QSignalSpy header(&model, &QAbstractItemModel::headerDataChanged);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    grid.setText(2, 4, u"other"_s);
    ASSERT_EQ(data.count(), 1);
    EXPECT_EQ(data.at(0).at(0).toModelIndex(), model.index(1, 4));
    grid.setText(0, 3, u"Text #1"_s);
    EXPECT_EQ(header.count(), 1);
    grid.insertRow(2, {u"new"_s});
    EXPECT_EQ(numbers(), (QStringList{u"1"_s, u"new"_s, u"2"_s, u"3"_s, QString()}));
    grid.removeRow(1);
    EXPECT_EQ(numbers(), (QStringList{u"new"_s, u"2"_s, u"3"_s, QString()}));
    grid.setRows(2);
    EXPECT_EQ(numbers(), (QStringList{u"new"_s}));
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(removed.count(), 2);
    EXPECT_EQ(data.count(), 1);
}

TEST_F(GridModels, BulkEditIsOneChangeAndNoReset)
{
    const QSignalSpy data(&model, &QAbstractItemModel::dataChanged);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    {
        const Grid::Batch batch(grid);
        grid.setRows(1000);
        for (int row = 1; row < 1000; ++row) {
            grid.setText(row, 0, QString::number(row));
        }
        EXPECT_EQ(model.rowCount(), 4) << "views learn of it at the end";
    }
    EXPECT_EQ(model.rowCount(), 999);
    EXPECT_EQ(numbers().at(998), u"999"_s);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(data.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    grid.setAllRows({GridRow(6), {u"1"_s}});
    EXPECT_EQ(numbers(), QStringList{u"1"_s});
}

TEST_F(GridModels, FindingIsToldByWordsBesideItsColor)
{
    grid.setCellColor(2, 1, Color::fromBgr(0x0000FF));
    EXPECT_EQ(model.indexOf(2, 1).data(GridModel::CellColorRole).toUInt(), 0xFF0000U);
    EXPECT_FALSE(model.indexOf(1, 1).data(GridModel::CellColorRole).isValid());
    EXPECT_EQ(model.indexOf(2, 3).data(Qt::ToolTipRole).toString(), u"Overlap"_s);
    EXPECT_EQ(model.indexOf(2, 3).data(Qt::AccessibleTextRole).toString(), u"line 2; Overlap"_s);
    EXPECT_EQ(model.indexOf(1, 3).data(Qt::AccessibleTextRole).toString(), u"line 1"_s);
    EXPECT_EQ(model.indexOf(1, 3).data(Qt::ToolTipRole).toString(), QString());
}

TEST(CellColors, TextCanBeReadOnEveryColorInLightAndDark)
{
    const QPalette desktop = QApplication::palette();
    for (const QStringView theme : {u"light", u"dark"}) {
        applyTheme(theme);
        for (const QRgb color : {0x00FF00U, 0xFF0000U, 0xFFFF00U, 0x0000FFU, 0xFF00FFU, 0x00FFFFU,
                                 0x808080U, 0x000000U})
        {
            const CellColors colors = cellColors(color, QApplication::palette());
            EXPECT_GE(contrast(colors.text, colors.background), 4.5)
                << qPrintable(theme.toString()) << std::hex << color;
            EXPECT_NE(colors.background, QApplication::palette().color(QPalette::Base));
        }
    }
    QApplication::setPalette(desktop);
}

} // namespace
} // namespace kavro::test
