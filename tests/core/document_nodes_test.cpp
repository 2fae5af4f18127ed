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
        document.ShowNodeMarks(1);
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

    /// The subtitles' numbers with the braces that open and close a node. A cell that has another
    /// text or colour than its braces ask for stands there as it is; marks elsewhere are told.
    [[nodiscard]] std::string marks() const
    {
        constexpr Color green = Color::fromBgr(0x00FF00);
        constexpr Color red = Color::fromBgr(0x0000FF);
        QString marks;
        for (int row = 1; row <= document.subtitleCount(); ++row) {
            const QString &text = grid.text(row, NumberColumn);
            const bool opens = text.startsWith(u" { "_s);
            const bool closes = text.endsWith(u" }"_s);
            const QString number = QString::number(row);
            const QString plain = opens ? u" { "_s + number : closes ? u' ' + number : number;
            const bool fits = text == plain + (closes ? u" }"_s : QString())
                              && grid.cellColor(row, StartColumn) == (opens ? green : Color())
                              && grid.cellColor(row, EndColumn) == (closes ? red : Color());
            marks += (opens ? u"{"_s : QString()) + (fits ? number : text)
                     + (closes ? u"}"_s : QString());
        }
        const bool beyond = grid.text(0, NumberColumn) != u"#"_s
                            || !grid.text(grid.rows() - 1, NumberColumn).isEmpty()
                            || grid.coloredCells().size() != marks.count(u'{') + marks.count(u'}');
        return marks.toStdString() + (beyond ? " and beyond" : "");
    }
};

TEST_F(NodeMarks, StandAtFirstAndLastRows)
{
    const struct
    {
        const char *name;
        int subtitles;
        std::initializer_list<int> lastRows;
        const char *marks;
        int nodes; ///< that are left
    } rows[] = {
        {"the whole document", 6, {6}, "{123456}", 1},
        {"two, one of one row", 6, {5, 6}, "{12345}{6}", 2},
        {"a last row on the end row", 6, {7}, "{123456", 1},
        {"none", 6, {}, "123456", 0},
        {"the first behind the grid is the last", 6, {4, 9, 12, 15}, "{1234}{56", 3},
        {"an empty document", 0, {0}, "", 1},
    };
    for (const auto &row : rows) {
        fillRows(row.subtitles);
        setNodes(row.lastRows);
        EXPECT_EQ(marks(), row.marks) << row.name;
        EXPECT_EQ(document.nodeCount, row.nodes) << row.name;
        document.clearNodeMarks();
        EXPECT_EQ(marks(), row.subtitles > 0 ? "123456" : "") << row.name;
    }
}

TEST_F(NodeMarks, ToggleStartsAndJoinsNodes)
{
    const struct
    {
        const char *name;
        std::initializer_list<int> lastRows;
        int row;
        const char *nodes;
        const char *marks;
    } rows[] = {
        {"cuts the only node", {6}, 3, "1-2 a|3-6 Part_2", "{12}{3456}"},
        {"the name behind stays", {4, 6}, 3, "1-2 a|3-4 Part_2|5-6 b", "{12}{34}{56}"},
        {"cuts at the second row", {6}, 2, "1-1 a|2-6 Part_2", "{1}{23456}"},
        {"cuts at the last row", {6}, 6, "1-5 a|6-6 Part_2", "{12345}{6}"},
        {"joins two", {2, 6}, 3, "1-6 a", "{123456}"},
        {"joins the middle of three", {2, 4, 6}, 3, "1-4 a|5-6 c", "{1234}{56}"},
        {"joins nodes of one row", {1, 2, 6}, 2, "1-2 a|3-6 c", "{12}{3456}"},
        {"row 1 leaves its marks", {2, 6}, 1, "3-6 b", "{12}{3456}"},
        {"row 1 takes the only node away", {6}, 1, "", "{123456}"},
        {"the end row", {6}, 7, "1-6 a|7-6 Part_2", "{123456}"},
        {"no node at all: node 0 stands before", {}, 4, "4-99 Part_1", "123{456"},
    };
    for (const auto &row : rows) {
        fillRows(6);
        grid.clearCellColors();
        setNodes(row.lastRows);
        EXPECT_TRUE(document.toggleNode(row.row)) << row.name;
        EXPECT_EQ(nodes(), row.nodes) << row.name;
        EXPECT_EQ(marks(), row.marks) << row.name;
    }
}

TEST_F(NodeMarks, ToggleTwiceIsAsBefore)
{
    fillRows(9);
    for (int row = 1; row <= 10; ++row) {
        setNodes({2, 5, 9});
        const bool startsNode = row == 1 || row == 3 || row == 6;
        EXPECT_TRUE(document.toggleNode(row));
        EXPECT_EQ(document.nodeCount, startsNode ? 2 : 4) << row;
        EXPECT_TRUE(document.toggleNode(row));
        EXPECT_EQ(document.nodeCount, 3) << row;
        EXPECT_EQ(marks(), "{12}{345}{6789}") << row;
        if (!startsNode) {
            EXPECT_EQ(nodes(), "1-2 a|3-5 b|6-9 c") << row;
        }
    }
}

TEST_F(NodeMarks, RowOneGoesToNodeZeroAndComesBackWithTheFlagsLeft)
{
    fillRows(6);
    setNodes({2, 6});
    document.nodes[2].flag = true;
    EXPECT_TRUE(document.toggleNode(1));
    EXPECT_FALSE(document.nodes[1].flag) << "a flag belongs to the number";
    EXPECT_EQ(document.nodes[0].lastRow, 2);
    EXPECT_EQ(document.nodes[0].name, u"0"_s);
    EXPECT_TRUE(document.toggleNode(1));
    EXPECT_EQ(nodes(), "1-2 Part_1|3-6 b");
    EXPECT_EQ(document.nodes[0].lastRow, 0);
    EXPECT_TRUE(document.nodes[2].flag);
}

TEST_F(NodeMarks, ToggleChangesNothingAtTheLimitAndOutside)
{
    fillRows(200);
    setNodes({200});
    for (int number = 2; number <= SubtitleDocument::maxNodes; ++number) {
        ASSERT_TRUE(document.toggleNode(2 * number)) << number;
    }
    EXPECT_EQ(document.nodeCount, SubtitleDocument::maxNodes);
    const std::string before = nodes() + marks();
    int acts = 0;
    document.actBegins = [&] { ++acts; };
    for (const int row : {-1, 0, 3, 199, 202}) {
        EXPECT_FALSE(document.toggleNode(row)) << row;
        EXPECT_EQ(nodes() + marks(), before) << row;
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
    int moves = 0;
    QObject::connect(&grid, &Grid::reset, &grid, [&] { ++resets; });
    QObject::connect(&grid, &Grid::cellChanged, &grid, [&] { ++cells; });
    QObject::connect(&grid, &Grid::currentChanged, &grid, [&] { ++moves; });
    EXPECT_TRUE(document.toggleNode(5000));
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(cells + moves, 0);
    EXPECT_EQ(grid.topRow(), 4990);
    EXPECT_EQ(grid.row(), 5000);
    EXPECT_FALSE(document.fileChanged()) << "the file holds no nodes";
}

} // namespace
} // namespace kavro
