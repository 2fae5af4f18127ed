#include "core/folders.h"

#include "core/safe_file.h"
#include "tests/core/file_support.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace kavro {
namespace {

/// An installed program: bin/ beside share/kavro, a home of the person, a folder of temporary
/// files.
class FoldersTest : public testing::Test
{
protected:
    FoldersTest()
    {
        for (const char *path : {"bin", "tmp", "home", "share/kavro/System/Settings",
                                 "share/kavro/System/Language", "share/kavro/Data/Calculator"})
            disk.makeFolder(path);
        disk.write("share/kavro/System/Settings/set.sdf", "shipped");
        disk.write("share/kavro/System/Language/Dutch.lng", "Dutch");
        disk.write("share/kavro/Data/Calculator/default.sac", "cels");
        sources = {.executableFolder = disk.path("bin"),
                   .userData = disk.path("home/kavro"),
                   .temporary = disk.path("tmp")};
    }

    std::unique_ptr<Folders> make(FolderUse use = FolderUse::Own)
    {
        auto folders = std::make_unique<Folders>(store, sources, use);
        EXPECT_TRUE(folders->prepare().ok());
        return folders;
    }

    TestFolder disk;
    FileStore store;
    FolderSources sources;
};

TEST_F(FoldersTest, ChoosesTheApplicationFolder)
{
    EXPECT_EQ(make()->path(Folder::Root), disk.path("home/kavro"));
    sources.home = disk.path("elsewhere");
    EXPECT_EQ(make()->path(Folder::Root), disk.path("elsewhere"));
    sources.appDir = disk.path("given");
    EXPECT_EQ(make()->path(Folder::Root), disk.path("given"));
    EXPECT_EQ(disk.read("given/System/Settings/set.sdf"), "shipped");
    EXPECT_EQ(make(FolderUse::Shipped)->path(Folder::Root), disk.path("given"));

    sources.appDir.clear();
    sources.home.clear();
    disk.makeFolder("bin/System");
    EXPECT_EQ(make()->path(Folder::Root), disk.path("bin"));
    EXPECT_EQ(disk.read("bin/System/Settings/set.sdf"), "(none)")
        << "a folder of one's own is not filled";

    disk.makeFolder("tree/build/release");
    disk.makeFolder("tree/share/System");
    sources.executableFolder = disk.path("tree/build/release");
    EXPECT_EQ(make()->shipped(), disk.path("tree/share")) << "found around a build";
}

TEST_F(FoldersTest, RunsWithNothingShipped)
{
    sources.executableFolder = disk.path("home/far/away");
    auto folders = make();
    EXPECT_EQ(folders->shipped(), QString());
    EXPECT_EQ(disk.entries("home/kavro"), "Data System Systemtem");

    folders = make(FolderUse::Shipped);
    const QString path = folders->path(Folder::Settings, u"set.sdf");
    EXPECT_EQ(path, disk.path("home/far/away/System/Settings/set.sdf")) << "is simply missing";
    EXPECT_EQ(folders->files(Folder::Language, u"*.lng"), QStringList());
}

TEST_F(FoldersTest, UpdateReplacesNothing)
{
    make();
    disk.write("home/kavro/System/Settings/set.sdf", "mine");
    disk.write("share/kavro/System/Settings/set.sdf", "newer");
    disk.write("share/kavro/System/new.sdf", "new");
    QFile::remove(disk.path("home/kavro/Data/Calculator/default.sac"));
    make();
    EXPECT_EQ(disk.read("home/kavro/System/Settings/set.sdf"), "mine");
    EXPECT_EQ(disk.read("home/kavro/System/new.sdf"), "new");
    EXPECT_EQ(disk.read("home/kavro/Data/Calculator/default.sac"), "(none)")
        << "deleted by the person";
}

TEST_F(FoldersTest, FolderMadeByHandStaysAsItIs)
{
    disk.makeFolder("given/SYSTEM/settings");
    disk.write("given/SYSTEM/settings/SET.sdf", "mine");
    sources.appDir = disk.path("given");
    auto folders = make();
    EXPECT_EQ(folders->path(Folder::Settings, u"set.sdf"),
              disk.path("given/SYSTEM/settings/SET.sdf"));
    EXPECT_EQ(disk.entries("given/SYSTEM"), "Language Nodes Recovery settings");
    EXPECT_EQ(folders->path(Folder::Help, u"English\\tip.sdf"),
              disk.path("given/SYSTEM/Language/Help/English/tip.sdf"));
}

TEST_F(FoldersTest, FirstStartOnAFullDiskIsToldAndTheNextFillsTheRest)
{
    for (const qint64 bytes : {3, 7, 12}) {
        disk.makeFolder("home/kavro/System");
        store.setFreeBytes(bytes);
        EXPECT_EQ(Folders(store, sources, FolderUse::Own).prepare().fault, FileFault::DiskFull);
        store.setFreeBytes({});
        make();
        EXPECT_EQ(disk.read("home/kavro/Data/Calculator/default.sac"), "cels") << bytes;
        EXPECT_EQ(disk.read("home/kavro/System/Language/Dutch.lng"), "Dutch") << bytes;
        EXPECT_EQ(disk.read("home/kavro/System/Settings/set.sdf"), "shipped") << bytes;
        EXPECT_TRUE(store.removeFolder(disk.path("home/kavro")).ok());
    }
}

TEST_F(FoldersTest, TemporaryFilesGoAtStartAndExit)
{
    disk.makeFolder("home/kavro/Data/Temporarily/run-2");
    disk.makeFolder("home/kavro/Data/Temporarily/kept");
    disk.makeFolder("home/kavro/Data/Drive");
    disk.write("home/kavro/Data/Temporarily/0000.shd", "");
    disk.write("home/kavro/Data/Temporarily/run-2/0000.shd", "");
    disk.write("home/kavro/Data/Drive/message.htm", "");
    auto folders = make();
    EXPECT_EQ(disk.entries("home/kavro/Data/Temporarily"), "kavro.lock kept");
    EXPECT_EQ(disk.entries("home/kavro/Data/Drive"), "");
    disk.write("home/kavro/Data/Temporarily/Splitprv.001", "");
    EXPECT_EQ(folders->path(Folder::Temporary, u"splitprv.001"),
              disk.path("home/kavro/Data/Temporarily/splitprv.001"))
        << "nobody looks through thousands of snapshots for another spelling";
    folders->tidy();
    EXPECT_EQ(disk.entries("home/kavro/Data/Temporarily"), "kept");
}

TEST_F(FoldersTest, TwoProgramsLeaveEachOtherAlone)
{
    auto first = make();
    disk.write("home/kavro/Data/Temporarily/0000.shd", "first");
    disk.write("home/kavro/Data/Drive/message.htm", "first");
    auto second = make();
    EXPECT_EQ(second->path(Folder::Temporary), disk.path("home/kavro/Data/Temporarily/run-2"));
    disk.write("home/kavro/Data/Temporarily/run-2/0000.shd", "second");
    auto third = make();
    EXPECT_EQ(third->path(Folder::Temporary, u"x"),
              disk.path("home/kavro/Data/Temporarily/run-3/x"));
    third.reset();
    EXPECT_EQ(disk.read("home/kavro/Data/Temporarily/0000.shd"), "first");
    EXPECT_EQ(disk.read("home/kavro/Data/Drive/message.htm"), "first");

    first.reset();
    EXPECT_EQ(disk.read("home/kavro/Data/Temporarily/run-2/0000.shd"), "second");
    first = make();
    EXPECT_EQ(first->path(Folder::Temporary), disk.path("home/kavro/Data/Temporarily"));
    EXPECT_EQ(disk.read("home/kavro/Data/Temporarily/run-2/0000.shd"), "second");
    second.reset();
    EXPECT_EQ(disk.entries("home/kavro/Data/Temporarily"), "kavro.lock");
}

TEST_F(FoldersTest, ShippedFolderIsOnlyRead)
{
    const std::string before =
        disk.entries("share/kavro/Data") + disk.entries("share/kavro/System");
    {
        auto folders = make(FolderUse::Shipped);
        const QString shipped = disk.path("share/kavro/System/Settings/set.sdf");
        EXPECT_EQ(folders->path(Folder::Settings, u"set.sdf"), shipped);
        EXPECT_EQ(folders->files(Folder::Language, u"*.LNG"), QStringList(u"Dutch.lng"_s));
        EXPECT_EQ(disk.entries("tmp"), "") << "nothing is made before it is needed";

        const QString written = folders->writablePath(Folder::Settings, u"set.sdf");
        const QString preview = folders->path(Folder::Temporary, u"Splitprv.001");
        EXPECT_TRUE(folders->makeRoomFor(written).ok());
        EXPECT_TRUE(folders->makeRoomFor(preview).ok());
        EXPECT_TRUE(folders->makeRoomFor(disk.path("home/film.srt")).ok());
        EXPECT_EQ(folders->path(Folder::Settings, u"set.sdf"), shipped) << "until another is there";
        for (const QString &path : {written, preview}) {
            FileWriter writer(store);
            writer.open(path);
            writer.writeLine(u"mine");
            EXPECT_TRUE(writer.commit().ok());
        }
        EXPECT_EQ(folders->path(Folder::Settings, u"set.sdf"), written);
        EXPECT_TRUE(folders->makeRoomFor(folders->writablePath(Folder::Language, u"A.lng")).ok());
        EXPECT_TRUE(store.copy(shipped, folders->writablePath(Folder::Language, u"A.lng")).ok());
        EXPECT_EQ(folders->files(Folder::Language, u"*.lng").join(u' '), u"A.lng Dutch.lng"_s);

        struct stat place = {};
        ::stat(disk.path(("tmp/" + disk.entries("tmp")).c_str()).toUtf8().constData(), &place);
        EXPECT_EQ(place.st_mode & 0777U, 0700U);
    }
    EXPECT_EQ(disk.entries("tmp"), "");
    EXPECT_EQ(disk.entries("share/kavro/Data") + disk.entries("share/kavro/System"), before);
}

TEST_F(FoldersTest, RemovesFilesByPatternAndNeverShippedOnes)
{
    auto folders = make();
    for (const char *name : {"splitprv.001", "Splitprv.two", "splitprv", "xsplitprv.001"}) {
        disk.write(("home/kavro/"s + name).c_str(), "old");
        disk.write(("share/kavro/"s + name).c_str(), "shipped");
    }
    disk.makeFolder("home/kavro/splitprv.folder");
    folders->removeFiles(Folder::Root, u"splitprv.*");
    EXPECT_EQ(disk.entries("home/kavro"),
              "Data System Systemtem splitprv splitprv.folder xsplitprv.001");
    const std::string shipped = disk.entries("share/kavro");
    make(FolderUse::Shipped)->removeFiles(Folder::Root, u"splitprv.*");
    EXPECT_EQ(disk.entries("share/kavro"), shipped);
}

} // namespace
} // namespace kavro
