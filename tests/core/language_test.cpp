#include "core/language.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

TEST(Language, GroupsAreCompleteToTheirLastItem)
{
    const LanguageTable table;
    const struct
    {
        LangGroup group;
        int first, last;
        bool tips;
    } rows[] = {
        {LangGroup::Preview, 0, 1, true},    {LangGroup::CopyFirst, 0, 5, true},
        {LangGroup::CopySecond, 0, 2, true}, {LangGroup::Player, 0, 4, false},
        {LangGroup::Common, 0, 46, false},   {LangGroup::User, 0, 2, false},
        {LangGroup::File, 0, 2, false},      {LangGroup::Variables, 0, 0, false},
        {LangGroup::About, 1, 4, false},     {LangGroup::Report, 0, 20, false},
    };
    for (const auto &row : rows) {
        for (int item = row.first; item <= row.last; ++item) {
            const std::string name =
                std::to_string(static_cast<int>(row.group)) + ',' + std::to_string(item);
            EXPECT_FALSE(table.text(row.group, item).isEmpty()) << name;
            EXPECT_EQ(table.tip(row.group, item).isEmpty(), !row.tips) << name;
        }
        EXPECT_TRUE(table.text(row.group, row.last + 1).isEmpty());
    }
    EXPECT_TRUE(table.text(LangGroup::About, 0).isEmpty());
}

TEST(Language, TextsAreReplacedInsideTheTable)
{
    LanguageTable table;
    for (const int item : {-1, LanguageTable::items, 1000}) {
        table.setText(LangGroup::Common, item, u"x"_s);
        table.setTip(LangGroup::Report, item, u"x"_s);
        EXPECT_TRUE(table.text(LangGroup::Common, item).isEmpty()) << item;
        EXPECT_TRUE(table.tip(LangGroup::Report, item).isEmpty()) << item;
    }
    table.setText(LangGroup::Common, 50, u"last"_s);
    EXPECT_EQ(table.text(LangGroup::Common, 50), u"last"_s);
    table.setText(LangGroup::Common, 0, u"Rij"_s);
    table.setTip(LangGroup::Preview, 0, u"Toon"_s);
    table.SetDefaultTexts();
    EXPECT_EQ(table.text(LangGroup::Common, 0), u"Row"_s);
    EXPECT_TRUE(table.text(LangGroup::Common, 50).isEmpty()) << "the defaults replace all";
    EXPECT_EQ(table.tip(LangGroup::Preview, 0), u"Show preview of subtitle file"_s);
}

} // namespace
} // namespace kavro
