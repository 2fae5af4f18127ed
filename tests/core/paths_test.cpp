#include "core/paths.h"

#include "tests/core/file_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

TEST(Paths, SplitBehindTheLastSeparator)
{
    const struct
    {
        QStringView path;
        QStringView folder;
        QStringView name;
    } rows[] = {
        {u"/films/a.srt", u"/films/", u"a.srt"},
        {u"/films/we\\ird.srt", u"/films/", u"we\\ird.srt"},
        {u"C:\\films\\a.srt", u"C:\\films\\", u"a.srt"},
        {u"films\\new/a.srt", u"films\\new/", u"a.srt"},
        {u"a.srt", u"", u"a.srt"},
        {u"/films/", u"/films/", u""},
        {u"", u"", u""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(folderOf(row.path), row.folder);
        EXPECT_EQ(nameOf(row.path), row.name);
    }
}

TEST(Paths, StoredPathsBecomeThisMachines)
{
    const TestFolder folder;
    const QString odd = folder.write("we\\ird.srt", "");
    EXPECT_EQ(toNative(u"films\\new\\a.srt"), u"films/new/a.srt"_s);
    EXPECT_EQ(toNative(u"/films\\a.srt"), u"/films/a.srt"_s);
    EXPECT_EQ(toNative(odd), odd) << "a file that is there under this very name";
    EXPECT_EQ(toNative(u""), u""_s);
}

TEST(Paths, NamesAreMetInAnyCase)
{
    const TestFolder folder;
    folder.makeFolder("SYSTEM/settings");
    folder.write("SYSTEM/settings/Set.SDF", "");
    folder.write("SYSTEM/a", "");
    folder.write("SYSTEM/A", "");
    const QString root = folder.path(".");
    EXPECT_EQ(matchName(root, u"System/Settings/set.sdf"), root + u"/SYSTEM/settings/Set.SDF"_s);
    EXPECT_EQ(matchName(root, u"\\System\\Settings\\new.sdf"),
              root + u"/SYSTEM/settings/new.sdf"_s);
    EXPECT_EQ(matchName(root, u"system/A"), root + u"/SYSTEM/A"_s);
    EXPECT_EQ(matchName(root, u"system/a"), root + u"/SYSTEM/a"_s);
    EXPECT_EQ(matchName(root, u"Data/x"), root + u"/Data/x"_s);
    EXPECT_EQ(matchName(root, u""), root);
}

TEST(Paths, PatternsAreMetInAnyCase)
{
    const TestFolder folder;
    for (const char *name : {"b.SRT", "a.srt", "C.sub", "d.txt", ".kavro-1.srt", "srt"})
        folder.write(name, "");
    folder.makeFolder("e.srt");
    EXPECT_EQ(filesIn(folder.path("."), u"*.sub;*.srt").join(u' '), u"a.srt b.SRT C.sub"_s);
    EXPECT_EQ(filesIn(folder.path("none"), u"*.srt"), QStringList());
}

} // namespace
} // namespace kavro
