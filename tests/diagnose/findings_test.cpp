// What is found in a line, what is told of it, and what a repair makes of it.

#include "tests/diagnose/diagnose_fixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DiagnoseFixture;
using enum DiagnoseSwitch;

struct Case
{
    const char *name;
    QStringList rows;
    std::vector<DiagnoseSwitch> switches;
    const char *node;      ///< the tree below the node
    const char *solutions; ///< the tree below the lines that can be repaired
    const char *errors;
    const char *colours;
    const char *after; ///< the document behind the scan
};

std::ostream &operator<<(std::ostream &out, const Case &one)
{
    return out << one.name;
}

class DiagnoseFindings : public testing::TestWithParam<Case>
{
protected:
    DiagnoseFixture fixture;
};

TEST_P(DiagnoseFindings, AreToldMarkedAndRepaired)
{
    const Case &one = GetParam();
    fixture.fill(one.rows);
    fixture.switchOn(one.switches);
    const QList<GridRow> before = fixture.grid.allRows();
    fixture.go();
    EXPECT_EQ(fixture.below(u"sum_node 1"_s), one.node);
    EXPECT_EQ(fixture.below(u"sol_line"_s), one.solutions);
    EXPECT_EQ(fixture.errors(), one.errors);
    EXPECT_EQ(fixture.colours(), one.colours);
    EXPECT_EQ(fixture.rows(), one.after);
    EXPECT_EQ(fixture.document.fileChanged(), fixture.grid.allRows() != before);
    EXPECT_TRUE(fixture.document.subtitleChanged) << "no repair of a cell touches it";
}

