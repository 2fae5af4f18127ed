#include "tests/tools/tool_test.h"

#include <QFile>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class SearchReplaceTest : public ToolTest
{
protected:
    void search(const QString &what)
    {
        tool.rtfSearch.type(what);
        tool.cmdSearch.click();
    }

    void replace(const QString &what, const QString &with)
    {
        tool.rtfReplace.type(with);
        tool.Option1[1].click();
        search(what);
    }

    [[nodiscard]] QString told() { return run->status.StatusBar1.panel(3); }

    SearchReplace &tool = run.program().searchReplace;
};

TEST_F(SearchReplaceTest, SearchStopsAtTheFirstCellFromTheSearchIndexOn)
{
    const struct
    {
        const char *name;
        QString what;
        int index;
        const char *cell;
        int nextIndex;
    } rows[] = {
        {"first cell of the row that has it", u"one"_s, 1, "1,3", 2},
        {"before the first click", u"one"_s, 0, "1,3", 2},
        {"the header is no line", u"text"_s, 0, "2,5", 3},
        {"from the index on", u"one"_s, 2, "3,4", 4},
        {"any case, on both sides", u"ONE"_s, 1, "1,3", 2},
        {"a time", u"09,7"_s, 1, "2,2", 3},
        {"not the line's number", u"3"_s, 1, "3,1", 4},
        {"an empty text is everywhere", u""_s, 2, "2,1", 3},
        {"blanks count", u"one "_s, 1, "1,3", 2},
        {"nothing further", u"one"_s, 4, "1,5", 4},
        {"behind the last line", u""_s, 4, "1,5", 4},
        {"the end row is no line", u"none"_s, 1, "1,5", 1},
        {"letters of two units ahead", u"end"_s, 1, "3,5", 4},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        fill({u"00:00:01,000|00:00:02,000| One two|one "_s, u"00:00:04,000|00:00:09,700|||Text "_s,
              u"00:00:03,000|00:00:14,000| two|Someone |\U00010400\u0130 end"_s});
        grid.setCurrent(1, 5);
        document.searchIndex = row.index;
        search(row.what);
        EXPECT_EQ(current(), row.cell);
        EXPECT_EQ(document.searchIndex, row.nextIndex);
        EXPECT_EQ(run->trace.lastActionCode, 508);
        EXPECT_FALSE(document.fileChanged());
        EXPECT_TRUE(document.subtitleChanged);
        EXPECT_EQ(lastHistory(), QString());
    }
}

TEST_F(SearchReplaceTest, AFoundRowComesToTheTopAndIsShown)
{
    QStringList lines(40, u"00:00:01,000|00:00:02,000| none"_s);
    lines[29] = u"00:01:01,000|00:01:02,000| here "_s;
    fill(lines);
    search(u"here"_s);
    EXPECT_EQ(grid.topRow(), 30);
    EXPECT_EQ(document.curRow, 30);
    EXPECT_EQ(run->times.rtfTimeStart.text(), u"00:01:01,000"_s);
}

