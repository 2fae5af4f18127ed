#include "tools/basic_edit.h"

#include "tests/tools/basic_edit_fixture.h"

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::BasicEditTest;

TEST_F(BasicEditTest, InsertTakesItsTimesFromTheLineAbove)
{
    const struct
    {
        int row;
        QStringView endAbove, start;
    } rows[] = {
        {1, u"", u"00:00:00,000"},
        {5, u"00:00:10,500", u"00:00:11,500"},
        {2, u"00:59:59,999", u"01:00:00,999"},
        {2, u"-1:59:59,500", u"00:00:00,500"},
        {2, u"", u"00:00:01,000"},
        {2, u"99:59:59,000", u"99:59:59,000"}, // no time lies behind
    };
    for (const auto &row : rows) {
        fillRows(5);
        grid.setText(row.row - 1, EndColumn, row.endAbove.toString());
        grid.setCurrent(row.row, EndColumn);
        editor.Command10.click();
        EXPECT_EQ(grid.text(row.row, StartColumn), row.start) << row.row;
        EXPECT_EQ(grid.text(row.row, EndColumn), u"00:00:00,000") << row.row;
        EXPECT_EQ(document.subtitleCount(), 6);
        EXPECT_EQ(trace.lastActionCode, 501);
        EXPECT_TRUE(document.fileChanged());
        EXPECT_FALSE(document.subtitleChanged);
    }
    EXPECT_EQ(history.List1.count(), 0); // an insert isn't logged
    EXPECT_EQ(scan.runs, 0);
}

TEST_F(BasicEditTest, InsertLeavesTheThirdTextsInTheirRows)
{
    fill({u"00:00:01,000|00:00:02,000| a|aa|A"_s, u"00:00:03,000|00:00:04,000| b|bb|B"_s,
          u"00:00:05,000|00:00:06,000| c|cc"_s});
    grid.setCurrent(2, FirstTextColumn);
    editor.Command10.click();
    EXPECT_EQ(rows(), "00:00:01,000 00:00:02,000| a|aa|A\n"
                      "00:00:03,000 00:00:00,000|||B\n"
                      "00:00:03,000 00:00:04,000| b|bb\n"
                      "00:00:05,000 00:00:06,000| c|cc");
    EXPECT_EQ(texts(NumberColumn), "{ 1|2|3|4 }|");
    EXPECT_EQ(editor.Label23[2].text(), u"B"_s); // the new row is shown
    EXPECT_EQ(grid.row(), 2);
}

TEST_F(BasicEditTest, InsertMovesFontsAndFindings)
{
    fillRows(3);
    editor.lstFont.setItems({u""_s, u"font 1"_s, u"font 2"_s, u"font 3"_s, u"end row"_s});
    fonts.Combo9[0].setSelected(1);
    fonts.Combo9[1].setSelected(2);
    document.setRowErrorText(1, u"one"_s);
    document.setRowErrorText(3, u"three"_s);
    document.errorCount = 2;
    grid.setRow(2);
    editor.Command10.click();
    EXPECT_EQ(editor.lstFont.items(), (QStringList{u""_s, u"font 1"_s, u"Verdana;Western;Italic"_s,
                                                   u"font 2"_s, u"font 3"_s, u""_s}))
        << "the end row is a new one";
    // The row's own finding is the copy of the one above, till the scan.
    EXPECT_EQ(document.rowErrors(), (QStringList{u""_s, u"one"_s, u"one"_s, u""_s, u"three"_s}));
    EXPECT_EQ(scan.runs, 1);
}

