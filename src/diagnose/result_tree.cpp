#include "diagnose/result_tree.h"

#include "controls/tree_view.h"
#include "core/language.h"
#include "core/text.h"
#include "diagnose/findings.h"

#include <QStringBuilder>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// A fixed node; a key or a text that is empty there is none, or one that the heading tells.
struct FixedNode
{
    QStringView parent;
    QStringView key;
    QStringView text;
    QString ResultTree::Heading::*told = nullptr;
};

using Heading = ResultTree::Heading;

// clang-format off
constexpr FixedNode fixedNodes[] = {
    {{},        u"file",     u"File"},
    {{},        u"scan",     u"Scan"},
    {{},        u"err",      {}, &Heading::errors},
    {u"err",    u"errsum",   u"Summary"},
    {u"err",    u"errsol",   u"Solutions"},
    {u"file",   u"fname",    {}, &Heading::file},
    {u"fname",  u"format",   u"Format"},
    {u"fname",  u"lines",    u"Lines"},
    {u"fname",  u"words",    u"Words"},
    {u"fname",  u"mlines",   u"Multi Lines"},
    {u"format", {},          {}, &Heading::format},
    {u"scan",   u"date",     u"Date"},
    {u"scan",   u"time",     u"Time"},
    {u"scan",   u"dur",      u"Duration"},
    {u"scan",   u"count",    u"Count"},
    {u"count",  u"ctime",    u"Time"},
    {u"count",  u"cframe",   u"Frames"},
    {u"date",   {},          {}, &Heading::date},
    {u"time",   {},          {}, &Heading::time},
    {u"errsum", u"sum_node", u"Node"},
    {u"errsol", u"sol_line", u"Line"},
};
// clang-format on

/// The node of a key, which stands by now: no deletion drops a node of the document that a run goes
/// through.
int nodeOf(const TreeView &tree, QStringView key)
{
    return tree.find(key.toString());
}

/// Numbers stand in keys with a blank for their sign.
QString keyOf(QStringView kind, int number)
{
    return kind % blankNumberText(number);
}

/// Adds a text below the node of a key, which is made when it isn't there.
void addBelow(TreeView &tree, int parent, const QString &key, const QString &caption,
              const QString &text)
{
    const int added = tree.add(parent, caption, key);
    tree.add(added == TreeView::noNode ? tree.find(key) : added, text);
}

} // namespace

void ResultTree::begin(const Heading &heading)
{
    m_heading = heading;
    m_entries.clear();
    m_summaries.clear();
}

void ResultTree::addNode(int node, int firstRow, int lastRow)
{
    m_entries.push_back({.kind = Kind::Node,
                         .node = node,
                         .text = m_language.ownText(u"Node[%1] = %2 to %3"_s)
                                     .arg(QString::number(node), QString::number(firstRow),
                                          QString::number(lastRow))});
}

void ResultTree::addFinding(int node, int row, const QString &explanation)
{
    m_entries.push_back({.kind = Kind::Finding, .node = node, .row = row, .text = explanation});
}

void ResultTree::addBareFinding(int node, const QString &explanation)
{
    m_entries.push_back({.kind = Kind::BareFinding, .node = node, .text = explanation});
}

void ResultTree::addSolution(Solution kind, int row, const QString &solution)
{
    m_entries.push_back({.kind = kind == Solution::OfTime ? Kind::TimeSolution : Kind::TextSolution,
                         .row = row,
                         .text = solution});
}

void ResultTree::end(const RunSummary &summary)
{
    m_entries.push_back({.kind = Kind::Summary, .row = static_cast<int>(m_summaries.size())});
    m_summaries.push_back(summary);
}

// The run that began last is told first. It has gone through the document as it stands, while the
// outermost one, told last, has passed by the lines that moved up in it.
int ResultTree::remaining() const
{
    const auto left = [](const RunSummary &run) { return run.detected - run.fixed; };
    return m_summaries.empty() ? 0 : std::max(left(m_summaries.front()), left(m_summaries.back()));
}

void ResultTree::fill(TreeView &tree) const
{
    const TreeView::Batch batch(tree);
    tree.clear();
    fillHeading(tree);
    for (const Entry &entry : m_entries) {
        fillEntry(tree, entry);
    }
    for (const QStringView opened : {u"err", u"errsum", u"errsol", u"sum_node", u"sol_line"}) {
        tree.expand(nodeOf(tree, opened));
    }
}

void ResultTree::fillHeading(TreeView &tree) const
{
    for (const FixedNode &node : fixedNodes) {
        const int parent = node.parent.isEmpty() ? TreeView::noNode : nodeOf(tree, node.parent);
        tree.add(parent,
                 node.told ? m_heading.*node.told : m_language.ownText(node.text.toString()),
                 node.key.toString());
    }
}

void ResultTree::fillEntry(TreeView &tree, const Entry &entry) const
{
    const auto line = [&](QStringView parent, QStringView kind) {
        addBelow(tree, nodeOf(tree, parent), keyOf(kind, entry.row),
                 m_language.ownText(u"Line"_s) % u' ' % fourDigits(entry.row), entry.text);
    };
    switch (entry.kind) {
    case Kind::Node:
        tree.add(nodeOf(tree, u"sum_node"), entry.text, keyOf(u"sum_node", entry.node));
        break;
    case Kind::Finding: line(keyOf(u"sum_node", entry.node), u"err_"); break;
    case Kind::BareFinding: tree.add(tree.find(keyOf(u"sum_node", entry.node)), entry.text); break;
    case Kind::TimeSolution: line(u"sol_line", u"sol_"); break;
    case Kind::TextSolution: line(u"sol_line", u"nosol_"); break;
    case Kind::Summary: fillSummary(tree, m_summaries[static_cast<std::size_t>(entry.row)]); break;
    }
}

void ResultTree::fillSummary(TreeView &tree, const RunSummary &summary) const
{
    const auto tell = [&tree](QStringView key, const QString &text) {
        tree.add(nodeOf(tree, key), text);
    };
    tell(u"dur", summary.duration);
    tell(u"lines", QString::number(summary.lines));
    tell(u"words", summary.words);
    tell(u"mlines", summary.multiLines);
    tell(u"ctime", summary.time);
    tell(u"cframe", summary.frames);
    const int parent = nodeOf(tree, u"errsum");
    const auto count = [&](const QString &key, const QString &caption, int number) {
        addBelow(tree, parent, key, m_language.ownText(caption), QString::number(number));
    };
    count(u"errdet"_s, u"Detected"_s, summary.detected);
    count(u"errfix"_s, u"Fixed"_s, summary.fixed);
    count(u"errrem"_s, u"Remaining"_s, summary.detected - summary.fixed);
}

} // namespace kavro
