#include "core/safe_file.h"

#include "tests/core/file_support.h"

#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

/// Writes lines of 9 bytes, CR LF among them.
FileStatus writeLines(FileStore &store, const QString &path, int count,
                      WriteMode mode = WriteMode::Replace)
{
    FileWriter writer(store);
    writer.open(path, {}, mode);
    for (int line = 0; line < count; ++line)
        writer.writeLine(u"line %1"_s.arg(line % 100, 2));
    return writer.commit();
}

TEST(SafeFile, ReplacesWithTheWholeFile)
{
    const TestFolder folder;
    folder.write("a", "old");
    FileStore store;
    FileWriter writer(store);
    ASSERT_TRUE(writer.open(folder.path("a")).ok());
    EXPECT_TRUE(writer.write(u"é "));
    EXPECT_TRUE(writer.writeLine(u"new"));
    EXPECT_EQ(folder.read("a"), "old") << "nothing changes before the end";
    EXPECT_TRUE(writer.commit().ok());
    EXPECT_EQ(folder.read("a"), "é new\r\n");
    EXPECT_EQ(folder.entries(), "a");
}

// A long text goes in pieces; wherever one ends, a character of two units stays whole.
TEST(SafeFile, LongTextsStayWhole)
{
    const TestFolder folder;
    FileStore store;
    for (const QString &head : {QString(), u"a"_s}) {
        const QString text = head + u"\U0001F600"_s.repeated(150000);
        FileWriter writer(store);
        writer.open(folder.path("a"));
        EXPECT_TRUE(writer.write(text));
        EXPECT_TRUE(writer.commit().ok());
        EXPECT_TRUE(folder.read("a") == text.toStdString());
    }
}

TEST(SafeFile, MarkStandsAheadAlsoOfNothing)
{
    const TestFolder folder;
    FileStore store;
    FileWriter writer(store);
    writer.open(folder.path("a"), {.name = "UTF-8", .bom = true});
    EXPECT_TRUE(writer.commit().ok());
    EXPECT_EQ(folder.read("a"), "\xEF\xBB\xBF");
    writer.open(folder.path("b"), {.name = "Windows-1251"});
    writer.writeLine(u"Да");
    EXPECT_TRUE(writer.commit().ok());
    EXPECT_EQ(folder.read("b"), "\xC4\xE0\r\n");
}

TEST(SafeFile, GoneWriterLeavesNoTrace)
{
    const TestFolder folder;
    folder.write("a", "old");
    FileStore store;
    {
        FileWriter writer(store);
        writer.open(folder.path("a"));
        writer.writeLine(u"new");
    }
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_EQ(folder.entries(), "a");
}

TEST(SafeFile, FullDiskKeepsTheOldFile)
{
    for (const qint64 free : {0, 1, 100, 70000}) {
        const TestFolder folder;
        folder.write("a", "old");
        FileStore store;
        store.setFreeBytes(free);
        const FileStatus status = writeLines(store, folder.path("a"), 20000);
        EXPECT_EQ(status.fault, FileFault::DiskFull) << free;
        EXPECT_EQ(status.text, u"No space left on device"_s);
        EXPECT_EQ(folder.read("a"), "old");
        EXPECT_EQ(folder.entries(), "a a.part");
        EXPECT_EQ(qint64(folder.read("a.part").size()), free);

        folder.makeFolder("b.part");
        EXPECT_FALSE(writeLines(store, folder.path("b"), 1).ok());
        EXPECT_EQ(folder.entries(), "a a.part b.part") << "what can't stay leaves no trace";
        store.setFreeBytes({});
        EXPECT_TRUE(writeLines(store, folder.path("a"), 20000).ok());
        EXPECT_EQ(folder.read("a").size(), 180000U);
    }
}

TEST(SafeFile, FullDiskCountsOverFiles)
{
    const TestFolder folder;
    FileStore store;
    store.setFreeBytes(20);
    EXPECT_TRUE(writeLines(store, folder.path("a"), 2).ok());
    EXPECT_FALSE(writeLines(store, folder.path("b"), 1).ok());
    EXPECT_EQ(folder.entries(), "a b.part");
}

TEST(SafeFile, PlainWritesGoStraight)
{
    const TestFolder folder;
    folder.write("a", "old and long enough to be cut");
    FileStore store;
    EXPECT_TRUE(writeLines(store, folder.path("a"), 1, WriteMode::Plain).ok());
    EXPECT_EQ(folder.read("a"), "line  0\r\n");
    store.setFreeBytes(4);
    EXPECT_FALSE(writeLines(store, folder.path("a"), 1, WriteMode::Plain).ok());
    EXPECT_EQ(folder.read("a"), "line");
    EXPECT_EQ(folder.entries(), "a");
}

