#include "tests/core/document_support.h"

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DocumentTest;

class NodeMarks : public DocumentTest
{
protected:
    /// Nodes by their last rows, from row 1 on without gaps; names are letters, and node 0 is "0".
    void setNodes(std::initializer_list<int> lastRows)
    {
        int first = 1;
        document.nodeCount = 0;
        document.nodes[0] = {.firstRow = 1, .lastRow = 99, .name = u"0"_s, .flag = false};
        for (const int last : lastRows) {
            ++document.nodeCount;
            document.nodes[static_cast<std::size_t>(document.nodeCount)] = {
                .firstRow = first,
                .lastRow = last,
                .name = QChar(u'a' + document.nodeCount - 1),
                .flag = false};
            first = last + 1;
        }
    }

    /// "first-last name" of each node.
    [[nodiscard]] std::string nodes() const
    {
        QStringList texts;
        for (int number = 1; number <= document.nodeCount; ++number) {
            const Node &node = document.nodes[static_cast<std::size_t>(number)];
            texts.append(
                QStringLiteral("%1-%2 %3").arg(node.firstRow).arg(node.lastRow).arg(node.name));
        }
        return texts.join(u'|').toStdString();
    }
};

TEST_F(NodeMarks, StandAtFirstAndLastRows)
{
    fillRows(6);
    const struct
    {
        const char *name;
        std::initializer_list<int> lastRows;
        const char *numbers;
        const char *colours;
    } rows[] = {
        {"the whole document", {6}, " { 1|2|3|4|5| 6 }|", "1,1=00FF00 6,2=FF0000"},
        {"two, one of one row",
         {5, 6},
         " { 1|2|3|4| 5 }| { 6 }|",
         "1,1=00FF00 5,2=FF0000 6,1=00FF00 6,2=FF0000"},
        {"a last row on the end row", {7}, " { 1|2|3|4|5|6|", "1,1=00FF00"},
        {"none", {}, "1|2|3|4|5|6|", ""},
    };
    for (const auto &row : rows) {
        setNodes(row.lastRows);
        document.ShowNodeMarks(1);
        EXPECT_EQ(numbers(), row.numbers) << row.name;
        EXPECT_EQ(colours(), row.colours) << row.name;
        document.clearNodeMarks();
        EXPECT_EQ(numbers(), "1|2|3|4|5|6|") << row.name;
        EXPECT_EQ(colours(), "") << row.name;
    }
}

TEST_F(NodeMarks, MoveNoCell)
{
    fillRows(6);
    grid.setCurrent(4, 3);
    int moves = 0;
    QObject::connect(&grid, &Grid::currentChanged, &grid, [&] { ++moves; });
    setNodes({2, 6});
    document.ShowNodeMarks(3);
    EXPECT_EQ(moves, 0);
    EXPECT_EQ(grid.row(), 4);
    EXPECT_EQ(grid.topRow(), 3);
}

TEST_F(NodeMarks, TheFirstNodeBehindTheGridIsTheLast)
{
    fillRows(6);
    setNodes({4, 9, 12, 15});
    document.ShowNodeMarks(1);
    EXPECT_EQ(document.nodeCount, 3);
    EXPECT_EQ(numbers(), " { 1|2|3| 4 }| { 5|6|");
}

TEST_F(NodeMarks, LeaveAnEmptyDocumentEmpty)
{
    setNodes({0});
    document.ShowNodeMarks(1);
    EXPECT_EQ(numbers(), "");
    EXPECT_EQ(colours(), "");
    EXPECT_EQ(grid.text(0, NumberColumn), u"#"_s);
}

