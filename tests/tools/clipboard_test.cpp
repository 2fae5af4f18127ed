#include "tools/clipboard.h"

#include "core/main_tabs.h"
#include "tests/tools/tool_test.h"
#include "tools/clip_item.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(ClipItem, IsTakenApartLeniently)
{
    const struct
    {
        QString item, name, fields, time;
    } rows[] = {
        {u"Added by player  3>00:00:09,700"_s, u"Added by player  3"_s, u"00|00|09|700"_s,
         u"00:00:09.700"_s},
        {u"C:\\films\\one.avi>01:02:03,004"_s, u"one.avi"_s, u"01|02|03|004"_s, u"01:02:03.004"_s},
        {u"/films/one.avi>01:02:03,004"_s, u"one.avi"_s, u"01|02|03|004"_s, u"01:02:03.004"_s},
        {u"folder\\>1:2:3,4"_s, u""_s, u"1|2|3|4"_s, u"1:2:3.4"_s},
        {u">1:2:3,4"_s, u"Not defined"_s, u"1|2|3|4"_s, u"1:2:3.4"_s},
        {u"no mark 1:2:3,4"_s, u"Not defined"_s, u"|||"_s, u"::."_s},
        {u""_s, u"Not defined"_s, u"|||"_s, u"::."_s},
        {u"Editor.Text: 5>Hello, you"_s, u"Editor.Text: 5"_s, u"Hello, you|||"_s,
         u"Hello, you::."_s},
        {u"a>b>1:2:3,4,5:6"_s, u"a"_s, u"b>1|2|3|4,5:6"_s, u"b>1:2:3.4,5:6"_s},
        {u"n>-1:00:00,000"_s, u"n"_s, u"-1|00|00|000"_s, u"-1:00:00.000"_s},
    };
    for (const auto &row : rows) {
        const ClipItem item(row.item);
        EXPECT_EQ(item.name, row.name) << row.item.toStdString();
        EXPECT_EQ(QStringList({item.hours, item.minutes, item.seconds, item.fraction}).join(u'|'),
                  row.fields);
        EXPECT_EQ(item.time(u'.'), row.time);
    }
}

class ClipboardTest : public ToolTest
{
protected:
    ClipboardTest() { fill({u"00:00:01,000|00:00:02,000| text "_s}); }

    /// "1" for each of the five buttons that is enabled, else "0".
    [[nodiscard]] std::string enabled() const
    {
        std::string states;
        for (const Button &button : panel.command4) {
            states += button.isEnabled() ? '1' : '0';
        }
        return states;
    }

    /// What a copy writes to.
    [[nodiscard]] QStringList targets()
    {
        return {run->shift.rtfShiftDuration.text(), run->times.rtfStretchFirst.text(),
                run->times.rtfStretchLast.text(),   run->times.rtfTimeStart.text(),
                run->times.rtfTimeEnd.text(),       run->partition.grid.text(1, 2)};
    }

    ClipboardPanel &panel = run.program().clipboard;
    Clipboard &tool = run.program().clips;
};

TEST_F(ClipboardTest, ACopyGoesWhereThePagesSay)
{
    const struct
    {
        int tab, timing, button;
        int target; ///< number in `targets`, -1 for none
        int code;   ///< -1 for none
    } rows[] = {
        {EditorTab, 0, 0, 0, 1004},  {EditorTab, 0, 1, 0, 1004},    {EditorTab, 1, 0, 1, 1005},
        {EditorTab, 1, 1, 2, 1006},  {EditorTab, 2, 0, 3, 1007},    {EditorTab, 2, 1, 4, 1008},
        {EditorTab, 3, 0, -1, -1},   {PlayerTab, 0, 0, 0, 1004},    {PlayerTab, 1, 1, 2, 1006},
        {PlayerTab, 2, 0, 3, 1007},  {PartitionTab, 1, 0, 5, 1003}, {PartitionTab, 2, 1, 5, 1003},
        {DiagnoseTab, 0, 0, -1, -1}, {MacroTab, 1, 1, -1, -1},      {OnlineTab, 2, 0, -1, -1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message()
                     << "tab " << row.tab << ", " << row.timing << ", button " << row.button);
        run->partition.grid.setAllRows({GridRow(3), GridRow(3)});
        for (TextBox *field :
             {&run->shift.rtfShiftDuration, &run->times.rtfStretchFirst, &run->times.rtfStretchLast,
              &run->times.rtfTimeStart, &run->times.rtfTimeEnd})
        {
            field->setText({});
        }
        panel.add(u"name>01:02:03,456"_s);
        run->navigation.tabMain.setTab(row.tab);
        run->editor.SSTab3.setTab(row.timing);
        clearFlags();
        panel.command4[row.button].click();
        QStringList expected(6);
        if (row.target >= 0) {
            expected[row.target] = row.target == 5 ? u"01:02:03.456"_s : u"01:02:03,456"_s;
        }
        EXPECT_EQ(targets(), expected);
        EXPECT_EQ(run->trace.lastActionCode, row.code);
        EXPECT_FALSE(document.fileChanged());
    }
}

