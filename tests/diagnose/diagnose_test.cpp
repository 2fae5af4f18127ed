// The page round the scan: counts, the tree's frame, nodes, boxes, clicks and steps.

#include "tests/diagnose/diagnose_fixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DiagnoseFixture;
using enum DiagnoseSwitch;

class DiagnoseTest : public testing::Test
{
protected:
    /// Clicks the first node with that text.
    void clickText(QStringView text) { diagnose.tvDiag.click(diagnose.tvDiag.findText(text)); }

    [[nodiscard]] std::string place() const
    {
        return u"%1,%2"_s.arg(grid.row()).arg(grid.col()).toStdString();
    }

    DiagnoseFixture fixture;
    Diagnose &diagnose = fixture.run->diagnose;
    SubtitleDocument &document = fixture.document;
    Grid &grid = fixture.grid;
};

TEST_F(DiagnoseTest, EmptyDocumentGivesTheFrame)
{
    fixture.switchOn({});
    fixture.document.ClearGrid();
    fixture.document.nodeCount = 0;
    fixture.go();
    EXPECT_EQ(fixture.below(u"file"_s), "None loaded\n"
                                        "  Format\n    Unknown\n"
                                        "  Lines\n    0\n"
                                        "  Words\n    Not counted\n"
                                        "  Multi Lines\n    Not counted");
    EXPECT_EQ(fixture.below(u"scan"_s),
              "Date\n  2026-01-02\n"
              "Time\n  03:04:05\n"
              "Duration\n  0 seconds.\n"
              "Count\n  Time\n    Not counted\n  Frames\n    Not counted");
    EXPECT_EQ(fixture.below(u"err"_s),
              "Summary\n  Node\n  Detected\n    0\n  Fixed\n    0\n  Remaining\n    0\n"
              "Solutions\n  Line");
    const TreeView &tree = diagnose.tvDiag;
    EXPECT_EQ(tree.roots(), (QList<int>{0, 1, 2}));
    QList<int> open;
    for (int number = 0; tree.has(number); ++number) {
        if (tree.node(number).expanded) {
            open.append(number + 1);
        }
    }
    EXPECT_EQ(open, (QList<int>{3, 4, 5, 20, 21})); // counted from 1
    EXPECT_EQ(fixture.run->trace.lastActionCode, 719);
    EXPECT_EQ(fixture.run->variables.sysVar[31], u"0"_s);
}

TEST_F(DiagnoseTest, CountsWordsMultiLinesAndTime)
{
    const struct
    {
        const char *name;
        QStringList rows;
        const char *words, *multiLines;
    } cases[] = {
        {"two cells are one text", {u"1|2| one two| three"_s}, "4", "1"}, // two blanks between them
        {"two blanks make a word", {u"1|2|one  two"_s}, "3", "0"},
        {"the third is never counted", {u"1|2|one||two three"_s}, "1", "0"},
        {"blanks are no text", {u"1|2| | "_s, u"1|2"_s}, "0", "0"},
        {"the second alone", {u"1|2||two "_s}, "1", "1"},
    };
    fixture.switchOn({CountWords, CountMultiLines});
    for (const auto &one : cases) {
        fixture.fill(one.rows);
        fixture.go();
        EXPECT_EQ(fixture.below(u"words"_s), one.words) << one.name;
        EXPECT_EQ(fixture.below(u"mlines"_s), one.multiLines) << one.name;
        EXPECT_EQ(fixture.below(u"ctime"_s), "Not counted") << one.name;
    }
    // A text that a repair has moved to the first cell isn't counted.
    fixture.switchOn({CheckEmpty, RepairEmpty, CountWords, CountMultiLines});
    fixture.fill({u"1|2||two"_s});
    fixture.go();
    EXPECT_EQ(fixture.below(u"words"_s), "0");
    EXPECT_EQ(fixture.below(u"mlines"_s), "0");
}

TEST_F(DiagnoseTest, FramesAreCutToWholeOnes)
{
    const struct
    {
        int rate;
        QStringList rows;
        const char *time, *frames;
    } cases[] = {
        {0,
         {u"00:00:00,000|00:00:59,000"_s, u"00:01:00,000|00:01:01,000"_s},
         "00:01:00,000",
         "1438 (23.97 fps)"},
        {2, {u"00:00:00,000|00:00:00,999"_s}, "00:00:00,999", "24 (25 fps)"},
        {3, {u"00:00:02,000|00:00:01,000"_s}, "-1:59:59,000", "-30 (29.97 fps)"},
        {4, {}, "00:00:00,000", "0 (30 fps)"},
    };
    fixture.switchOn({CountTime});
    for (const auto &one : cases) {
        fixture.fill(one.rows);
        fixture.run->frameRates.optFrameRate[one.rate].setOn();
        fixture.go();
        EXPECT_EQ(fixture.below(u"ctime"_s), one.time);
        EXPECT_EQ(fixture.below(u"cframe"_s), one.frames);
    }
}