TEST(SafeFile, LinksStay)
{
    const TestFolder folder;
    folder.makeFolder("far/deep");
    folder.makeFolder("near");
    folder.write("far/deep/file", "old");
    QFile::link(u"../far/deep"_s, folder.path("near/there"));     // to a folder
    QFile::link(u"there/file"_s, folder.path("near/link"));       // to a file that is there
    QFile::link(u"../other"_s, folder.path("far/deep/dangling")); // to one that isn't
    QFile::link(u"circle"_s, folder.path("circle"));
    FileStore store;
    EXPECT_TRUE(writeLines(store, folder.path("near/link"), 1).ok());
    EXPECT_EQ(folder.read("far/deep/file"), "line  0\r\n");
    EXPECT_TRUE(QFileInfo(folder.path("near/link")).isSymLink());
    EXPECT_TRUE(writeLines(store, folder.path("near/there/dangling"), 1).ok());
    EXPECT_EQ(folder.read("far/other"), "line  0\r\n") << "counted from the link's own folder";
    EXPECT_TRUE(QFileInfo(folder.path("far/deep/dangling")).isSymLink());
    EXPECT_EQ(writeLines(store, folder.path("circle"), 1).fault, FileFault::Unwritable);
    EXPECT_TRUE(QFileInfo(folder.path("circle")).isSymLink());
}

TEST(SafeFile, PermissionsStay)
{
    const TestFolder folder;
    FileStore store;
    for (const mode_t mode : {0600U, 0640U, 0755U}) {
        const QByteArray path = folder.write("a", "old").toUtf8();
        ::chmod(path.constData(), mode);
        EXPECT_TRUE(writeLines(store, folder.path("a"), 1).ok());
        struct stat now = {};
        ::stat(path.constData(), &now);
        EXPECT_EQ(now.st_mode & 0777U, mode);
    }
}

TEST(SafeFile, Faults)
{
    const TestFolder folder;
    folder.makeFolder("folder");
    FileStore store;
    EXPECT_EQ(writeLines(store, folder.path("folder"), 1).fault, FileFault::Folder);
    const FileStatus status = writeLines(store, folder.path("none/a"), 1);
    EXPECT_EQ(status.fault, FileFault::Unwritable);
    EXPECT_EQ(status.text, u"No such file or directory"_s);
    EXPECT_EQ(writeLines(store, folder.path("none/a"), 1, WriteMode::Plain).fault,
              FileFault::Unwritable);
    EXPECT_FALSE(writeLines(store, QString(), 1).ok());
    EXPECT_EQ(folder.entries(), "folder");
}

TEST(SafeFile, WriteProtectionIsRespected)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "root writes every file";
    const TestFolder folder;
    const QString path = folder.write("a", "old");
    ::chmod(path.toUtf8().constData(), 0444);
    FileStore store;
    EXPECT_EQ(writeLines(store, path, 1).fault, FileFault::Unwritable);
    EXPECT_EQ(folder.read("a"), "old");
}

TEST(SafeFile, TextThatCannotBeHeldIsNotWritten)
{
    const TestFolder folder;
    folder.write("a", "old");
    FileStore store;
    FileWriter writer(store);
    writer.open(folder.path("a"), {.name = "Windows-1252"});
    writer.writeLine(u"Да");
    EXPECT_EQ(writer.commit().fault, FileFault::Unencodable);
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_EQ(folder.entries(), "a");
}

TEST(SafeFile, DevicesAndPipesAreWrittenStraight)
{
    const TestFolder folder;
    FileStore store;
    EXPECT_TRUE(writeLines(store, u"/dev/null"_s, 20000).ok());
    EXPECT_EQ(writeLines(store, u"/dev/full"_s, 20000).fault, FileFault::DiskFull);

    const QString path = folder.path("pipe");
    ASSERT_EQ(::mkfifo(path.toUtf8().constData(), 0600), 0);
    QByteArray got;
    std::thread reader([&] {
        QFile pipe(path);
        pipe.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        got = pipe.readAll();
    });
    EXPECT_TRUE(writeLines(store, path, 20000).ok());
    reader.join();
    EXPECT_EQ(got.size(), 180000);
    EXPECT_EQ(folder.entries(), "pipe");
}

TEST(SafeFile, OpenFileOfAShellIsAppendedTo)
{
    const TestFolder folder;
    QFile open(folder.write("out", "head\n"));
    ASSERT_TRUE(open.open(QIODevice::Append));
    FileStore store;
    EXPECT_TRUE(writeLines(store, u"/proc/self/fd/%1"_s.arg(open.handle()), 1).ok());
    EXPECT_EQ(folder.read("out"), "head\nline  0\r\n");
}

TEST(SafeFile, StoreCopiesAndRemoves)
{
    const TestFolder folder;
    const QString from = folder.write("from", QByteArray(100000, 'x'));
    FileStore store;
    EXPECT_TRUE(store.copy(from, folder.path("to")).ok());
    EXPECT_EQ(folder.read("to"), folder.read("from"));
    store.setFreeBytes(99999);
    EXPECT_EQ(store.copy(from, folder.path("again")).fault, FileFault::DiskFull);
    EXPECT_EQ(store.copy(folder.path("none"), folder.path("again")).fault, FileFault::Unreadable);
    EXPECT_TRUE(store.remove(folder.path("to")).ok());
    EXPECT_TRUE(store.remove(folder.path("to")).ok());
    EXPECT_EQ(folder.entries(), "from");
}

} // namespace
} // namespace kavro
