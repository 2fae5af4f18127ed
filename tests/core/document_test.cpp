#include "tests/core/document_support.h"
#include "tests/support/document_text.h"

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DocumentTest;

TEST_F(DocumentTest, NewDocumentLeavesNothingOfTheOld)
{
    fill({u"00:00:01,000|00:00:02,000| a| b| c"_s, u"00:00:03,000|00:00:04,000| d"_s});
    document.nodes[2] = {.firstRow = 2, .lastRow = 2, .name = u"Part_2"_s, .flag = true};
    document.nodeCount = 2;
    document.ShowNodeMarks(1);
    document.setRowErrorText(1, u"too long"_s);
    document.errorCount = 1;
    document.encoding = {.name = "Windows-1251", .bom = false};
    document.savedPath = u"/old.srt"_s;
    grid.setCurrent(2, 4);
    grid.setTopRow(2);

    document.startNew();
    EXPECT_EQ(test::contentLines(document).mid(1),
              (QStringList{u"1|||||"_s, u"|||||"_s, u": 1-1 0"_s, u": 1-1 0"_s, u"node 1"_s}));
    EXPECT_EQ(std::pair(grid.row(), grid.col()), std::pair(1, 1));
    EXPECT_EQ(grid.topRow(), 1);
    EXPECT_EQ(editor.lstFont.items(), (QStringList{{}, {}}));
    EXPECT_EQ(document.rowErrorText(1), QString());
    EXPECT_EQ(document.errorCount, 0);
    EXPECT_EQ(document.nodes[2].firstRow, 0);
    EXPECT_EQ(document.encoding, TextEncoding());
    EXPECT_EQ(document.savedPath, QString());
    EXPECT_EQ(editor.Label23[0].text(), QString()); // the new row is shown
    EXPECT_FALSE(document.editorBlocked);
}

TEST_F(DocumentTest, ClearGridTouchesNoSideStore)
{
    fillRows(3);
    grid.setCurrent(3, 3);
    document.setRowErrorText(3, u"too long"_s);
    document.ClearGrid();
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.allRows().last(), GridRow(ColumnCount));
    EXPECT_EQ(grid.text(0, StartColumn), u"Start"_s);
    EXPECT_EQ(editor.lstFont.count(), 4);
    EXPECT_EQ(document.rowErrorText(3), u"too long"_s);
    EXPECT_EQ(document.subtitleCount(), 0);
    EXPECT_EQ(editor.rtfSubEditBasic.text(), QString()); // not the text of the row that went
}

TEST_F(DocumentTest, FindingsHaveTheBoundsOfTheGrid)
{
    document.setRowErrorText(0, u"nodes"_s);
    document.setRowErrorText(SubtitleDocument::maxSubtitles, u"last"_s);
    for (const int row : {-1, SubtitleDocument::maxSubtitles + 1}) {
        document.setRowErrorText(row, u"lost"_s);
        EXPECT_EQ(document.rowErrorText(row), QString());
    }
    EXPECT_EQ(document.rowErrorText(0), u"nodes"_s);
    EXPECT_EQ(document.rowErrorText(SubtitleDocument::maxSubtitles), u"last"_s);
    document.clearRowErrors();
    EXPECT_EQ(document.rowErrorText(0), QString());
}

TEST_F(DocumentTest, FontEntriesTakeTheLanguagesWords)
{
    language.setText(LangGroup::Common, 25, u"Normaal"_s);
    EXPECT_EQ(document.regularFontEntry(), u"Arial;Western;Normaal;16"_s);
    EXPECT_EQ(document.makeFontEntry(u"Verdana"_s, u"Bold Italic"_s, {}),
              u"Verdana;Western;Bold Italic;"_s);
    EXPECT_EQ(document.fontEntry(7), QString());
}

TEST_F(DocumentTest, PlayerListKeepsTheBlanksOfEmptyLines)
{
    fill({u"00:00:01,000|00:00:02,000| a| b| c"_s, u"00:00:03,000|00:00:04,000| d"_s});
    player.Combo1.setItems({u"old"_s});
    player.Combo1.setSelected(0);
    int changes = 0;
    QObject::connect(&player.Combo1, &ListBox::itemsChanged, &player.Combo1, [&] { ++changes; });
    document.BuildPlayerList();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(player.Combo1.items(),
              (QStringList{u"00:00:01,000;  a  b  c"_s, u"00:00:03,000;  d  "_s}));
    EXPECT_EQ(player.Combo1.selected(), -1);
    EXPECT_TRUE(document.subtitleChanged);
}

} // namespace
} // namespace kavro
