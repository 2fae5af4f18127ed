#include "tests/tools/tool_test.h"

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class FontChangeTest : public ToolTest
{
protected:
    FontChangeTest()
    {
        document.fonts.Combo9[0].setItems({u"Arial"_s, u"Verdana"_s});
        fill({u"1|2|a"_s, u"3|4|b"_s});
    }

    void change(int row, int font, int style)
    {
        grid.setRow(row);
        document.fonts.Combo9[0].pick(font);
        document.fonts.Combo9[1].pick(style);
        document.fonts.Command42.click();
    }

    [[nodiscard]] const QStringList &entries() const { return document.editor.lstFont.items(); }
};

TEST_F(FontChangeTest, TheCurrentLineAloneTakesFontAndStyle)
{
    const QString regular = document.regularFontEntry();
    const struct
    {
        int row, font, style;
        QStringList entries;
        QString history;
        bool bold, italic;
    } rows[] = {
        {2,
         1,
         1,
         {{}, regular, u"Verdana;Western;Bold;"_s},
         u"Changed Font: [From: Verdana] [To: Bold]"_s,
         true,
         false},
        {1,
         0,
         3,
         {{}, u"Arial;Western;Bold Italic;"_s, u"Verdana;Western;Bold;"_s},
         u"Changed Font: [From: Arial] [To: Bold Italic]"_s,
         true,
         true},
        {1,
         1,
         0,
         {{}, u"Verdana;Western;Regular;"_s, u"Verdana;Western;Bold;"_s},
         u"Changed Font: [From: Verdana] [To: Regular]"_s,
         false,
         false},
    };
    for (const auto &row : rows) {
        change(row.row, row.font, row.style);
        EXPECT_EQ(entries(), row.entries);
        EXPECT_EQ(lastHistory(), row.history);
        EXPECT_EQ(run->trace.lastActionCode, 514);
        EXPECT_EQ(document.editor.Label23[0].isBold(), row.bold);
        EXPECT_EQ(document.editor.Label23[0].isItalic(), row.italic);
        EXPECT_FALSE(document.fileChanged()) << "a font alone is no change to be asked about";
        EXPECT_TRUE(document.subtitleChanged);
    }
}

TEST_F(FontChangeTest, TheEndRowMayHaveAFont)
{
    change(3, 1, 2);
    EXPECT_EQ(document.fontEntry(3), u"Verdana;Western;Italic;"_s);
    EXPECT_EQ(document.fontEntry(2), document.regularFontEntry());
    EXPECT_EQ(entries().size(), 4);
}

TEST_F(FontChangeTest, WithNothingSelectedTheRegularFontStands)
{
    document.fonts.Combo9[0].setSelected(-1);
    document.fonts.Combo9[1].setSelected(-1);
    document.fonts.Command42.click();
    EXPECT_EQ(document.fontEntry(1), u"Arial;Western;Regular;"_s);
}

} // namespace
} // namespace kavro::test
