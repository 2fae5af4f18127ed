#include "formats/format_table.h"

#include "formats/file_filters.h"

#include <gtest/gtest.h>

#include <utility>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(FormatTable, AgreesWithTheFiltersOfTheFileWindow)
{
    ASSERT_EQ(fileFilters().size(), 22);
    for (const FormatInfo &info : formatTable()) {
        const QStringList patterns = fileFilters()[info.id].section(u'|', 1).split(u';');
        EXPECT_TRUE(patterns.contains(u"*"_s + info.extension.toString())) << info.id;
        EXPECT_EQ(formatInfo(info.id), &info);
        EXPECT_TRUE(subtitlePatterns().contains(u"*"_s + info.extension.toString())) << info.id;
        if (info.id != Sami) {
            EXPECT_EQ(filterLabel(info.id), info.name) << info.id;
        }
    }
    EXPECT_EQ(formatInfo(0), nullptr);
    EXPECT_EQ(formatInfo(17), nullptr);
    EXPECT_EQ(SetSubFileExt(17), QString());
}

TEST(FormatTable, NamesFilters)
{
    EXPECT_EQ(filterLabel(Sami), u"Synch. Accessible Media Interchange"_s);
    EXPECT_EQ(filterExtension(Sami), u".sami"_s);
    EXPECT_EQ(filterExtension(SubRip), u".srt"_s);
    EXPECT_EQ(filterExtension(SettingFile), u".scd"_s);
    EXPECT_EQ(filterLabel(99), QString());
    EXPECT_EQ(filterExtension(-1), QString());
}

TEST(FormatTable, FindsTheFormatThatAPersonNames)
{
    const std::pair<QStringView, int> cases[] = {
        {u"9", SubRip},
        {u"subrip", SubRip},
        {u"MicroDVD", MicroDvd},
        {u"substation alpha", SubStationAlpha},
        {u".srt", SubRip},
        {u".SMI", Sami},
        {u".sami", Sami},
        {u".txt", TmPlayer},
        {u".sub", 0},
        {u"srt", 0},
        {u"0", 0},
        {u"17", 0},
        {u"", 0},
        {u".", 0},
        {u".avi", 0},
        {u"SubViewer", 0},
    };
    for (const auto &[name, format] : cases)
        EXPECT_EQ(formatByName(name).value_or(UnknownFormat), format)
            << qPrintable(name.toString());
}

TEST(FormatTable, FindsTheOwnerOfAnExtension)
{
    const std::pair<QStringView, FormatId> cases[] = {
        {u"/films/a.srt", SubRip},
        {u"/films/a.SRT", SubRip},
        {u"/films/a.b.rt", RealTime},
        {u"a.sami", Sami},
        {u"/films/a.sub", UnknownFormat},
        {u"/films/a.txt", UnknownFormat},
        {u"/films.srt/a", UnknownFormat},
        {u"/films/a.srt.bak", UnknownFormat},
        {u"", UnknownFormat},
    };
    for (const auto &[path, format] : cases)
        EXPECT_EQ(formatByExtension(path), format) << qPrintable(path.toString());
}

TEST(FormatTable, ReplacesTheExtensionOfTheNameAlone)
{
    const std::pair<QStringView, QStringView> cases[] = {
        {u"/films/a.sub", u"/films/a.srt"},
        {u"/films/a", u"/films/a.srt"},
        {u"/films.old/a", u"/films.old/a.srt"},
        {u"/films/a.b.c", u"/films/a.b.srt"},
        {u"C:\\films.old\\a", u"C:\\films.old\\a.srt"},
        {u"a.", u"a.srt"},
    };
    for (const auto &[path, result] : cases)
        EXPECT_EQ(withExtension(path.toString(), u".srt"), result);
}

} // namespace
} // namespace kavro::test
