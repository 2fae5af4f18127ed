#include "tests/core/document_support.h"

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DocumentTest;

using CurrentRow = DocumentTest;

TEST_F(CurrentRow, IsShownInThePanels)
{
    fill({u"00:00:01,000|00:00:02,500|  a |  b"_s, u"00:01:00,250|00:01:02,000| c"_s});
    grid.setCurrent(1, 3);
    EXPECT_EQ(editor.Label13.caption(), u"Row: 1, Col: 3 = Text #1"_s);
    EXPECT_EQ(editor.rtfSubEditBasic.text(), u"a"_s);
    EXPECT_EQ(editor.rtfEdit.text(), u"a"_s);
    EXPECT_EQ(times.rtfTimeStart.text(), u"00:00:01,000"_s);
    EXPECT_EQ(times.rtfTimeEnd.text(), u"00:00:02,500"_s);
    EXPECT_EQ(document.curRow, 1);
    EXPECT_EQ(editor.Label24.caption(), u"00:00:01,00"_s);
    EXPECT_EQ(editor.lblSubRowCount.caption(), u" 1/ 2"_s);
    EXPECT_EQ(editor.Label23[0].text(), u"a "_s); // trimmed at its head alone
    EXPECT_EQ(editor.Label23[1].text(), u"b"_s);
    EXPECT_EQ(editor.Label23[2].text(), QString());
    EXPECT_EQ(grid.text(1, 3), u"  a "_s); // the cell keeps its blanks
    document.subShowSubtitle(u"   shown "_s, 2);
    document.subShowSubtitle(u"lost"_s, 3);
    document.subShowSubtitle(u"lost"_s, -1);
    EXPECT_EQ(editor.Label23[2].text(), u"shown "_s);

    grid.setCurrent(2, 1);
    EXPECT_EQ(editor.Label13.caption(), u"Row: 2, Col: 1 = Start"_s);
    EXPECT_EQ(editor.rtfSubEditBasic.text(), u"00:01:00,250"_s);
    EXPECT_EQ(document.scriptTime, 6024);

    grid.setCurrent(3, 0); // the end row
    EXPECT_EQ(editor.Label13.caption(), u"Row: 3, Col: 0 = "_s);
    EXPECT_EQ(editor.rtfSubEditBasic.text(), QString());
    EXPECT_EQ(times.rtfTimeStart.text(), QString());
    EXPECT_EQ(document.scriptTime, -1);
    EXPECT_EQ(editor.Label24.caption(), u"00:01:00,25"_s); // nothing to show: it stays
    EXPECT_TRUE(editor.cmdInvCalc.isVisible());
}

TEST_F(CurrentRow, ScriptTimeCountsHundredthsLessOne)
{
    const struct
    {
        QStringView start;
        int time;
    } rows[] = {
        {u"00:00:01,000", 99},   {u"", -1},  {u"00:00:00,004", -1},       {u"00:00:00,016", 1},
        {u"-1:59:59,000", -101}, {u"x", -1}, {u"99:59:59,999", 35999999},
    };
    fillRows(1);
    for (const auto &row : rows) {
        grid.setText(1, StartColumn, row.start.toString());
        document.RefreshCurrentRow();
        EXPECT_EQ(document.scriptTime, row.time) << row.start.toString().toStdString();
    }
}

TEST_F(CurrentRow, SwitchesTheRowCommands)
{
    const struct
    {
        int subtitles; ///< the end row is behind them
        std::initializer_list<int> steps;
        const char *enabled; ///< insert, delete, change
        bool node;
    } rows[] = {
        {4, {2}, "+++", true},       {4, {4}, "+++", false}, // the last subtitle starts no node
        {4, {2, 1}, "+++", false},   {4, {5}, "---", false},    {4, {5, 1}, "+-+", false},
        {4, {5, 1, 3}, "+++", true}, {4, {2, 0}, "---", false}, {4, {2, 0, 1}, "+-+", false},
        {0, {1}, "---", false},
    };
    for (const auto &row : rows) {
        fillRows(row.subtitles);
        grid.setCurrent(3, 1);
        std::string name;
        for (const int step : row.steps) {
            grid.setRow(step);
            name += std::to_string(step) + ' ';
        }
        std::string enabled;
        for (const Button *button : {&editor.Command10, &editor.Command11, &editor.Command14}) {
            enabled += button->isEnabled() ? '+' : '-';
        }
        EXPECT_EQ(enabled, row.enabled) << "steps to " << name;
        EXPECT_EQ(editor.btnNode[0].isVisible(), row.node) << "steps to " << name;
    }
}