TEST_F(NodeMarks, ToggleStartsAndJoinsNodes)
{
    const struct
    {
        const char *name;
        std::initializer_list<int> lastRows;
        int row;
        const char *nodes;
        const char *numbers;
        const char *colours;
    } rows[] = {
        {"cuts the only node",
         {6},
         3,
         "1-2 a|3-6 Part_2",
         " { 1| 2 }| { 3|4|5| 6 }|",
         "1,1=00FF00 2,2=FF0000 3,1=00FF00 6,2=FF0000"},
        {"cuts the first of two: the name behind stays",
         {4, 6},
         3,
         "1-2 a|3-4 Part_2|5-6 b",
         " { 1| 2 }| { 3| 4 }| { 5| 6 }|",
         "1,1=00FF00 2,2=FF0000 3,1=00FF00 4,2=FF0000 5,1=00FF00 6,2=FF0000"},
        {"cuts at the second row",
         {6},
         2,
         "1-1 a|2-6 Part_2",
         " { 1 }| { 2|3|4|5| 6 }|",
         "1,1=00FF00 1,2=FF0000 2,1=00FF00 6,2=FF0000"},
        {"cuts at the last row",
         {6},
         6,
         "1-5 a|6-6 Part_2",
         " { 1|2|3|4| 5 }| { 6 }|",
         "1,1=00FF00 5,2=FF0000 6,1=00FF00 6,2=FF0000"},
        {"joins two", {2, 6}, 3, "1-6 a", " { 1|2|3|4|5| 6 }|", "1,1=00FF00 6,2=FF0000"},
        {"joins the middle of three with the first",
         {2, 4, 6},
         3,
         "1-4 a|5-6 c",
         " { 1|2|3| 4 }| { 5| 6 }|",
         "1,1=00FF00 4,2=FF0000 5,1=00FF00 6,2=FF0000"},
        {"joins nodes of one row",
         {1, 2, 6},
         2,
         "1-2 a|3-6 c",
         " { 1| 2 }| { 3|4|5| 6 }|",
         "1,1=00FF00 2,2=FF0000 3,1=00FF00 6,2=FF0000"},
        {"row 1 takes the first of two away, and leaves its marks",
         {2, 6},
         1,
         "3-6 b",
         " { 1| 2 }| { 3|4|5| 6 }|",
         "1,1=00FF00 2,2=FF0000 3,1=00FF00 6,2=FF0000"},
        {"row 1 takes the only node away",
         {6},
         1,
         "",
         " { 1|2|3|4|5| 6 }|",
         "1,1=00FF00 6,2=FF0000"},
        {"the end row", {6}, 7, "1-6 a|7-6 Part_2", " { 1|2|3|4|5| 6 }|", "1,1=00FF00 6,2=FF0000"},
        {"no node at all: node 0 stands before",
         {},
         4,
         "4-99 Part_1",
         "1|2|3| { 4|5|6|",
         "4,1=00FF00"},
    };
    for (const auto &row : rows) {
        fillRows(6);
        grid.clearCellColors();
        setNodes(row.lastRows);
        document.ShowNodeMarks(1);
        EXPECT_TRUE(document.toggleNode(row.row)) << row.name;
        EXPECT_EQ(nodes(), row.nodes) << row.name;
        EXPECT_EQ(numbers(), row.numbers) << row.name;
        EXPECT_EQ(colours(), row.colours) << row.name;
    }
}

TEST_F(NodeMarks, ToggleTwiceIsAsBefore)
{
    fillRows(9);
    for (int row = 1; row <= 10; ++row) {
        setNodes({2, 5, 9});
        document.ShowNodeMarks(1);
        const std::string before = numbers() + colours();
        const bool startsNode = row == 1 || row == 3 || row == 6;
        EXPECT_TRUE(document.toggleNode(row));
        EXPECT_EQ(document.nodeCount, startsNode ? 2 : 4) << row;
        EXPECT_TRUE(document.toggleNode(row));
        EXPECT_EQ(document.nodeCount, 3) << row;
        EXPECT_EQ(numbers() + colours(), before) << row;
        if (!startsNode) {
            EXPECT_EQ(nodes(), "1-2 a|3-5 b|6-9 c") << row;
        }
    }
}

TEST_F(NodeMarks, RowOneGoesToNodeZeroAndComesBack)
{
    fillRows(6);
    setNodes({2, 6});
    EXPECT_TRUE(document.toggleNode(1));
    EXPECT_EQ(document.nodes[0].lastRow, 2);
    EXPECT_EQ(document.nodes[0].name, u"0"_s);
    EXPECT_TRUE(document.toggleNode(1));
    EXPECT_EQ(nodes(), "1-2 Part_1|3-6 b");
    EXPECT_EQ(document.nodes[0].lastRow, 0);
}

TEST_F(NodeMarks, FlagsBelongToTheNumbers)
{
    fillRows(6);
    setNodes({4, 6});
    document.nodes[2].flag = true;
    EXPECT_TRUE(document.toggleNode(3));
    EXPECT_TRUE(document.nodes[2].flag);
    EXPECT_FALSE(document.nodes[3].flag);
}

TEST_F(NodeMarks, ToggleChangesNothingAtTheLimitAndOutside)
{
    fillRows(200);
    setNodes({200});
    for (int number = 2; number <= SubtitleDocument::maxNodes; ++number) {
        ASSERT_TRUE(document.toggleNode(2 * number)) << number;
    }
    EXPECT_EQ(document.nodeCount, SubtitleDocument::maxNodes);
    const std::string before = nodes() + numbers() + colours();
    int acts = 0;
    document.actBegins = [&] { ++acts; };
    for (const int row : {-1, 0, 3, 199, 202}) {
        EXPECT_FALSE(document.toggleNode(row)) << row;
        EXPECT_EQ(nodes() + numbers() + colours(), before) << row;
    }
    EXPECT_EQ(acts, 0);
    EXPECT_TRUE(document.toggleNode(4)) << "a node can still end";
    EXPECT_TRUE(document.toggleNode(3));
    EXPECT_EQ(acts, 2);
}

TEST_F(NodeMarks, ToggleRepaintsOnceAndStaysInPlace)
{
    fillRows(SubtitleDocument::maxSubtitles);
    setNodes({SubtitleDocument::maxSubtitles});
    grid.setCurrent(5000, 3);
    grid.setTopRow(4990);
    int resets = 0;
    int cells = 0;
    QObject::connect(&grid, &Grid::reset, &grid, [&] { ++resets; });
    QObject::connect(&grid, &Grid::cellChanged, &grid, [&] { ++cells; });
    EXPECT_TRUE(document.toggleNode(5000));
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(cells, 0);
    EXPECT_EQ(grid.topRow(), 4990);
    EXPECT_EQ(grid.row(), 5000);
    EXPECT_FALSE(document.fileChanged()) << "the file holds no nodes";
}

} // namespace
} // namespace kavro