TEST_F(BasicEditTest, InsertMovesNodes)
{
    const struct
    {
        int row;
        const char *nodes, *numbers;
    } rows[] = {
        {1, "1-5 1-3 4-5", "{ 1|2|3 }|{ 4|5 }|"},
        {2, "1-5 1-3 4-5", "{ 1|2|3 }|{ 4|5 }|"}, // at the last row: stays in its node
        {3, "1-5 1-2 3-5", "{ 1|2 }|{ 3|4|5 }|"}, // at the first row of the second: first grows not
        {4, "1-5 1-2 3-5", "{ 1|2 }|{ 3|4|5 }|"},
    };
    for (const auto &row : rows) {
        fillRows(4);
        setNodes({{1, 2}, {3, 4}});
        grid.setTopRow(2);
        grid.setRow(row.row);
        editor.Command10.click();
        EXPECT_EQ(nodes(), row.nodes) << row.row;
        EXPECT_EQ(texts(NumberColumn), row.numbers) << row.row;
        EXPECT_EQ(grid.coloredCells().size(), 4) << row.row << ": " << colours();
        EXPECT_EQ(grid.topRow(), 2) << row.row;
    }
}

TEST_F(BasicEditTest, InsertOutsideTheSubtitlesDoesNothing)
{
    fillRows(2);
    for (const int row : {0, 3}) {
        grid.setRow(row);
        editor.Command10.click();
        EXPECT_EQ(document.subtitleCount(), 2);
        EXPECT_EQ(trace.lastActionCode, -1);
        EXPECT_FALSE(document.fileChanged());
    }
}

TEST_F(BasicEditTest, InsertStopsAtTheLimit)
{
    fillRows(9998);
    grid.setRow(5000);
    editor.Command10.click();
    EXPECT_EQ(takeMessages(), "");
    const std::string before = rows();
    document.setFileChanged(false);
    trace.RecordAction({}, -1);
    editor.Command10.click();
    EXPECT_EQ(takeMessages(),
              "Insert: A subtitle can't have more than 9999 lines. No line was inserted.");
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(editor.lstFont.count(), 10000);
    EXPECT_FALSE(document.fileChanged());
    // Showing the message is an action of its own; an insert is none.
    EXPECT_NE(trace.lastActionCode, 501);
}

TEST_F(BasicEditTest, DeleteMovesUpWhatStandsBelow)
{
    const struct
    {
        int row;
        const char *texts, *fonts;
    } rows[] = {
        {1, "2|3|4|", "f2 f3 f4"},
        {2, "1|3|4|", "f1 f3 f4"},
        {3, "1|2|4|", "f1 f2 f4"},
        {4, "1|2|3|", "f1 f2 f3"},
    };
    int line = 0;
    for (const auto &row : rows) {
        fillRows(4);
        editor.lstFont.setItems({u""_s, u"f1"_s, u"f2"_s, u"f3"_s, u"f4"_s});
        grid.setRow(row.row);
        editor.Command11.click();
        EXPECT_EQ(texts(), row.texts);
        EXPECT_EQ(texts(NumberColumn), "{ 1|2|3 }|") << row.row << ": numbers stay in their rows";
        EXPECT_EQ(nodes(), "1-3 1-3") << row.row;
        EXPECT_EQ(editor.lstFont.items().join(u' ').trimmed().toStdString(), row.fonts);
        EXPECT_EQ(times.Text1[1].text(), u"3");
        EXPECT_EQ(times.Text1[3].text(), u"3");
        EXPECT_EQ(
            history.List1.item(line),
            u"%1 [2024-03-01,12:30:15] Row %2 deleted"_s.arg(line, 4, 10, '0'_L1).arg(row.row));
        EXPECT_EQ(
            history.List2.item(line++),
            u"[Cel %1,1:=00:00:01,000] [Cel %1,2:=00:00:02,000] [Cel %1,3:= %1]"_s.arg(row.row));
        EXPECT_EQ(trace.lastActionCode, 502);
        EXPECT_TRUE(document.fileChanged());
        EXPECT_FALSE(document.subtitleChanged);
        EXPECT_EQ(grid.row(), row.row);
    }
}

TEST_F(BasicEditTest, DeleteOfTheOnlyLineLeavesTheEndRow)
{
    fillRows(1);
    editor.Command11.click();
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(texts(NumberColumn), "");
    EXPECT_EQ(colours(), "");
}

