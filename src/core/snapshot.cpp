#include "core/snapshot.h"

#include "core/editor_page.h"
#include "core/line_reader.h"
#include "core/safe_file.h"

#include <QStringBuilder>

#include <algorithm>
#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar escape = u'\x1B';

bool comesBack(QStringView text)
{
    const auto isSpecial = [](QChar c) { return c < u' ' || c.isSurrogate(); };
    if (std::ranges::none_of(text, isSpecial)) {
        return true;
    }
    return !text.startsWith(escape) && text.isValidUtf16() && !text.contains(u'\0')
           && !text.contains(u'\r') && !text.contains(u'\n');
}

QString escaped(QStringView text)
{
    QString line = escape;
    for (const QChar c : text) {
        if (c < u' ' || c == u'\\' || c.isSurrogate()) {
            line += u"\\%1"_s.arg(c.unicode(), 4, 16, '0'_L1);
        } else {
            line += c;
        }
    }
    return line;
}

QString unescaped(QStringView line)
{
    QString text;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'\\') {
            text += QChar(line.mid(i + 1, 4).toUShort(nullptr, 16));
            i += 4;
        } else {
            text += line[i];
        }
    }
    return text;
}

void writeText(FileWriter &file, const QString &text)
{
    file.writeLine(comesBack(text) ? text : escaped(text));
}

/// Reads values one by one; after a fault all are empty.
class SnapshotReader
{
public:
    explicit SnapshotReader(const QString &path)
    {
        m_lines.open(path, {.encoding = TextEncoding()});
    }

    QString text()
    {
        m_damaged = m_damaged || m_lines.atEnd();
        const QStringView line = m_lines.readLine();
        return line.startsWith(escape) ? unescaped(line.sliced(1)) : line.toString();
    }

    /// A whole number that lies in the range.
    int number(int least, int most) { return numberOf(text(), least, most); }

    int rowCount()
    {
        const QString head = text();
        const qsizetype mark = head.indexOf(u":=");
        constexpr int most = SubtitleDocument::maxSubtitles + 1;
        return numberOf(mark < 0 ? QString() : head.sliced(mark + 2), 1, most);
    }

    [[nodiscard]] bool ok() const { return !m_damaged && m_lines.status().ok(); }

    /// All was read, and nothing is left.
    FileStatus finish()
    {
        if (!m_lines.status().ok()) {
            return m_lines.status();
        }
        if (m_damaged || !m_lines.atEnd()) {
            return {.fault = FileFault::Unreadable, .text = u"The snapshot is damaged."_s};
        }
        return {};
    }

private:
    int numberOf(const QString &text, int least, int most)
    {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (!isNumber || number < least || number > most) {
            m_damaged = true;
            return least;
        }
        return number;
    }

    LineReader m_lines;
    bool m_damaged = false;
};

} // namespace

FileStatus writeSnapshot(FileStore &store, const QString &path, const SubtitleDocument &document,
                         const QString &versionNumber)
{
    const Grid &grid = document.editor.grdSubEdit;
    FileWriter file(store);
    file.open(path, {}, WriteMode::Plain);
    file.writeLine(QString(versionNumber % u":=" % QString::number(grid.rows() - 1)));
    file.writeLine(QString::number(document.nodeCount));
    file.writeLine(QString::number(document.curNode));
    for (int number = 0; number <= document.nodeCount; ++number) {
        const Node &node = document.nodes[static_cast<std::size_t>(number)];
        writeText(file, node.name);
        file.writeLine(QString::number(node.firstRow));
        file.writeLine(QString::number(node.lastRow));
        file.writeLine(node.flag ? u"1" : u"0");
    }
    for (int row = 1; row < grid.rows() && file.status().ok(); ++row) {
        for (int col = StartColumn; col <= LastTextColumn; ++col) {
            writeText(file, grid.text(row, col));
        }
    }
    FileStatus status = file.commit();
    if (!status.ok()) {
        store.remove(path);
    }
    return status;
}

FileStatus readSnapshot(const QString &path, Snapshot &snapshot)
{
    // Nodes may lie before or behind the rows: what inserts and deletes made of them comes back.
    constexpr int farthest = 1'000'000;
    SnapshotReader file(path);
    Snapshot read;
    const int rows = file.rowCount();
    const int nodeCount = file.number(0, SubtitleDocument::maxNodes);
    read.curNode = file.number(0, SubtitleDocument::maxNodes);
    for (int number = 0; number <= nodeCount && file.ok(); ++number) {
        Node node{.name = file.text()};
        node.firstRow = file.number(-farthest, farthest);
        node.lastRow = file.number(-farthest, farthest);
        node.flag = file.number(0, 1) != 0;
        read.nodes.push_back(node);
    }
    for (int row = 1; row <= rows && file.ok(); ++row) {
        QStringList cells;
        cells.reserve(ColumnCount);
        cells.append(row < rows ? QString::number(row) : QString());
        for (int col = StartColumn; col <= LastTextColumn; ++col) {
            cells.append(file.text());
        }
        read.rows.append(cells);
    }
    FileStatus status = file.finish();
    if (status.ok()) {
        snapshot = std::move(read);
    }
    return status;
}

} // namespace kavro