TEST_F(ClipboardTest, AnItemGoesToThePartsAsARow)
{
    Grid &parts = run->partition.grid;
    const auto removable = [this] {
        return run.control<Button>(u"command6").isEnabled()
               && run.control<Label>(u"Label66").isEnabled();
    };
    EXPECT_FALSE(removable());
    run->navigation.tabMain.setTab(PartitionTab);
    panel.add(u"C:\\films\\first.avi>00:50:00,000"_s);
    panel.command4[0].click();
    EXPECT_TRUE(removable());
    panel.List1.setSelected(-1);
    panel.command4[0].click();
    ASSERT_EQ(parts.rows(), 4);
    EXPECT_EQ(parts.allRows().at(1), (GridRow{u"1"_s, u"first.avi"_s, u"00:50:00.000"_s}));
    EXPECT_EQ(parts.allRows().at(2), (GridRow{u"2"_s, u"Not defined"_s, u"::."_s}));
    EXPECT_EQ(parts.allRows().at(3), GridRow(3));
}

TEST_F(ClipboardTest, TheCalculatorTakesWhatItsPageShows)
{
    QStringList taken;
    tool.copyToCel = [&](const ClipItem &item) { taken.append(u"cel "_s + item.time(u'.')); };
    tool.copyToClassic = [&](const ClipItem &item, int side) {
        taken.append(QString::number(side) + u' ' + item.hours + u' ' + item.fraction);
    };
    panel.add(u"n>01:02:03,456"_s);
    run->navigation.tabMain.setTab(CalculatorTab);
    const struct
    {
        int page, button, code;
        QString taken;
    } rows[] = {
        {0, 0, -1, u"cel 01:02:03.456"_s},
        {0, 1, -1, u"cel 01:02:03.456"_s},
        {1, 0, 1001, u"0 01 456"_s},
        {1, 1, 1002, u"1 01 456"_s},
    };
    for (const auto &row : rows) {
        run->navigation.tabCalculator.setTab(row.page);
        clearFlags();
        panel.command4[row.button].click();
        EXPECT_EQ(taken, QStringList{row.taken});
        EXPECT_EQ(run->trace.lastActionCode, row.code);
        taken.clear();
    }
}

TEST_F(ClipboardTest, ChangeWritesTheFieldIntoTheItem)
{
    panel.add(u"a"_s);
    panel.add(u"b"_s);
    panel.List1.pick(0);
    EXPECT_EQ(tool.rtfClipBoard.text(), u"a"_s);
    tool.rtfClipBoard.type(u"c"_s);
    clearFlags();
    panel.command4[2].click();
    EXPECT_EQ(panel.List1.items(), (QStringList{u"c"_s, u"b"_s}));
    EXPECT_EQ(panel.List1.selected(), 0);
    EXPECT_EQ(run->trace.lastActionCode, -1);
    tool.rtfClipBoard.type(u"typed"_s);
    panel.List1.pick(0); // a second click on the item brings its text back
    EXPECT_EQ(tool.rtfClipBoard.text(), u"c"_s);
}

TEST_F(ClipboardTest, DeleteAndClearEndWithTheButtonsOff)
{
    panel.add(u"a"_s);
    panel.add(u"b"_s);
    panel.command4[3].click();
    EXPECT_EQ(panel.List1.items(), QStringList{u"a"_s});
    EXPECT_EQ(tool.rtfClipBoard.text(), QString());
    EXPECT_EQ(run->trace.lastActionCode, 1009);
    EXPECT_EQ(enabled(), "11111");
    panel.List1.pick(0);
    panel.command4[3].click();
    EXPECT_EQ(panel.List1.count(), 0);
    EXPECT_EQ(enabled(), "00000");

    panel.add(u"c"_s);
    panel.command4[4].click();
    EXPECT_EQ(panel.List1.count(), 0);
    EXPECT_EQ(run->trace.lastActionCode, 1010);
    EXPECT_EQ(enabled(), "00000");
}

TEST_F(ClipboardTest, FocusSelectsTheWholeField)
{
    panel.add(u"item"_s);
    tool.rtfClipBoard.setFocus();
    EXPECT_EQ(tool.rtfClipBoard.selLength(), 4);
}

} // namespace
} // namespace kavro::test
