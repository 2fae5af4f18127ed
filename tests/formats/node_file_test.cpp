#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

struct NodeFixture : FormatsFixture
{
    NodeFixture()
    {
        QString text;
        for (int i = 1; i <= 6; ++i)
            text += u"%1\n00:00:0%1,000 --> 00:00:0%1,500\nx\n\n"_s.arg(i);
        film = write(u"films/a.b.srt"_s, text);
    }

    /// Loads the film beside a node file; "%1" in it stands for the film's path.
    void loadWith(const QString &nodeText)
    {
        write(u"app/System/Nodes/a.sdf"_s, QString(nodeText).replace(u"%1"_s, film));
        load(film);
    }

    /// "first-last name flag" of each node.
    [[nodiscard]] std::string nodes() const
    {
        QStringList all;
        for (int i = 1; i <= document.nodeCount; ++i) {
            const Node &node = document.nodes[static_cast<std::size_t>(i)];
            all.append(u"%1-%2 %3 %4"_s.arg(node.firstRow)
                           .arg(node.lastRow)
                           .arg(node.name)
                           .arg(node.flag ? 1 : 0));
        }
        return all.join(u", "_s).toStdString();
    }

    QString film;
};

const QString head = u"4.00\r\n<File>\r\n%1\r\n</File>\r\n<Data>\r\n"_s;

TEST(NodeFile, KeepsTheNodesOfADocument)
{
    NodeFixture fixture;
    fixture.load(fixture.film);
    EXPECT_EQ(fixture.nodes(), "1-6 a 0");
    fixture.document.nodeCount = 2;
    fixture.document.nodes[1] = {.firstRow = 1, .lastRow = 2, .name = u"scene1"_s, .flag = true};
    fixture.document.nodes[2] = {.firstRow = 3, .lastRow = 6, .name = u"b:2,3"_s, .flag = false};
    fixture.nodeFile.SaveSubControl(fixture.film);
    EXPECT_EQ(FormatsFixture::read(fixture.folders.path(Folder::Nodes, u"a.sdf")),
              QString(head + u"2\r\n1,2:scene11\r\n3,6:b:2,30\r\n</Data>\r\n"_s)
                  .replace(u"%1"_s, fixture.film)
                  .toStdString());
    fixture.load(fixture.film);
    EXPECT_EQ(fixture.nodes(), "1-2 scene1 1, 3-6 b:2,3 0");
    EXPECT_EQ(fixture.cell(3, NumberColumn), u" { 3"_s);
    EXPECT_EQ(fixture.document.curNode, 1);
}

TEST(NodeFile, FitsTheRowsOrGivesOneNode)
{
    const char *const one = "1-6 a 0";
    const struct
    {
        const char *name;
        QString text;
        const char *nodes;
        const char *message = "";
    } cases[] = {
        {"behind the last row", head + u"3\r\n1,2:a0\r\n3,40:b1\r\n41,50:c0\r\n"_s,
         "1-2 a 0, 3-6 b 1"},
        {"short of the last row", head + u"2\r\n1,2:a0\r\n3,4:b0\r\n"_s, "1-2 a 0, 3-6 b 0"},
        {"with a gap", head + u"2\r\n2,2:a0\r\n5,6:b0\r\n"_s, "1-4 a 0, 5-6 b 0"},
        {"a node without rows", head + u"2\r\n1,0:a0\r\n1,6:b0\r\n"_s, "1-6 b 0"},
        {"a name that is empty", head + u"1\r\n1,6:1\r\n"_s, "1-6  1"},
        {"another path",
         u"4.00\r\n<File>\r\n/other/a.srt\r\n</File>\r\n<Data>\r\n1\r\n1,3:x0\r\n"_s, one},
        {"another version", QString(head).replace(u"4.00"_s, u"3.00"_s) + u"1\r\n1,3:x0\r\n"_s, one,
         "Version Mismatch: History file does not match current version./History data not "
         "loaded."},
        {"empty", QString(), one},
        {"binary", QString(QChar(u'\0')), one},
        {"cut in the nodes", head + u"2\r\n1,3:x0\r\n"_s, one},
        {"cut behind the head", head, one},
        {"out of order", head + u"2\r\n4,6:x0\r\n1,3:y0\r\n"_s, one},
        {"no numbers", head + u"1\r\na,b:x0\r\n"_s, one},
        {"no marks", head + u"1\r\n1 3 x\r\n"_s, one},
        {"a huge count", head + u"99999999\r\n1,3:x0\r\n"_s, one},
        {"a count below 0", head + u"-1\r\n1,3:x0\r\n"_s, one},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        NodeFixture fixture;
        fixture.loadWith(c.text);
        EXPECT_EQ(fixture.nodes(), c.nodes);
        EXPECT_EQ(fixture.takeMessages(), c.message);
    }
}

TEST(NodeFile, ThatCannotBeWrittenIsNoFault)
{
    NodeFixture fixture;
    fixture.load(fixture.film);
    fixture.store.setFreeBytes(0);
    fixture.nodeFile.SaveSubControl(fixture.film);
    EXPECT_EQ(fixture.takeMessages(), "");
}

} // namespace
} // namespace kavro::test