const std::vector<Case> cases{
    {"overlap",
     {u"00:00:10,000|00:00:15,000|a"_s, u"00:00:14,500|00:00:16,000|b"_s},
     {CheckOverlapping},
     "Line 0002\n  End.Time 0001 > Start.Time 0002. Diff = 00:00:00,500",
     "Line 0002\n  Mark [Repair.Overlapping] to repair",
     "1: End.Time 0001 > Start.Time 0002. Diff = 00:00:00,500",
     "1,2=FF8000",
     "00:00:10,000|00:00:15,000|a\n00:00:14,500|00:00:16,000|b"},
    {"overlapRepaired",
     {u"00:00:10,000|00:00:15,000|a"_s, u"00:00:14,500|00:00:16,000|b"_s},
     {CheckOverlapping, RepairOverlapping},
     "Line 0002\n  End.Time 0001 > Start.Time 0002. Diff = 00:00:00,500",
     "Line 0002\n  00:00:15,000 set to 00:00:14,500",
     "",
     "",
     "00:00:10,000|00:00:14,500|a\n00:00:14,500|00:00:16,000|b"},
    {"twoOverlapsInARow",
     {u"00:00:01,000|00:00:05,000|a"_s, u"00:00:04,000|00:00:08,000|b"_s,
      u"00:00:06,000|00:00:09,000|c"_s},
     {CheckOverlapping},
     "Line 0002\n  End.Time 0001 > Start.Time 0002. Diff = 00:00:01,000\n"
     "Line 0003\n  End.Time 0002 > Start.Time 0003. Diff = 00:00:02,000",
     "Line 0002\n  Mark [Repair.Overlapping] to repair\n"
     "Line 0003\n  Mark [Repair.Overlapping] to repair",
     "1: End.Time 0001 > Start.Time 0002. Diff = 00:00:01,000\n"
     "2: End.Time 0002 > Start.Time 0003. Diff = 00:00:02,000",
     "1,2=FF8000 2,2=FF8000",
     "00:00:01,000|00:00:05,000|a\n00:00:04,000|00:00:08,000|b\n00:00:06,000|00:00:09,000|c"},
    // The second finding falls under the line of the first.
    {"overlapAndNegative",
     {u"00:00:01,000|00:00:09,000|a"_s, u"00:00:05,000|00:00:04,000|b"_s},
     {CheckOverlapping, CheckNegative},
     "Line 0002\n  End.Time 0001 > Start.Time 0002. Diff = 00:00:04,000\n"
     "  End.Time < Start.Time. Diff = 00:00:04,000",
     "Line 0002\n  Mark [Repair.Overlapping] to repair\n  Mark [Repair.Invalid] to repair",
     "1: End.Time 0001 > Start.Time 0002. Diff = 00:00:04,000\n"
     "2: End.Time < Start.Time. Diff = 00:00:04,000",
     "1,2=FF8000 2,2=FF8000",
     "00:00:01,000|00:00:09,000|a\n00:00:05,000|00:00:04,000|b"},
    {"invalidEnd",
     {u"00:00:00,000|-1:59:59,000|a"_s},
     {CheckInvalid},
     "Line 0001End.Time < 0 or invalid",
     "Line 0001\n  Mark [Repair.Invalid] to repair",
     "1: Line 0001End.Time < 0 or invalid",
     "1,2=FF8000",
     "00:00:00,000|-1:59:59,000|a"},
    // The start that was read is written into the end, though it has been repaired meanwhile.
    {"bothInvalidRepaired",
     {u"-1:59:58,000|-1:59:59,000|a"_s},
     {CheckInvalid, RepairInvalid},
     "Line 0001\n  Start.Time < 0 or invalid\nLine 0001End.Time < 0 or invalid",
     "Line 0001\n  -1:59:58,000 set to 00:00:00,000\n  -1:59:59,000 set to -1:59:58,000",
     "",
     "",
     "00:00:00,000|-1:59:58,000|a"},
    // The end is read again: the repair of the negative line has made it valid.
    {"negativeRepairMakesTheEndValid",
     {u"00:00:01,000|-1:59:59,000|a"_s},
     {CheckInvalid, CheckNegative, RepairInvalid},
     "Line 0001\n  End.Time < Start.Time. Diff = -1:59:59,000",
     "Line 0001\n  -1:59:59,000 set to 00:00:01,000",
     "",
     "",
     "00:00:01,000|00:00:01,000|a"},
    // Nothing stands ahead of the first line that could be repaired.
    {"firstLineBeforeZero",
     {u"-1:59:59,000|00:00:02,000|a"_s},
     {CheckOverlapping, RepairOverlapping},
     "Line 0001\n  End.Time 0000 > Start.Time 0001. Diff = 00:00:01,000",
     "Line 0001\n  Mark [Repair.Overlapping] to repair",
     "0: End.Time 0000 > Start.Time 0001. Diff = 00:00:01,000",
     "0,2=FF8000",
     "-1:59:59,000|00:00:02,000|a"},
    {"empty",
     {u"00:00:01,000|00:00:02,000| | "_s},
     {CheckEmpty},
     "Line 0001\n  Complete line is empty",
     "Line 0001\n  Put spoken text in cel [1,3..5] or mark [Repair.Empty]",
     "1: Complete line is empty",
     "1,3=FF8000",
     "00:00:01,000|00:00:02,000||"},
    {"secondAndThirdRepaired",
     {u"1|2||b|c"_s},
     {CheckEmpty, RepairEmpty},
     "Line 0001\n  Cel [1,3] is empty while cel [1,4] and cel [1,5] contains data",
     "Line 0001\n  Data moved from cel [1,5] to cel [1,4] to cel [1,3]",
     "",
     "",
     "1|2|b|c"},
    {"thirdBelowAnEmptyLine",
     {u"1|2|a||c"_s},
     {CheckEmpty},
     "Line 0001\n  Cel [1,4] is empty while cel [1,5] contains data",
     "Line 0001\n  Put spoken text in cel [1,5] or mark [Repair.Empty]",
     "1: Cel [1,4] is empty while cel [1,5] contains data",
     "1,4=FF8000",
     "1|2|a|c"},
};

INSTANTIATE_TEST_SUITE_P(Cases, DiagnoseFindings, testing::ValuesIn(cases),
                         [](const auto &one) { return one.param.name; });

TEST(DiagnoseTexts, SavedEmptyLineIsAskedOfTheCurrentCell)
{
    DiagnoseFixture fixture;
    fixture.switchOn({CheckEmpty, RepairEmpty});
    // Only a line with a first and a second text is asked.
    fixture.fill({u"1|2|{}"_s, u"1|2|a"_s, u"1|2|a|b"_s, u"1|2|a|b|c"_s});
    fixture.grid.setCurrent(1, 3);
    fixture.go();
    EXPECT_EQ(fixture.below(u"sum_node 1"_s),
              "Line 0003\n  Saved Empty line\nLine 0004\n  Saved Empty line");
    EXPECT_EQ(fixture.below(u"sol_line"_s), "Line 0003\n  Put spoken text in cel [3,3]\n"
                                            "Line 0004\n  Put spoken text in cel [4,3]");
    EXPECT_EQ(fixture.errors(), "");
    EXPECT_EQ(fixture.colours(), "");
    EXPECT_EQ(fixture.document.errorCount, 2);
    fixture.grid.setCurrent(1, 1);
    fixture.go();
    EXPECT_EQ(fixture.document.errorCount, 0);
}

} // namespace
} // namespace kavro