TEST_F(DiagnoseTest, FrameTellsTheLoadedFile)
{
    const QString path = fixture.run.write(u"film.srt"_s, test::twoSubtitles());
    fixture.run->dropFile(path);
    EXPECT_EQ(fixture.below(u"file"_s),
              path.toStdString()
                  + "\n  Format\n    SubRip\n  Lines\n    2\n  Words\n    4\n"
                    "  Multi Lines\n    1");
}

TEST_F(DiagnoseTest, FrameTellsOfAFileThatIsTooLong)
{
    fixture.switchOn({CheckEmpty});
    fixture.run->dropFile(fixture.run.write(u"empty.sub"_s, u"{1}{2}a\n{3}{4}\n"_s));
    EXPECT_EQ(fixture.below(u"errdet"_s), "1");
    const QString path = fixture.run.write(u"long.sub"_s, u"{1}{2}a\n"_s.repeated(10000));
    fixture.run->dropFile(path);
    EXPECT_EQ(diagnose.tvDiag.node(diagnose.tvDiag.find(u"fname"_s)).text, path);
    EXPECT_EQ(fixture.below(u"lines"_s), "0");
    EXPECT_EQ(fixture.below(u"errdet"_s), "0");
}

TEST_F(DiagnoseTest, BoxesStartWithoutRepairsAndAreRecordedWithTheirCodes)
{
    const int on[] = {701, 703, 705, 707, 709, 711, 713, 715, 717, 720};
    for (CheckBox &box : diagnose.Check3) {
        EXPECT_EQ(box.isOn(), box.index() < 7) << box.index();
        box.check(true);
        EXPECT_EQ(fixture.run->trace.lastActionCode, on[box.index()]) << box.index();
        box.check(false);
        EXPECT_EQ(fixture.run->trace.lastActionCode, on[box.index()] + 1) << box.index();
    }
}

TEST_F(DiagnoseTest, WithoutRepairsLeavesTheDocumentAndTheBoxes)
{
    fixture.switchAllOn();
    fixture.fill({u"00:00:01,000|00:00:05,000"_s, u"00:00:04,000|00:00:03,000||b"_s});
    const std::string before = fixture.rows();
    diagnose.diagnoseWithoutRepairs();
    EXPECT_EQ(fixture.rows(), before);
    EXPECT_EQ(document.errorCount, 4);
    EXPECT_FALSE(document.fileChanged());
    for (const CheckBox &box : diagnose.Check3) {
        EXPECT_TRUE(box.isOn()) << box.index();
    }
}

TEST_F(DiagnoseTest, DurationIsTheClocks)
{
    const QDateTime start(QDate(2026, 1, 2), QTime(23, 59, 59, 500), Qt::UTC);
    const struct
    {
        int elapsed;
        const char *text;
    } cases[] = {{0, "0 seconds."}, {250, "0.25 seconds."}, {600, "-86399.4 seconds."}};
    for (const auto &one : cases) {
        fixture.fill({});
        fixture.run.doors.clock.time = start;
        fixture.run.doors.clock.step = one.elapsed;
        fixture.go();
        EXPECT_EQ(fixture.below(u"dur"_s), one.text);
    }
}

TEST_F(DiagnoseTest, TheCurrentLinesFindingIsShownAtOnceAndOldColoursStay)
{
    fixture.switchOn({CheckEmpty});
    fixture.fill({u"00:00:01,000|00:00:02,000"_s, u"00:00:03,000|00:00:04,000"_s});
    grid.setCurrent(1, 3);
    EXPECT_FALSE(document.editor.errExp.isVisible());
    fixture.go();
    EXPECT_TRUE(document.editor.errExp.isVisible());
    EXPECT_EQ(document.editor.lblErrExp.caption(), u"Complete line is empty"_s);
    grid.setText(1, 3, u"text"_s);
    fixture.go();
    EXPECT_EQ(fixture.colours(), "1,3=FF8000 2,3=FF8000");
    EXPECT_EQ(fixture.errors(), "2: Complete line is empty");
}

