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

class SafeFile : public testing::Test
{
protected:
    /// Writes lines of 9 bytes, CR LF among them.
    FileStatus writeLines(const QString &path, int count, WriteMode mode = WriteMode::Replace)
    {
        FileWriter writer(store);
        writer.open(path, {}, mode);
        for (int line = 0; line < count; ++line)
            writer.writeLine(u"line %1"_s.arg(line % 100, 2));
        return writer.commit();
    }

    FileStatus writeLines(const char *name, int count, WriteMode mode = WriteMode::Replace)
    {
        return writeLines(folder.path(name), count, mode);
    }

    TestFolder folder;
    FileStore store;
};

TEST_F(SafeFile, ReplacesWithTheWholeFileAndOnlyAtTheEnd)
{
    folder.write("a", "old");
    {
        FileWriter writer(store);
        writer.open(folder.path("a"));
        writer.writeLine(u"gone");
    }
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_EQ(folder.entries(), "a") << "a writer that goes leaves no trace";

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
TEST_F(SafeFile, LongTextsStayWhole)
{
    for (const QString &head : {QString(), u"a"_s}) {
        const QString text = head + u"\U0001F600"_s.repeated(150000);
        FileWriter writer(store);
        writer.open(folder.path("a"));
        EXPECT_TRUE(writer.write(text));
        EXPECT_TRUE(writer.commit().ok());
        EXPECT_TRUE(folder.read("a") == text.toStdString());
    }
}

TEST_F(SafeFile, EncodingIsTheFiles)
{
    FileWriter writer(store);
    writer.open(folder.path("a"), {.name = "UTF-8", .bom = true});
    EXPECT_TRUE(writer.commit().ok());
    EXPECT_EQ(folder.read("a"), "\xEF\xBB\xBF") << "the mark stands ahead also of nothing";
    writer.open(folder.path("a"), {.name = "Windows-1251"});
    writer.writeLine(u"Да");
    EXPECT_TRUE(writer.commit().ok());
    EXPECT_EQ(folder.read("a"), "\xC4\xE0\r\n");
    writer.open(folder.path("a"), {.name = "Windows-1252"});
    writer.writeLine(u"Да");
    EXPECT_EQ(writer.commit().fault, FileFault::Unencodable);
    EXPECT_EQ(folder.read("a"), "\xC4\xE0\r\n");
    EXPECT_EQ(folder.entries(), "a");
}

TEST_F(SafeFile, FullDiskKeepsTheOldFile)
{
    folder.write("a", "old");
    folder.makeFolder("b.part");
    for (const qint64 free : {0, 1, 100, 70000}) {
        store.setFreeBytes(free);
        const FileStatus status = writeLines("a", 20000);
        EXPECT_EQ(status.fault, FileFault::DiskFull) << free;
        EXPECT_EQ(status.text, u"No space left on device"_s);
        EXPECT_EQ(folder.read("a"), "old");
        EXPECT_EQ(qint64(folder.read("a.part").size()), free);
        EXPECT_FALSE(writeLines("b", 1).ok());
        EXPECT_EQ(folder.entries(), "a a.part b.part") << "what can't stay leaves no trace";
    }
    store.setFreeBytes(180020);
    EXPECT_TRUE(writeLines("a", 20000).ok());
    EXPECT_EQ(folder.read("a").size(), 180000U);
    EXPECT_TRUE(writeLines("c", 2).ok());
    EXPECT_FALSE(writeLines("d", 1).ok()) << "the bytes count over all files";
    EXPECT_EQ(folder.read("d.part"), "li");
}

TEST_F(SafeFile, PlainWritesGoStraight)
{
    folder.write("a", "old and long enough to be cut");
    EXPECT_TRUE(writeLines("a", 1, WriteMode::Plain).ok());
    EXPECT_EQ(folder.read("a"), "line  0\r\n");
    store.setFreeBytes(4);
    EXPECT_FALSE(writeLines("a", 1, WriteMode::Plain).ok());
    EXPECT_EQ(folder.read("a"), "line");
    EXPECT_EQ(folder.entries(), "a");
}

TEST_F(SafeFile, LinksStay)
{
    folder.makeFolder("far/deep");
    folder.makeFolder("near");
    folder.write("far/deep/file", "old");
    QFile::link(u"../far/deep"_s, folder.path("near/there"));     // to a folder
    QFile::link(u"there/file"_s, folder.path("near/link"));       // to a file that is there
    QFile::link(u"../other"_s, folder.path("far/deep/dangling")); // to one that isn't
    QFile::link(u"circle"_s, folder.path("circle"));
    EXPECT_TRUE(writeLines("near/link", 1).ok());
    EXPECT_EQ(folder.read("far/deep/file"), "line  0\r\n");
    EXPECT_TRUE(writeLines("near/there/dangling", 1).ok());
    EXPECT_EQ(folder.read("far/other"), "line  0\r\n") << "counted from the link's own folder";
    EXPECT_EQ(writeLines("circle", 1).fault, FileFault::Unwritable);
    for (const char *link : {"near/link", "far/deep/dangling", "circle"})
        EXPECT_TRUE(QFileInfo(folder.path(link)).isSymLink()) << link;
}

TEST_F(SafeFile, PermissionsStay)
{
    const QByteArray path = folder.write("a", "old").toUtf8();
    for (const mode_t mode : {0600U, 0640U, 0755U}) {
        ::chmod(path.constData(), mode);
        EXPECT_TRUE(writeLines("a", 1).ok());
        struct stat now = {};
        ::stat(path.constData(), &now);
        EXPECT_EQ(now.st_mode & 0777U, mode);
    }
    if (::geteuid() == 0)
        return; // who writes every file
    ::chmod(path.constData(), 0444);
    EXPECT_EQ(writeLines("a", 2).fault, FileFault::Unwritable);
    EXPECT_EQ(folder.read("a"), "line  0\r\n");
}

TEST_F(SafeFile, Faults)
{
    folder.makeFolder("folder");
    EXPECT_EQ(writeLines("folder", 1).fault, FileFault::Folder);
    const FileStatus status = writeLines("none/a", 1);
    EXPECT_EQ(status.fault, FileFault::Unwritable);
    EXPECT_EQ(status.text, u"No such file or directory"_s);
    EXPECT_EQ(writeLines("none/a", 1, WriteMode::Plain).fault, FileFault::Unwritable);
    EXPECT_FALSE(writeLines(QString(), 1).ok());
    EXPECT_EQ(folder.entries(), "folder");
}

TEST_F(SafeFile, DevicesPipesAndOpenFilesAreWrittenStraight)
{
    EXPECT_TRUE(writeLines(u"/dev/null"_s, 20000).ok());
    EXPECT_EQ(writeLines(u"/dev/full"_s, 20000).fault, FileFault::DiskFull);

    const QString path = folder.path("pipe");
    ASSERT_EQ(::mkfifo(path.toUtf8().constData(), 0600), 0);
    QByteArray got;
    std::thread reader([&] {
        QFile pipe(path);
        pipe.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        got = pipe.readAll();
    });
    EXPECT_TRUE(writeLines(path, 20000).ok());
    reader.join();
    EXPECT_EQ(got.size(), 180000);

    QFile open(folder.write("out", "head\n"));
    ASSERT_TRUE(open.open(QIODevice::Append));
    EXPECT_TRUE(writeLines(u"/proc/self/fd/%1"_s.arg(open.handle()), 1).ok());
    EXPECT_EQ(folder.read("out"), "head\nline  0\r\n") << "a shell goes on behind it";
    EXPECT_EQ(folder.entries(), "out pipe");
}

TEST_F(SafeFile, StoreCopiesAndRemoves)
{
    const QString from = folder.write("from", QByteArray(100000, 'x'));
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
