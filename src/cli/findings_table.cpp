#include "cli/findings_table.h"

#include "cli/streams.h"
#include "controls/tree_view.h"
#include "core/text.h"

#include <algorithm>
#include <vector>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

struct TableLine
{
    int row;
    QString text;
};

struct Count
{
    QStringView key;
    QStringView caption;
};

constexpr Count counts[] = {{u"format", u"format"},         {u"lines", u"lines"},
                            {u"words", u"words"},           {u"mlines", u"multi lines"},
                            {u"ctime", u"displaying time"}, {u"cframe", u"frames"}};

/// Where runs were within one another the outermost has told last.
QString lastChild(const TreeView &tree, QStringView key)
{
    const int number = tree.find(key.toString());
    const QList<int> children =
        number == TreeView::noNode ? QList<int>() : tree.node(number).children;
    return children.isEmpty() ? QString() : tree.node(children.constLast()).text;
}

/// What stands below a node line by line, by rows. A text without a line above it names its row
/// itself.
std::vector<TableLine> linesBelow(const TreeView &tree, const QList<int> &numbers)
{
    std::vector<TableLine> lines;
    for (const int number : numbers) {
        const TreeView::Node &line = tree.node(number);
        const int row = intVal(Mid(line.text, 6, 4));
        if (line.children.isEmpty())
            lines.push_back({row, Mid(line.text, 10).toString()});
        for (const int child : line.children)
            lines.push_back({row, tree.node(child).text});
    }
    std::ranges::stable_sort(lines, {}, &TableLine::row);
    return lines;
}

void printTable(QStringView caption, const std::vector<TableLine> &lines, std::ostream &out)
{
    if (lines.empty())
        return;
    writeLine(out, {});
    writeLine(out, u"line  %1"_s.arg(caption));
    for (const TableLine &line : lines)
        writeLine(out, u"%1  %2"_s.arg(line.row, 4).arg(line.text));
}

} // namespace

void printFindings(const TreeView &tree, int remaining, std::ostream &out)
{
    writeLine(out, tree.node(tree.find(u"fname"_s)).text);
    for (const Count &count : counts)
        writeLine(out,
                  u"%1  %2"_s.arg(count.caption.toString(), -15).arg(lastChild(tree, count.key)));

    std::vector<TableLine> findings;
    for (const int node : tree.node(tree.find(u"sum_node"_s)).children) {
        const std::vector<TableLine> lines = linesBelow(tree, tree.node(node).children);
        findings.insert(findings.end(), lines.begin(), lines.end());
    }
    printTable(u"finding", findings, out);
    printTable(u"solution", linesBelow(tree, tree.node(tree.find(u"sol_line"_s)).children), out);
    writeLine(out, {});
    writeLine(out, remaining == 0 ? u"No findings remain."_s
                                  : u"Findings that remain: %1"_s.arg(remaining));
}

} // namespace kavro
