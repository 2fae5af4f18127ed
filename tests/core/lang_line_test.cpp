#include "core/lang_line.h"

#include <gtest/gtest.h>

namespace kavro {
namespace {

using namespace Qt::StringLiterals;

TEST(LangLine, ScramblesByTheKey)
{
    EXPECT_EQ(EncodeLangLine(u"", languageKey), u""_s);
    EXPECT_EQ(EncodeLangLine(u"A", languageKey), u"87654384"_s);
    EXPECT_EQ(EncodeLangLine(u"[x]", languageKey), u"876543788765434587654380"_s);
    EXPECT_EQ(EncodeLangLine(u"A", u"00000001"), u"00000064"_s) << "padded to the key's length";
}

TEST(LangLine, GivesBackEveryCharacter)
{
    for (const QString &text : {u""_s, u"4.00"_s, u"  blanks  "_s, u"caf\u00e9 \u20ac"_s,
                                u"\u0428\u05d0\u4e2d"_s, u"\U0001d11e clef"_s, u"\uffff"_s})
    {
        EXPECT_EQ(DecodeLangLine(EncodeLangLine(text, languageKey), languageKey), text);
    }
    QString all;
    for (int unit = 0; unit <= 0xffff; ++unit) {
        all += QChar(unit);
    }
    const QString line = EncodeLangLine(all, languageKey);
    EXPECT_EQ(line.size(), all.size() * 8) << "every group has the key's length";
    EXPECT_EQ(DecodeLangLine(line, languageKey), all);
}

TEST(LangLine, RefusesWhatIsNoPack)
{
    const struct
    {
        const char *name;
        QString line;
    } cases[] = {
        {"plain text", u"Version:=4.00"_s},
        {"one digit is gone", u"8765438487654384"_s.first(15)},
        {"out of step by one", u"1"_s + EncodeLangLine(u"A", languageKey)},
        {"another key", EncodeLangLine(u"A", u"12345678")},
        {"a sign", u"-8765432"_s},
        {"beyond any number", u"99999999"_s},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(DecodeLangLine(row.line, languageKey), std::nullopt) << row.name;
    }
    EXPECT_EQ(DecodeLangLine(u"87654384", u""), std::nullopt);
}

} // namespace
} // namespace kavro