TEST_F(CurrentRow, SwitchesTheCellTools)
{
    fillRows(3);
    document.setRowErrorText(2, u"too long"_s);
    const struct
    {
        bool script;
        int row, col;
        const char *shown; ///< cell editor, calculator button, finding
    } rows[] = {
        {false, 2, 0, "+++"}, {false, 3, 2, "++-"}, {false, 2, 3, "+-+"},
        {true, 3, 2, "++-"},  {true, 2, 3, "--+"},  {true, 3, 5, "---"},
    };
    for (const auto &row : rows) {
        settings.Check6[0].setOn(row.script);
        grid.setCurrent(1, 1);
        grid.setCurrent(row.row, row.col);
        EXPECT_EQ(shown({&editor.rtfEdit, &editor.cmdInvCalc, &editor.errExp}), row.shown)
            << row.script << row.row << row.col;
    }
    EXPECT_EQ(editor.lblErrExp.caption(), u"too long"_s);
}

TEST_F(CurrentRow, ChangesNothingWhileTheEditorIsBlocked)
{
    fillRows(3);
    document.editorBlocked = true;
    grid.setCurrent(3, 3);
    EXPECT_EQ(document.curRow, 1);
    EXPECT_EQ(editor.rtfEdit.text(), u"00:00:01,000"_s);
    document.editorBlocked = false;
    document.RefreshCurrentRow();
    EXPECT_EQ(document.curRow, 3);
}

TEST_F(CurrentRow, ShowsFontAndStyle)
{
    QStringList names;
    for (int i = 0; i < 300; ++i) {
        names.append(u"Font %1"_s.arg(i));
    }
    names.append({u"ARIAL"_s, u"Arial"_s, u"Verdana"_s});
    fonts.Combo9[0].setItems(names);
    fillRows(1);
    const struct
    {
        QStringView entry;
        bool bold, italic;
        int font, style; ///< selected in the lists
    } rows[] = {
        {u"Arial;Western;Regular;16", false, false, 300, 0}, // the first of that name
        {u"verdana;Western;BOLD;16", true, false, 302, 1},
        {u"Verdana;Western;Bold Italic", true, true, 302, 3},
        {u"Font 299;Western;Italic;", false, true, 299, 2},
        {u"", false, false, 299, 2}, // nothing in the lists changes
        {u"Wingdings;;Extrabold;16", true, false, 299, 2},
        {u";;;;;", false, false, 299, 2},
    };
    for (const auto &row : rows) {
        editor.lstFont.setItem(1, row.entry.toString());
        document.RefreshCurrentRow();
        const std::string name = row.entry.toString().toStdString();
        for (const TextBox &line : editor.Label23) {
            EXPECT_EQ(line.isBold(), row.bold) << name;
            EXPECT_EQ(line.isItalic(), row.italic) << name;
        }
        EXPECT_EQ(fonts.Combo9[0].selected(), row.font) << name;
        EXPECT_EQ(fonts.Combo9[1].selected(), row.style) << name;
    }
}

TEST_F(CurrentRow, StyleWordThatHoldsTheOtherMakesBoth)
{
    language.setText(LangGroup::Common, 26, u"Vet"_s);
    language.setText(LangGroup::Common, 27, u"Vetcursief"_s);
    fillRows(1);
    editor.lstFont.setItem(1, u"Arial;Western;Vetcursief;16"_s);
    document.RefreshCurrentRow();
    EXPECT_TRUE(editor.Label23[0].isBold());
    EXPECT_TRUE(editor.Label23[0].isItalic());
}

} // namespace
} // namespace kavro
