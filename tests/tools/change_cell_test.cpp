// Change and the edit box of the Basic page.

#include "tests/tools/basic_edit_fixture.h"

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class ChangeCell : public test::BasicEditTest
{};

TEST_F(ChangeCell, ChangeWritesTheEditBoxIntoTheCell)
{
    fillTwo();
    const struct
    {
        int row, col;
        QStringView typed, cell;
    } rows[] = {
        {1, 3, u"  abc ", u"abc "}, // a text ends with a blank
        {1, 4, u"new line", u"new line "},
        {1, 5, u"", u" "},
        {2, 1, u" 00:00:05,000 ", u"00:00:05,000"},
        {2, 2, u"no time", u"no time"}, // a time isn't checked
    };
    for (const auto &row : rows) {
        document.setFileChanged(false);
        document.subtitleChanged = true;
        grid.setCurrent(row.row, row.col);
        editor.rtfSubEditBasic.type(row.typed.toString());
        editor.Command14.click();
        const std::string name = row.typed.toString().toStdString();
        EXPECT_EQ(grid.text(row.row, row.col), row.cell.toString()) << name;
        EXPECT_TRUE(document.fileChanged()) << name;
        EXPECT_FALSE(document.subtitleChanged) << name;
        EXPECT_EQ(trace.lastActionCode, 504) << name;
        EXPECT_EQ(trace.lastActionText, QString()) << name;
    }
    EXPECT_EQ(times.rtfTimeStart.text(), u"00:00:05,000"_s); // the row is shown anew
    grid.setRow(1);
    EXPECT_EQ(editor.Label23[0].text(), u"abc "_s);
}

TEST_F(ChangeCell, ChangeLeavesEndRowAndHeader)
{
    fillTwo();
    for (const int row : {0, 3}) {
        grid.setCurrent(row, 3);
        const QString before = grid.text(row, 3);
        editor.rtfSubEditBasic.type(u"lost"_s);
        editor.Command14.click();
        EXPECT_EQ(grid.text(row, 3), before) << row;
        EXPECT_EQ(trace.lastActionCode, 504) << row; // the press is recorded all the same
    }
    EXPECT_FALSE(document.fileChanged());
    EXPECT_TRUE(document.subtitleChanged);
    EXPECT_EQ(history.List1.count(), 2); // and logged
}

TEST_F(ChangeCell, ChangeLogsTheStateBefore)
{
    fillTwo();
    grid.setText(2, 5, u"x"_s);
    grid.setCurrent(2, 4);
    editor.rtfSubEditBasic.type(u"new"_s);
    editor.Command14.click();
    EXPECT_EQ(history.List1.item(0), u"0000 [2024-03-01,12:30:15] Cel 4, 2 changed"_s);
    EXPECT_EQ(history.List2.item(0), u"[Cel 1,2:=00:00:03,000] [Cel 2,2:=00:00:04,000] "
                                     "[Cel 3,2:= other] [Cel 5,2:=x]"_s);
}

} // namespace
} // namespace kavro
