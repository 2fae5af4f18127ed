#include "core/line_reader.h"

#include "tests/core/file_support.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <thread>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

QStringList linesOf(LineReader &reader)
{
    QStringList lines;
    while (!reader.atEnd())
        lines.append(reader.readLine().toString());
    return lines;
}

/// The lines with "|" between them.
std::string joined(const QByteArray &bytes, const ReadOptions &options = {})
{
    const TestFolder folder;
    LineReader reader;
    const FileStatus &status = reader.open(folder.write("file", bytes), options);
    return status.ok() ? linesOf(reader).join(u'|').toStdString() : status.text.toStdString();
}

TEST(LineReader, LineEnds)
{
    const struct
    {
        const char *bytes;
        const char *lines;
    } rows[] = {
        {"a\r\nb\r\n", "a|b"},
        {"a\nb\n", "a|b"},
        {"a\rb\r", "a|b"},
        {"a\nb", "a|b"},
        {"a", "a"},
        {"\n", ""},
        {"\r\n\r\n", "|"},
        {"\n\r", "|"},
        {"a\n\nb", "a||b"},
        {"a\r\r\nb", "a||b"},
        {"a\r\nb\nc\rd", "a|b|c|d"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(joined(row.bytes), row.lines);
}

TEST(LineReader, EncodingsAndMarks)
{
    const struct
    {
        QByteArray bytes;
        const char *lines;
    } rows[] = {
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9\n",
         "café"},
        {QByteArray("\xFF\xFE"
                    "a\0\r\0\n\0b\0",
                    10),
         "a|b"},
        {QByteArray("\xFE\xFF"
                    "\0a\0\r\0\n\0b",
                    10),
         "a|b"},
        {QByteArray("\xFF\xFE\0\0"
                    "a\0\0\0\n\0\0\0b\0\0\0",
                    16),
         "a|b"},
        {QByteArray("\xFF\xFE\x0A\x0A", 4), "\u0A0A"}, // no line end in it
        {"caf\xE9\n", "café"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(joined(row.bytes), row.lines);

    EXPECT_EQ(joined("caf\xE9", {.encoding = TextEncoding{.name = "Windows-1251"}}), "cafй");
    EXPECT_EQ(joined("caf\xE9", {.codePage = "Windows-1251"}), "cafй");
    EXPECT_EQ(joined("caf\xC3\xA9", {.codePage = "Windows-1251"}), "café");
    EXPECT_EQ(joined("\xEF\xBB\xBF"
                     "a",
                     {.encoding = TextEncoding{}}),
              "a");
    EXPECT_EQ(joined(QByteArray("a\0b\0", 4), {.encoding = encodingByName(u"utf-16")}), "ab");
}

TEST(LineReader, RemembersTheEncoding)
{
    const TestFolder folder;
    LineReader reader;
    reader.open(folder.write("a", "\xEF\xBB\xBF"
                                  "a"));
    EXPECT_EQ(reader.encoding(), (TextEncoding{.name = "UTF-8", .bom = true}));
    reader.open(folder.write("b", "a"));
    EXPECT_EQ(reader.encoding(), TextEncoding{});
    reader.open(folder.write("c", "\xEF\xBB\xBF"
                                  "a"),
                {.encoding = TextEncoding{}});
    EXPECT_TRUE(reader.encoding().bom) << "a mark that was there goes back into the file";
}

TEST(LineReader, Faults)
{
    const TestFolder folder;
    folder.makeFolder("folder");
    const struct
    {
        QString path;
        FileFault fault;
    } rows[] = {
        {folder.path("missing"), FileFault::Missing},
        {folder.path("folder"), FileFault::Folder},
        {folder.write("empty", ""), FileFault::Empty},
        {folder.write("mark", "\xEF\xBB\xBF"), FileFault::Empty},
        {folder.write("mark16", "\xFF\xFE"), FileFault::Empty},
        {folder.write("binary", QByteArray("a\nb\0c\n", 6)), FileFault::Binary},
        {u"/dev/null"_s, FileFault::Empty},
        {u""_s, FileFault::Missing},
    };
    for (const auto &row : rows) {
        LineReader reader;
        const FileStatus &status = reader.open(row.path);
        EXPECT_EQ(status.fault, row.fault) << row.path.toStdString();
        EXPECT_FALSE(status.text.isEmpty());
        EXPECT_TRUE(reader.atEnd());
        EXPECT_EQ(reader.readLine(), QString());
        reader.restart();
        EXPECT_TRUE(reader.atEnd());
    }
}

TEST(LineReader, UnreadableFile)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "root reads every file";
    const TestFolder folder;
    const QString path = folder.write("closed", "text");
    ::chmod(path.toUtf8().constData(), 0);
    LineReader reader;
    EXPECT_EQ(reader.open(path).fault, FileFault::Unreadable);
}

// A piece is 64 KiB: what lies across its end must read as anywhere else.
TEST(LineReader, AcrossTheEndOfAPiece)
{
    constexpr qsizetype piece = 1 << 16;
    const struct
    {
        const char *name;
        QByteArray across; ///< its third byte is the first of the next piece
        const char *lines; ///< behind the filling line
        std::optional<TextEncoding> encoding = {};
    } rows[] = {
        {"CR LF", "x\r\ny\n", "x|y"},
        {"CR LF at the file's end", "x\r\n", "x"},
        {"CR at the piece's end", "x\ry", "x|y"},
        {"LF at the piece's end", "x\ny", "x|y"},
        {"CR LF, empty line", "x\r\n\r\ny", "x||y"},
        {"a sequence of two bytes", "x\xC3\xA9y", "xéy"},
        {"a sequence of four bytes", "x\xF0\x9F\x98\x80y", "x😀y"},
        {"a line", "xyz", "xyz"},
        {"a character of Shift_JIS", "x\x82\xA0y", "xあy", encodingByName(u"Shift_JIS")},
    };
    for (const auto &row : rows) {
        const TestFolder folder;
        const QByteArray filling = QByteArray(piece - 3, 'f') + '\n';
        LineReader reader;
        const QString path = folder.write("file", filling + row.across);
        ASSERT_TRUE(reader.open(path, {.encoding = row.encoding}).ok());
        for (int pass = 0; pass < 2; ++pass) {
            ASSERT_FALSE(reader.atEnd());
            EXPECT_EQ(reader.readLine().size(), piece - 3);
            EXPECT_EQ(linesOf(reader).join(u'|').toStdString(), row.lines) << row.name;
            reader.restart();
        }
    }
}

TEST(LineReader, LineOutlivesTheQuestionForTheEnd)
{
    constexpr qsizetype piece = 1 << 16;
    const TestFolder folder;
    const QByteArray block = QByteArray(piece / 2 - 1, 'a') + '\n';
    LineReader reader;
    reader.open(folder.write("file", block + block + block + block));
    for (int line = 0; line < 4; ++line) {
        const QStringView view = reader.readLine();
        EXPECT_EQ(reader.atEnd(), line == 3);
        EXPECT_EQ(view.size(), piece / 2 - 1);
        EXPECT_EQ(view.back(), u'a');
    }
}

TEST(LineReader, LongLines)
{
    const TestFolder folder;
    const auto longest = static_cast<qsizetype>(LineReader::maxLineLength);
    LineReader reader;
    reader.open(folder.write("fits", QByteArray(longest, 'a') + "\nb\n"));
    EXPECT_EQ(reader.readLine().size(), longest);
    EXPECT_EQ(reader.readLine(), u"b"_s);
    EXPECT_TRUE(reader.atEnd());
    EXPECT_TRUE(reader.status().ok());

    // Found while reading: the lines ahead of it are there, the lines behind are not.
    reader.open(folder.write("long", "a\n" + QByteArray(longest + 1, 'a') + "\nb\n"));
    EXPECT_TRUE(reader.status().ok());
    EXPECT_EQ(linesOf(reader).size(), 2);
    EXPECT_EQ(reader.status().fault, FileFault::LineTooLong);
    reader.restart();
    EXPECT_TRUE(reader.atEnd());

    // Accents count as one, whatever bytes they take.
    reader.open(folder.write("accents", QByteArray("\xC3\xA9").repeated(longest)));
    EXPECT_EQ(reader.readLine().size(), longest);

    // Found when opening.
    reader.open(folder.write("longer", QByteArray(20 << 20, 'a')));
    EXPECT_EQ(reader.status().fault, FileFault::LineTooLong);
}

TEST(LineReader, HugeFilesFailAtOnce)
{
    const TestFolder folder;
    const QString zeros = folder.write("zeros", "");
    ASSERT_EQ(::truncate(zeros.toUtf8().constData(), off_t{2} << 30), 0);
    const std::clock_t begun = std::clock(); // the process's own time
    LineReader reader;
    EXPECT_EQ(reader.open(zeros).fault, FileFault::Binary);
    EXPECT_EQ(reader.open(u"/dev/zero"_s).fault, FileFault::TooLarge);
    EXPECT_LT((std::clock() - begun) / CLOCKS_PER_SEC, 5);
}

TEST(LineReader, PipesAreReadTwice)
{
    const TestFolder folder;
    const QString path = folder.path("pipe");
    ASSERT_EQ(::mkfifo(path.toUtf8().constData(), 0600), 0);
    std::thread writer([&] {
        QFile pipe(path);
        pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        pipe.write("one\r");
        pipe.write("\ntwo");
    });
    LineReader reader;
    reader.open(path);
    writer.join();
    EXPECT_EQ(linesOf(reader).join(u'|').toStdString(), "one|two");
    reader.restart();
    EXPECT_EQ(linesOf(reader).join(u'|').toStdString(), "one|two");
}

} // namespace
} // namespace kavro
