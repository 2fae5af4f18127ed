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
};

TEST_F(FontChangeTest, TheCurrentLineAloneTakesFontAndStyle)
{
    const struct
    {
        int row, font, style;
        QString entry, detail;
        bool bold, italic;
    } rows[] = {
        {2, 1, 1, u"Verdana;Western;Bold;"_s, u"[From: Verdana] [To: Bold]"_s, true, false},
        {1, 0, 3, u"Arial;Western;Bold Italic;"_s, u"[From: Arial] [To: Bold Italic]"_s, true,
         true},
        {1, 1, 0, u"Verdana;Western;Regular;"_s, u"[From: Verdana] [To: Regular]"_s, false, false},
        {3, 1, 2, u"Verdana;Western;Italic;"_s, u"[From: Verdana] [To: Italic]"_s, false, true},
    };
    QStringList entries = document.editor.lstFont.items();
    entries.resize(4); // the end row may have a font, too
    for (const auto &row : rows) {
        grid.setRow(row.row);
        document.fonts.Combo9[0].pick(row.font);
        document.fonts.Combo9[1].pick(row.style);
        document.fonts.Command42.click();
        entries[row.row] = row.entry;
        EXPECT_EQ(document.editor.lstFont.items(), entries.first(std::max(row.row + 1, 3)));
        EXPECT_EQ(lastHistory(), u"Changed Font: "_s + row.detail);
        EXPECT_EQ(run->trace.lastActionCode, 514);
        EXPECT_EQ(document.editor.Label23[0].isBold(), row.bold);
        EXPECT_EQ(document.editor.Label23[0].isItalic(), row.italic);
        EXPECT_FALSE(document.fileChanged()) << "a font alone is no change to be asked about";
        EXPECT_TRUE(document.subtitleChanged);
    }
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
