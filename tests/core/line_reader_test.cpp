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

constexpr qsizetype piece = 1 << 16; ///< what is read at once

class LineReaderTest : public testing::Test
{
protected:
    /// The lines that are left with "|" between them.
    std::string rest()
    {
        QStringList lines;
        while (!reader.atEnd())
            lines.append(reader.readLine().toString());
        return lines.join(u'|').toStdString();
    }

    /// The lines of a file with these bytes, or its fault.
    std::string joined(const QByteArray &bytes, const ReadOptions &options = {})
    {
        const FileStatus &status = reader.open(folder.write("file", bytes), options);
        return status.ok() ? rest() : status.text.toStdString();
    }

    TestFolder folder;
    LineReader reader;
};

TEST_F(LineReaderTest, LineEnds)
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

TEST_F(LineReaderTest, EncodingsAndMarks)
{
    const struct
    {
        QByteArray bytes;
        const char *lines;
    } rows[] = {
        {"\xEF\xBB\xBFt\xC3\xA9\n", "té"},
        {QByteArray("\xFF\xFEx\0\r\0\n\0y\0", 10), "x|y"},
        {QByteArray("\xFE\xFF\0x\0\r\0\n\0y", 10), "x|y"},
        {QByteArray("\xFF\xFE\0\0x\0\0\0\n\0\0\0y\0\0\0", 16), "x|y"},
        {QByteArray("\xFF\xFE\x0A\x0A", 4), "\u0A0A"}, // no line end in it
        {"caf\xE9\n", "café"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(joined(row.bytes), row.lines);

    EXPECT_EQ(joined("caf\xE9", {.encoding = TextEncoding{.name = "Windows-1251"}}), "cafй");
    EXPECT_EQ(joined("caf\xE9", {.codePage = "Windows-1251"}), "cafй");
    EXPECT_EQ(joined("caf\xC3\xA9", {.codePage = "Windows-1251"}), "café");
    EXPECT_EQ(joined(QByteArray("a\0b\0", 4), {.encoding = encodingByName(u"utf-16")}), "ab");
    EXPECT_EQ(joined("a"), "a");
    EXPECT_EQ(reader.encoding(), TextEncoding{});
    for (const auto &given : {std::optional<TextEncoding>(), std::optional(TextEncoding{})}) {
        EXPECT_EQ(joined("\xEF\xBB\xBF-", {.encoding = given}), "-");
        EXPECT_TRUE(reader.encoding().bom) << "a mark that was there goes back into the file";
    }
}

TEST_F(LineReaderTest, Faults)
{
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
        const FileStatus &status = reader.open(row.path);
        EXPECT_EQ(status.fault, row.fault) << row.path.toStdString();
        EXPECT_FALSE(status.text.isEmpty());
        EXPECT_TRUE(reader.atEnd());
        EXPECT_EQ(reader.readLine(), QString());
        reader.restart();
        EXPECT_TRUE(reader.atEnd());
    }
    if (::geteuid() == 0)
        return; // who reads every file
    const QString path = folder.write("closed", "text");
    ::chmod(path.toUtf8().constData(), 0);
    EXPECT_EQ(reader.open(path).fault, FileFault::Unreadable);
}

// A piece is 64 KiB: what lies across its end must read as anywhere else.
TEST_F(LineReaderTest, AcrossTheEndOfAPiece)
{
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
        const QByteArray filling = QByteArray(piece - 3, 'f') + '\n';
        const QString path = folder.write("file", filling + row.across);
        ASSERT_TRUE(reader.open(path, {.encoding = row.encoding}).ok());
        for (int pass = 0; pass < 2; ++pass) {
            ASSERT_FALSE(reader.atEnd());
            EXPECT_EQ(reader.readLine().size(), piece - 3);
            EXPECT_EQ(rest(), row.lines) << row.name;
            reader.restart();
        }
    }
}

TEST_F(LineReaderTest, LineOutlivesTheQuestionForTheEnd)
{
    const QByteArray block = QByteArray(piece / 2 - 1, 'a') + '\n';
    reader.open(folder.write("file", block + block + block + block));
    for (int line = 0; line < 4; ++line) {
        const QStringView view = reader.readLine();
        EXPECT_EQ(reader.atEnd(), line == 3);
        EXPECT_EQ(view.size(), piece / 2 - 1);
        EXPECT_EQ(view.back(), u'a');
    }
}

TEST_F(LineReaderTest, LongLines)
{
    const auto longest = static_cast<qsizetype>(LineReader::maxLineLength);
    reader.open(folder.write("fits", QByteArray(longest, 'a') + "\nb\n"));
    EXPECT_EQ(reader.readLine().size(), longest);
    EXPECT_EQ(reader.readLine(), u"b"_s);
    EXPECT_TRUE(reader.atEnd());
    EXPECT_TRUE(reader.status().ok());

    // Found while reading: the lines ahead of it are there, the lines behind are not.
    reader.open(folder.write("long", "a\n" + QByteArray(longest + 1, 'a') + "\nb\n"));
    EXPECT_TRUE(reader.status().ok());
    EXPECT_EQ(rest(), "a|");
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

TEST_F(LineReaderTest, HugeFilesFailAtOnce)
{
    const QString zeros = folder.write("zeros", "");
    ASSERT_EQ(::truncate(zeros.toUtf8().constData(), off_t{2} << 30), 0);
    const std::clock_t begun = std::clock(); // the process's own time
    EXPECT_EQ(reader.open(zeros).fault, FileFault::Binary);
    EXPECT_EQ(reader.open(u"/dev/zero"_s).fault, FileFault::TooLarge);
    EXPECT_LT((std::clock() - begun) / CLOCKS_PER_SEC, 5);
}

TEST_F(LineReaderTest, PipesAreReadTwice)
{
    const QString path = folder.path("pipe");
    ASSERT_EQ(::mkfifo(path.toUtf8().constData(), 0600), 0);
    std::thread writer([&] {
        QFile pipe(path);
        pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        pipe.write("one\r");
        pipe.write("\ntwo");
    });
    reader.open(path);
    writer.join();
    EXPECT_EQ(rest(), "one|two");
    reader.restart();
    EXPECT_EQ(rest(), "one|two");
}

} // namespace
} // namespace kavro
