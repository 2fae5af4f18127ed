// Random acts of a person on a document, through the commands of a script; after each of them the
// side stores must fit the grid, and a step back and forward must lead to the same document.

#include "app/program.h"
#include "cli/drive_commands.h"
#include "fuzz/fuzz_input.h"
#include "tests/support/test_program.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <utility>

namespace {

using namespace kavro;
using namespace Qt::StringLiterals;

/// The acts so far, told when one of them breaks a law.
std::string script;

void require(bool holds, const char *what)
{
    if (!holds)
        std::fputs(script.c_str(), stderr);
    fuzz::require(holds, what);
}

/// A command; %1 and %2 are numbers, %3 is a text and %4 a column that the second byte picks.
/// Nobody comes to column 0, where Change would write as anywhere.
// clang-format off
constexpr std::array<QStringView, 58> commands = {
    u"cell grdSubEdit %1 %4",
    u"click grdSubEdit %1 %4",
    u"top grdSubEdit %1",
    u"press Command10",
    u"press Command11",
    u"press Command14",
    u"set rtfSubEditBasic %3",
    u"set rtfEdit %3",
    u"key rtfEdit Enter",
    u"key rtfSubEditBasic Enter",
    u"press btnNode(0)",
    u"press Label74",
    u"press Label75",
    u"press Label5",
    u"press Label63",
    u"set Text1(0) %3",
    u"set Text1(1) %3",
    u"set Text1(2) %3",
    u"set Text1(3) %3",
    u"set rtfShiftDuration %3",
    u"select Combo2 %2",
    u"press Command13",
    u"set rtfStretchFirst %3",
    u"set rtfStretchLast %3",
    u"press Command12",
    u"set rtfTimeStart %3",
    u"set rtfTimeEnd %3",
    u"set rtfDurShift %3",
    u"press Command15",
    u"press Command16",
    u"press Command17",
    u"press Command18",
    u"press Command19",
    u"set rtfSearch %3",
    u"set rtfReplace %3",
    u"press cmdSearch",
    u"check Option1(0) 1",
    u"check Option1(1) 1",
    u"check Check4(0) 1",
    u"check Check4(1) 1",
    u"set txtMaxCount %3",
    u"press Command30",
    u"select Combo9(1) %2",
    u"press Command42",
    u"select Combo14(0) %2",
    u"select Combo14(1) %2",
    u"press Command52",
    u"press Command47",
    u"press command4(0)",
    u"press command4(1)",
    u"press command4(3)",
    u"check Check3(%2) 1",
    u"check Check3(%2) 0",
    u"press Command27",
    u"check Check3(9) 1",
    u"press mnuUndo",
    u"press mnuRedo",
    u"press mnuNextFinding",
};
// clang-format on

constexpr std::array<QStringView, 16> texts = {
    u"",
    u" ",
    u"a",
    u"Two words",
    u"{end}",
    u"1",
    u"3",
    u"99",
    u"-1",
    u"00:00:01,000",
    u"00:00:00,000",
    u"-1:59:59,000",
    u"99:59:59,999",
    u"00:10:00,500",
    u"00:01,000",
    u"x>y",
};

const QString firstFile = u"1\n00:00:01,000 --> 00:00:02,000\nOne\nTwo\nThree\n\n"
                          "2\n00:00:01,500 --> 00:00:04,000\nOver it\n\n"
                          "3\n00:00:05,000 --> 00:00:04,500\n\nBehind\n\n"
                          "4\n00:00:06,000 --> 00:00:07,000\n \n\n"
                          "5\n00:00:08,000 --> 00:00:09,000\nLast one\n\n"_s;

/// What a step back must bring again. Column 0 stands for the nodes' marks.
struct State
{
    QList<GridRow> rows;
    QStringList fonts;
    QList<std::pair<int, int>> nodes;