TEST_F(SearchReplaceTest, ReplaceTakesTheFirstPlaceOfEachCellFromTheSearchIndexOn)
{
    const struct
    {
        const char *name;
        QString what, with;
        int index;
        QStringList cells;
        bool changed = true;
    } rows[] = {
        {"first place of a cell alone", u"a"_s, u"o"_s, 1, {u"1|2| obA a|o"_s, u"3|4| o"_s}},
        {"before the first click", u"a"_s, u"o"_s, 0, {u"1|2| obA a|o"_s, u"3|4| o"_s}},
        {"from the index on", u"A"_s, u"o"_s, 2, {u"1|2| abA a|a"_s, u"3|4| o"_s}},
        {"not looked through again", u"a"_s, u"xaa"_s, 2, {u"1|2| abA a|a"_s, u"3|4| xaa"_s}},
        {"times too", u"3"_s, u"7"_s, 1, {u"1|2| abA a|a"_s, u"7|4| A"_s}},
        {"by nothing", u"ba a"_s, u""_s, 1, {u"1|2| a|a"_s, u"3|4| A"_s}},
        {"an empty text", u""_s, u"+"_s, 2, {u"1|2| abA a|a"_s, u"+3|+4|+ A|+|+"_s}},
        {"nothing there", u"q"_s, u"x"_s, 1, {u"1|2| abA a|a"_s, u"3|4| A"_s}, false},
        {"behind the last line", u"a"_s, u"x"_s, 3, {u"1|2| abA a|a"_s, u"3|4| A"_s}, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        fill({u"1|2| abA a|a"_s, u"3|4| A"_s});
        document.searchIndex = row.index;
        replace(row.what, row.with);
        EXPECT_EQ(cells(), row.cells);
        EXPECT_EQ(document.fileChanged(), row.changed);
        EXPECT_EQ(document.subtitleChanged, !row.changed);
        EXPECT_EQ(document.searchIndex, row.index);
        EXPECT_EQ(run->trace.lastActionCode, 508);
        EXPECT_EQ(lastHistory(),
                  u"Replace: [Original: "_s + row.what + u"] [To: "_s + row.with + u']');
        EXPECT_EQ(grid.text(0, EndColumn), u"End"_s);
        EXPECT_EQ(grid.allRows().constLast(), GridRow(ColumnCount));
    }
}

TEST_F(SearchReplaceTest, PositionsAreThoseOfTheCellItself)
{
    const struct
    {
        QString cell, what, with, result;
    } rows[] = {
        {u"\u0130stanbul is"_s, u"is"_s, u"was"_s, u"wastanbul is"_s},
        {u"\u0130\u0130\u0130 end"_s, u"END"_s, u"x"_s, u"\u0130\u0130\u0130 x"_s},
        {u"\U00010400\U00010401b"_s, u"\U00010429"_s, u"x"_s, u"\U00010400xb"_s},
        {u"\u00C4\u03A3\u03C2"_s, u"\u03C3"_s, u"x"_s, u"\u00C4x\u03C2"_s},
        {u"stra\u00DFe"_s, u"SS"_s, u"x"_s, u"stra\u00DFe"_s},
    };
    for (const auto &row : rows) {
        fill({u"1|2|"_s + row.cell});
        replace(row.what, row.with);
        EXPECT_EQ(grid.text(1, FirstTextColumn), row.result);
    }
}

TEST_F(SearchReplaceTest, ReplaceIsPaintedOnceAndShown)
{
    fill({u"1|2|aaa|a|a"_s, u"1|2|a|a|a"_s});
    Repaints view(grid);
    replace(u"a"_s, u"b"_s);
    EXPECT_EQ(view.painted, 1);
    EXPECT_EQ(document.editor.Label23[0].text(), u"baa"_s);
    EXPECT_EQ(document.editor.rtfSubEditBasic.text(), u"baa"_s);
}

TEST_F(SearchReplaceTest, ATypedReplacementChoosesTheMode)
{
    const auto mode = [this] { return tool.Option1[0].isOn() ? 0 : 1; };
    EXPECT_EQ(mode(), 0);
    tool.rtfReplace.type(u"x"_s);
    EXPECT_EQ(mode(), 1);
    tool.Option1[0].click();
    EXPECT_EQ(run->trace.lastActionCode, 509);
    tool.rtfReplace.type(u"x"_s); // what stood there chooses nothing
    EXPECT_EQ(mode(), 0);
    tool.rtfReplace.type(u"xy"_s);
    EXPECT_EQ(mode(), 1);
    tool.rtfReplace.type({});
    EXPECT_EQ(mode(), 0);
    tool.Option1[1].click();
    EXPECT_EQ(run->trace.lastActionCode, 510);
    EXPECT_EQ(mode(), 1);
}

TEST_F(SearchReplaceTest, ASearchIsStoredAtItsEnd)
{
    fill({u"1|2|a"_s, u"3|4|a"_s});
    search(u"a"_s);
    search(u"a"_s);
    EXPECT_EQ(tool.List4.items(), QStringList());
    search(u"a"_s);
    EXPECT_EQ(tool.List4.items(), QStringList{u"a"_s});
    search(u"a"_s); // stands already
    search(u"  b "_s);
    search(u"  "_s);
    replace(u"a"_s, u" c "_s);
    replace(u"a"_s, u" c "_s);
    search(u"A"_s);
    EXPECT_EQ(tool.List4.items(), (QStringList{u"a"_s, u"b"_s, u"a> c "_s, u"A> c "_s}));
    replace(u" "_s, u"d"_s);
    EXPECT_EQ(tool.List4.count(), 4);
}

TEST_F(SearchReplaceTest, AStoredSearchComesBack)
{
    const struct
    {
        QString item, what, with;
        int mode;
    } rows[] = {
        {u"a"_s, u"a"_s, {}, 0},  {u"a>b"_s, u"a"_s, u"b"_s, 1}, {u"a>b>c"_s, u"a"_s, u"b>c"_s, 1},
        {u"a>"_s, u"a"_s, {}, 1}, {u">b"_s, {}, u"b"_s, 1},
    };
    Label &toggle = *tool.List4.toggle();
    EXPECT_EQ(toggle.name(), u"Label47"_s);
    for (const auto &row : rows) {
        for (const auto &[before, mode] : {std::pair(u""_s, 0), std::pair(u"old"_s, 1)}) {
            tool.List4.setItems({row.item});
            tool.rtfReplace.setText(before);
            tool.Option1[mode].setOn();
            toggle.click();
            EXPECT_EQ(toggle.caption(), u"<<"_s);
            tool.List4.pick(0);
            EXPECT_EQ(toggle.caption(), u">>"_s);
            EXPECT_FALSE(tool.List4.isEnabled());
            EXPECT_EQ(tool.rtfSearch.text(), row.what);
            EXPECT_EQ(tool.rtfReplace.text(), row.with);
            EXPECT_TRUE(tool.Option1[row.mode].isOn()) << row.item.toStdString();
        }
    }
}

TEST_F(SearchReplaceTest, TheStatusBarTellsWhenNothingIsFound)
{
    fill({u"1|2|a"_s});
    search(u"a"_s);
    EXPECT_EQ(told(), u"Ready"_s);
    search(u"a"_s);
    EXPECT_EQ(told(), u"Not found: a"_s);
    document.searchIndex = 1;
    tool.cmdSearch.click();
    EXPECT_EQ(told(), u"Ready"_s);
    search(u"%1"_s);
    EXPECT_EQ(told(), u"Not found: %1"_s);
    tool.rtfSearch.type(u"%"_s);
    EXPECT_EQ(told(), u"Ready"_s);
    replace(u"q"_s, u"x"_s);
    EXPECT_EQ(told(), u"Not found: q"_s);
    document.startNew();
    EXPECT_EQ(told(), u"Ready"_s) << "what isn't in one document may be in the next";
    fill({u"1|2|a"_s});
    replace(u"q"_s, u"x"_s);
    run->status.StatusBar1.setPanel(3, u"of others"_s);
    document.searchIndex = 1;
    replace(u"a"_s, u"x"_s);
    EXPECT_EQ(told(), u"of others"_s);
}

TEST_F(SearchReplaceTest, SearchAgainGoesOnAndNeverReplaces)
{
    Button &again = run->menu.mnuSearchAgain;
    fill({u"1|2|a"_s, u"3|4|b"_s, u"5|6|a"_s});
    run->navigation.tabMain.setTab(DiagnoseTab);
    again.click();
    EXPECT_EQ(run->navigation.tabMain.tab(), EditorTab);
    EXPECT_EQ(document.editor.SSTab2.tab(), SearchPage);
    EXPECT_TRUE(tool.rtfSearch.hasFocus());
    EXPECT_EQ(run->trace.lastActionCode, -1);

    tool.rtfSearch.type(u"a"_s);
    run->menu.mnuReplace.click();
    EXPECT_TRUE(tool.rtfReplace.hasFocus()) << "there is something to replace";
    run->menu.mnuSearch.click();
    EXPECT_TRUE(tool.rtfSearch.hasFocus());
    again.click();
    EXPECT_EQ(current(), "1,3");
    EXPECT_EQ(run->trace.lastActionCode, 508);
    tool.rtfReplace.type(u"x"_s);
    clearFlags();
    again.click();
    EXPECT_EQ(current(), "3,3");
    again.click();
    EXPECT_EQ(told(), u"Not found: a"_s);
    EXPECT_EQ(cells(), (QStringList{u"1|2|a"_s, u"3|4|b"_s, u"5|6|a"_s}));
    EXPECT_EQ(run->trace.lastActionCode, -1);
    EXPECT_FALSE(document.fileChanged());
}

TEST_F(SearchReplaceTest, MatchesAreCountedWhenTheTypingIsOver)
{
    const std::pair<std::function<void()>, QString> changes[] = {
        {[this] { tool.rtfSearch.type(u"a"_s); }, u"Matches: 2"_s}, // cells, as Replace takes them
        {[this] { replace(u"a"_s, u"b"_s); }, u"Matches: 1"_s},
        {[this] {
             grid.insertRow(1, {{}, {}, {}, u"a"_s});
         },
         u"Matches: 2"_s},
        {[this] { grid.removeRow(1); }, u"Matches: 1"_s},
        {[this] { grid.setText(2, LastTextColumn, u"a"_s); }, u"Matches: 2"_s},
        {[this] { tool.rtfSearch.type(u"q"_s); }, u"Matches: 0"_s},
    };
    fill({u"1|2|a A|a"_s, u"3|4|b"_s});
    for (const auto &[change, told] : changes) {
        EXPECT_FALSE(tool.timMatches.isOn());
        change();
        EXPECT_TRUE(tool.timMatches.isOn());
        tool.timMatches.fire();
        EXPECT_EQ(tool.lblMatches.caption(), told);
    }
    tool.rtfSearch.type({});
    EXPECT_EQ(tool.lblMatches.caption(), QString());
    EXPECT_FALSE(tool.timMatches.isOn());
}

TEST(StoredSearches, ComeBackAtTheNextStart)
{
    TestProgram run;
    run.writeApp(u"System/sr.sdf"_s, u"a>b\n\n caf\u00e9\nlast"_s);
    run.start();
    DropList &list = run->searchReplace.List4;
    EXPECT_EQ(list.items(), (QStringList{u"a>b"_s, u" caf\u00e9"_s, u"last"_s}));
    list.setSelected(2);
    run->searchReplace.Command2.click();
    run->searchReplace.rtfSearch.type(u"new"_s);
    run->searchReplace.cmdSearch.click();
    EXPECT_TRUE(run->exit());
    EXPECT_EQ(TestProgram::read(run.appPath(u"System/sr.sdf"_s)), u"a>b\n caf\u00e9\nnew\n"_s);
    run.restart();
    run.start();
    EXPECT_EQ(run->searchReplace.List4.items(), (QStringList{u"a>b"_s, u" caf\u00e9"_s, u"new"_s}));
}

TEST(StoredSearches, AnExitWithoutAChangeLeavesThoseOfAnotherProgram)
{
    TestProgram run;
    run.writeApp(u"System/sr.sdf"_s, u"mine\n"_s);
    run.start();
    run.writeApp(u"System/sr.sdf"_s, u"its own\n"_s);
    EXPECT_TRUE(run->exit());
    EXPECT_EQ(TestProgram::read(run.appPath(u"System/sr.sdf"_s)), u"its own\n"_s);

    TestProgram empty;
    empty.start();
    QFile::remove(empty.appPath(u"System/sr.sdf"_s));
    EXPECT_TRUE(empty->exit());
    EXPECT_EQ(TestProgram::read(empty.appPath(u"System/sr.sdf"_s)), u""_s);
}

} // namespace
} // namespace kavro::test