TEST_F(DiagnoseTest, ClickOnTheTreeLeadsToTheLine)
{
    fixture.switchOn({CheckInvalid});
    fixture.fill({u"1|2|a"_s, u"1|-1:59:59,000|b"_s, u"-1:59:59,000|2|c"_s});
    fixture.go();
    clickText(u"Line 0003");
    EXPECT_EQ(place(), "3,1");
    clickText(u"Line 0002End.Time < 0 or invalid");
    EXPECT_EQ(place(), "2,1");
    grid.setCurrent(1, 4);
    clickText(u"Summary");
    clickText(u"Start.Time < 0 or invalid");
    EXPECT_EQ(place(), "1,4");
    // A line that is gone by now is gone to the side alone.
    grid.setRows(3);
    grid.setCurrent(1, 4);
    clickText(u"Line 0003");
    EXPECT_EQ(place(), "1,1");
}

TEST_F(DiagnoseTest, StepsGoRoundTheFindings)
{
    Button &next = fixture.run->menu.mnuNextFinding;
    Button &previous = fixture.run->menu.mnuPreviousFinding;
    const auto panel = [this] { return fixture.run->status.StatusBar1.panel(4).toStdString(); };
    EXPECT_TRUE(next.isVisible());
    EXPECT_FALSE(next.isEnabled());
    EXPECT_EQ(panel(), "");

    fixture.switchOn({CheckEmpty});
    fixture.fill({u"1|2|a"_s, u"1|2"_s, u"1|2|a"_s, u"1|2"_s});
    fixture.go();
    EXPECT_EQ(panel(), "2 findings remain");
    EXPECT_TRUE(next.isEnabled());
    EXPECT_TRUE(previous.isEnabled());
    std::string places;
    for (Button *step : {&next, &next, &next, &previous, &previous}) {
        step->click();
        places += place() + ' ';
    }
    EXPECT_EQ(places, "2,3 4,3 2,3 4,3 2,3 ");
    EXPECT_EQ(grid.topRow(), 2);
    EXPECT_TRUE(document.editor.errExp.isVisible());

    grid.setText(2, 3, u"text"_s);
    fixture.go();
    EXPECT_EQ(panel(), "1 finding remains");
    grid.setText(4, 3, u"text"_s);
    fixture.go();
    EXPECT_EQ(panel(), "No findings");
    EXPECT_FALSE(next.isEnabled());
    fixture.run->document.startNew();
    EXPECT_EQ(panel(), "");
}

TEST_F(DiagnoseTest, StepsReachLinesThatShowNoText)
{
    const struct
    {
        DiagnoseSwitch check;
        QStringList rows;
        const char *places;
    } cases[] = {
        {CheckEmpty, {u"1|2|{}"_s, u"1|2|a|b"_s, u"1|2|a"_s, u"1|2|a|b"_s}, "2,3 4,3 2,3 "},
        {CheckOverlapping, {u"-1:59:59,000|2|a"_s, u"3|4|b"_s}, "1,3 1,3 1,3 "},
    };
    Button &next = fixture.run->menu.mnuNextFinding;
    for (const auto &one : cases) {
        fixture.switchOn({one.check});
        fixture.fill(one.rows);
        EXPECT_FALSE(next.isEnabled());
        grid.setCurrent(1, 3);
        fixture.go();
        EXPECT_TRUE(next.isEnabled());
        std::string places;
        for (int step = 0; step < 3; ++step) {
            next.click();
            places += place() + ' ';
        }
        EXPECT_EQ(places, one.places);
    }
}

TEST_F(DiagnoseTest, RunIsShownOnce)
{
    fixture.switchAllOn();
    fixture.fill({u"00:00:01,000|00:00:05,000|a"_s, u"00:00:04,000|00:00:03,000||b"_s,
                  u"00:00:06,000|00:00:07,000"_s, u"00:00:08,000|00:00:09,000"_s});
    QStringList heard;
    QObject::connect(&grid, &Grid::reset, &grid, [&] { heard.append(u"rows"_s); });
    QObject::connect(&grid, &Grid::cellChanged, &grid, [&] { heard.append(u"cell"_s); });
    QObject::connect(&diagnose.tvDiag, &TreeView::reset, &grid, [&] { heard.append(u"tree"_s); });
    QObject::connect(&diagnose.tvDiag, &TreeView::added, &grid, [&] { heard.append(u"node"_s); });
    fixture.go();
    EXPECT_EQ(heard, (QStringList{u"rows"_s, u"tree"_s}));
    EXPECT_EQ(document.subtitleCount(), 2);
}

} // namespace
} // namespace kavro