    bool operator==(const State &) const = default;
};

State stateOf(const SubtitleDocument &document)
{
    State state{.rows = document.editor.grdSubEdit.allRows(),
                .fonts = document.editor.lstFont.items(),
                .nodes = {}};
    for (int n = 0; n <= document.nodeCount; ++n) {
        const Node &node = document.nodes[static_cast<std::size_t>(n)];
        state.nodes.append({node.firstRow, node.lastRow});
    }
    return state;
}

int numberIn(const QString &mark)
{
    QString digits;
    std::ranges::copy_if(mark, std::back_inserter(digits), [](QChar c) { return c.isDigit(); });
    return digits.toInt();
}

void checkStores(const SubtitleDocument &document)
{
    const Grid &grid = document.editor.grdSubEdit;
    require(grid.rows() >= 2, "the header and the end row stay");
    for (int row = 1; row <= document.subtitleCount(); ++row)
        require(numberIn(grid.text(row, NumberColumn)) == row, "column 0 counts the rows");
    require(document.editor.lstFont.count() <= grid.rows(), "each font entry has a row");
    for (int row = grid.rows(); row < grid.rows() + 3; ++row)
        require(document.rowErrorText(row).isEmpty(), "each finding has a row");

    require(document.nodeCount >= 0 && document.nodeCount <= SubtitleDocument::maxNodes,
            "the nodes have room");
    require(document.curNode >= 0 && document.curNode <= SubtitleDocument::maxNodes,
            "the current node is one");
    for (int n = 1; n <= document.nodeCount; ++n) {
        const Node &node = document.nodes[static_cast<std::size_t>(n)];
        require(node.firstRow >= 1, "a node begins behind the header");
        // Delete counts last rows down with no lower stop, and the first rows by the top row, so
        // that neighbours may meet, but never change places.
        if (n > 1) {
            const Node &before = document.nodes[static_cast<std::size_t>(n) - 1];
            require(before.firstRow <= node.firstRow && before.lastRow <= node.lastRow,
                    "the nodes are sorted");
        }
    }
}

void checkSteps(Program &program, const State &before, const State &after)
{
    program.menu.mnuUndo.click();
    require(stateOf(program.document) == before, "a step back leads to what was");
    program.menu.mnuRedo.click();
    require(stateOf(program.document) == after, "a step forward leads back");
}

/// "A" is the first command and "0" the number 0, so that a corpus can be read and written by hand;
/// any other byte counts round.
QString lineOf(std::uint8_t commandByte, std::uint8_t valueByte)
{
    const std::size_t command = (commandByte + 256 * commands.size() - 'A') % commands.size();
    const int value = (valueByte + 256 - '0') % 256;
    QString line = commands[command].toString();
    line.replace(u"%1"_s, QString::number(value % 12));
    line.replace(u"%2"_s, QString::number(value / 12 % 10));
    line.replace(u"%4"_s, QString::number(StartColumn + value / 12 % LastTextColumn));
    line.replace(u"%3"_s, texts[static_cast<std::size_t>(value) % texts.size()].toString());
    return line;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr std::size_t longest = 120; // acts, of two bytes each
    test::TestProgram run;
    std::ostringstream out;
    DrivePorts ports(out, out, Answer::Yes);
    run.startForVerb();
    LoadRequest request{.path = run.write(u"film.srt"_s, firstFile), .showMessages = false};
    require(run->loader.LoadSubFile(request).ok(), "the first file loads");

    script.clear();
    Driven driven{.program = run.program(), .ports = ports, .err = out};
    for (std::size_t i = 0; i + 1 < std::min(size, 2 * longest); i += 2) {
        const QString line = lineOf(data[i], data[i + 1]);
        script += line.toStdString() + '\n';
        const State before = stateOf(run->document);
        const Outcome outcome = runCommand(driven, line);
        require(outcome.kind == Outcome::Kind::Done || outcome.kind == Outcome::Kind::Refused,
                "each line is a command");
        checkStores(run->document);
        const State after = stateOf(run->document);
        if (after != before && !line.endsWith(u"mnuUndo"_s) && !line.endsWith(u"mnuRedo"_s))
            checkSteps(run.program(), before, after);
    }
    return 0;
}