TEST_F(BasicEditTest, DeleteOnTheEndRowIsOnlyLogged)
{
    fillRows(2);
    document.errorCount = 1;
    grid.setRow(3);
    editor.Command11.click();
    EXPECT_EQ(history.List1.count(), 1);
    EXPECT_EQ(history.List2.item(0), QString());
    EXPECT_TRUE(history.List1.item(0).endsWith(u"Row 3 deleted"));
    EXPECT_EQ(texts(), "1|2|");
    EXPECT_EQ(trace.lastActionCode, -1);
    EXPECT_EQ(scan.runs, 0);
    EXPECT_FALSE(document.fileChanged());
}

TEST_F(BasicEditTest, DeleteMovesNodesFromTheTopRowOn)
{
    const struct
    {
        int top, row;
        const char *nodes, *numbers;
    } rows[] = {
        // both nodes, though the row lies in the second
        {1, 4, "1-5 1-1 2-5", "{ 1 }|{ 2|3|4|5 }|"},
        {3, 4, "1-5 1-2 2-5", "{ 1|{ 2|3|4|5 }|"},   // the first lies above the window
        {4, 5, "1-5 1-2 3-5", "{ 1|2 }|{ 3|4|5 }|"}, // of the second only its end
        {2, 1, "1-5 1-1 2-5", "{ 1 }|{ 2|3|4|5 }|"},
    };
    for (const auto &row : rows) {
        fillRows(6);
        setNodes({{1, 2}, {3, 6}});
        grid.setTopRow(row.top);
        grid.setRow(row.row);
        editor.Command11.click();
        EXPECT_EQ(nodes(), row.nodes) << row.top << ' ' << row.row;
        EXPECT_EQ(grid.topRow(), row.top);
        EXPECT_EQ(texts(NumberColumn), row.numbers) << row.top << ' ' << row.row;
    }
}

TEST_F(BasicEditTest, DeleteTakesFindingsAlongAndScans)
{
    fillRows(4);
    const Color finding = Color::fromBgr(0x00FFFF);
    for (const int row : {2, 4}) {
        document.setRowErrorText(row, u"at %1"_s.arg(row));
        grid.setCellColor(row, LastTextColumn, finding);
    }
    document.errorCount = 2;
    grid.setRow(3);
    editor.Command11.click();
    EXPECT_EQ(document.rowErrors(), (QStringList{u""_s, u""_s, u"at 2"_s, u"at 4"_s}));
    // Colours don't move: those of the rows that moved went, the scan paints them anew.
    EXPECT_EQ(colours(), "1,1=00FF00 2,5=FFFF00 3,2=FF0000");
    EXPECT_EQ(scan.runs, 1);
}

TEST_F(BasicEditTest, DeletesWithinAScanEndInTheirTurn)
{
    fillRows(5);
    document.errorCount = 1;
    grid.setTopRow(2);
    grid.setRow(2);
    scan.during = [this] {
        scan.during = nullptr;
        grid.setTopRow(1);
        grid.setRow(4);
        EXPECT_TRUE(basicEdit.beginDelete());
        grid.setRow(4); // the end row
        EXPECT_FALSE(basicEdit.beginDelete());
        basicEdit.endDelete();
        basicEdit.endDelete();
        EXPECT_EQ(grid.topRow(), 1);
    };
    editor.Command11.click();
    EXPECT_EQ(texts(), "1|3|4|");
    EXPECT_EQ(grid.topRow(), 2);
    EXPECT_EQ(history.List1.count(), 3);
}

TEST_F(BasicEditTest, EachActPaintsTheGridOnce)
{
    fillRows(100);
    grid.setRow(50);
    int painted = 0;
    QObject context;
    QObject::connect(&grid, &Grid::cellChanged, &context, [&] { ++painted; });
    QObject::connect(&grid, &Grid::reset, &context, [&] { ++painted; });
    for (Button *button : {&editor.Command10, &editor.Command11}) {
        painted = 0;
        button->click();
        EXPECT_LE(painted, 2) << button->name().toStdString(); // the end row's number is one
    }
}

TEST_F(BasicEditTest, ChangeWritesTheEditBoxIntoTheCell)
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

TEST_F(BasicEditTest, ChangeLeavesEndRowAndHeader)
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

TEST_F(BasicEditTest, ChangeLogsTheStateBefore)
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
