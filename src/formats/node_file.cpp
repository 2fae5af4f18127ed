#include "formats/node_file.h"

#include "core/document.h"
#include "core/folders.h"
#include "core/line_reader.h"
#include "core/messages.h"
#include "core/safe_file.h"
#include "core/text.h"

#include <QStringBuilder>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// The line of one node; none when it has not the two marks or not the flag.
std::optional<Node> nodeOf(QStringView line)
{
    const qsizetype comma = line.indexOf(u',');
    const qsizetype colon = line.indexOf(u':', comma + 1);
    if (comma < 1 || colon < 0 || colon + 1 == line.size())
        return std::nullopt;
    return Node{.firstRow = intVal(line.first(comma)),
                .lastRow = intVal(line.sliced(comma + 1, colon - comma - 1)),
                .name = line.sliced(colon + 1).chopped(1).toString(),
                .flag = Val(line.last(1)) != 0};
}

/// The node lines behind the count; empty when one of them is damaged or missing.
std::vector<Node> readNodes(LineReader &lines)
{
    std::vector<Node> nodes;
    const int count = intVal(lines.readLine());
    if (count > SubtitleDocument::maxNodes)
        return {};
    for (int i = 0; i < count; ++i) {
        const std::optional<Node> node = nodeOf(lines.readLine());
        if (!node)
            return {};
        nodes.push_back(*node);
    }
    return nodes;
}

/// Brings nodes to the rows that are there: each ends where the next begins, the first at row 1 and
/// the last at the last row. Nothing is left when they are out of order.
std::vector<Node> fitted(std::vector<Node> nodes, int rows)
{
    std::erase_if(nodes, [rows](const Node &node) {
        return node.firstRow < 1 || node.lastRow < node.firstRow || node.firstRow > rows;
    });
    const auto inOrder = [](const Node &a, const Node &b) { return a.firstRow >= b.firstRow; };
    if (nodes.empty() || std::ranges::adjacent_find(nodes, inOrder) != nodes.end())
        return {};
    nodes.front().firstRow = 1;
    for (std::size_t i = 1; i < nodes.size(); ++i)
        nodes[i - 1].lastRow = nodes[i].firstRow - 1;
    nodes.back().lastRow = rows;
    return nodes;
}

} // namespace

NodeFile::NodeFile(SubtitleDocument &document, Folders &folders, FileStore &store,
                   Messages &messages, const QString &versionNumber)
    : m_document(document),
      m_folders(folders),
      m_store(store),
      m_messages(messages),
      m_versionNumber(versionNumber)
{}

void NodeFile::SaveSubControl(const QString &path)
{
    const QString file = m_folders.writablePath(Folder::Nodes, fileName());
    FileWriter writer(m_store);
    if (!m_folders.makeRoomFor(file).ok() || !writer.open(file).ok())
        return;
    for (const QString &line : {m_versionNumber, u"<File>"_s, path, u"</File>"_s, u"<Data>"_s,
                                QString::number(m_document.nodeCount)})
        writer.writeLine(line);
    for (int i = 1; i <= m_document.nodeCount; ++i) {
        const Node &node = m_document.nodes[static_cast<std::size_t>(i)];
        const QString rows = QString::number(node.firstRow) % u',' % QString::number(node.lastRow);
        const QString line = rows % u':' % node.name % (node.flag ? u'1' : u'0');
        writer.writeLine(line);
    }
    writer.writeLine(u"</Data>");
    writer.commit();
}

void NodeFile::load()
{
    std::vector<Node> nodes = fitted(read(), m_document.subtitleCount());
    if (nodes.empty()) {
        nodes.push_back({.firstRow = 1,
                         .lastRow = m_document.subtitleCount(),
                         .name = m_document.subBaseName,
                         .flag = false});
    }
    m_document.nodes.fill({});
    m_document.nodes[0].name = m_document.subBaseName;
    m_document.nodeCount = static_cast<int>(nodes.size());
    std::ranges::move(nodes, m_document.nodes.begin() + 1);
}

std::vector<Node> NodeFile::read()
{
    LineReader lines;
    if (!lines.open(m_folders.path(Folder::Nodes, fileName())).ok())
        return {};
    const QString version = lines.readLine().toString();
    lines.readLine();
    // Another document of the same name may have left it.
    if (lines.readLine() != m_document.subFileName)
        return {};
    if (version != m_versionNumber) {
        m_messages.ShowMessage(u"History file does not match current version./n"
                               "History data not loaded."_s,
                               Answer::Ok, u"ok"_s, u"Version Mismatch"_s);
        return {};
    }
    lines.readLine();
    lines.readLine();
    return readNodes(lines);
}

QString NodeFile::fileName() const
{
    return m_document.subBaseName % u".sdf";
}

} // namespace kavro
