#include "tests/core/document_support.h"

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

using test::DocumentTest;

class CellEditing : public DocumentTest
{
protected:
    CellEditing()
    {
        editor.rtfEdit.setEnabled(true);
        QObject::connect(&editor.Command14, &Button::clicked, &editor.Command14,
                         [this] { ++changes; });
        QObject::connect(&editor.cmdInvCalc, &Button::clicked, &editor.cmdInvCalc,
                         [this] { ++calculations; });
        fillRows(4);
    }

    [[nodiscard]] std::string lastAction() const
    {
        return trace.lastActionText.toStdString() + '/' + std::to_string(trace.lastActionCode);
    }

    /// Which of cell editor, calculator button, node button and finding are shown.
    [[nodiscard]] std::string shown() const
    {
        return DocumentTest::shown(
            {&editor.rtfEdit, &editor.cmdInvCalc, &editor.btnNode[0], &editor.errExp});
    }

    int changes = 0;
    int calculations = 0;
};

TEST_F(CellEditing, ClickRecordsTheCell)
{
    grid.click(3, 2);
    EXPECT_EQ(document.curRow, 3);
    EXPECT_EQ(document.searchIndex, 3);
    EXPECT_EQ(lastAction(), "2,3/549");

    grid.click(0, 2); // the header: the mouse's row counts, and the current cell stays
    EXPECT_EQ(document.curRow, 0);
    EXPECT_EQ(document.searchIndex, 3);
    EXPECT_EQ(lastAction(), "2,3/549");
}

TEST_F(CellEditing, EnterInTheGridEntersACellThatHasAnEditor)
{
    grid.setCurrent(2, 3);
    grid.setFocus();
    grid.press(Key::Tab);
    grid.press(Key::Escape);
    EXPECT_TRUE(grid.hasFocus());
    settings.Check6[0].setOn(true);
    grid.press(Key::Enter);
    EXPECT_TRUE(grid.hasFocus());
    settings.Check6[0].setOn(false);
    editor.rtfEdit.setEnabled(false);
    grid.press(Key::Enter);
    EXPECT_TRUE(grid.hasFocus());
    editor.rtfEdit.setEnabled(true);
    grid.press(Key::Enter);
    EXPECT_TRUE(editor.rtfEdit.hasFocus());
    EXPECT_EQ(editor.rtfEdit.selStart(), 0);
    EXPECT_EQ(editor.rtfEdit.selLength(), 1);
    EXPECT_EQ(lastAction(), "/0");
}

TEST_F(CellEditing, EnterChangesTheCell)
{
    grid.setCurrent(2, 3);
    editor.rtfEdit.setFocus();
    editor.rtfEdit.type(u" new text "_s);
    EXPECT_EQ(editor.rtfSubEditBasic.text(), u" new text "_s);
    editor.rtfEdit.press(Key::Enter);
    EXPECT_EQ(lastAction(), " new text /505");
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(grid.hasFocus());

    editor.rtfSubEditBasic.setFocus();
    editor.rtfSubEditBasic.type(u"other"_s);
    editor.rtfSubEditBasic.press(Key::Escape);
    editor.rtfSubEditBasic.press(Key::Tab);
    EXPECT_EQ(changes, 1);
    editor.rtfSubEditBasic.press(Key::Enter);
    EXPECT_EQ(lastAction(), "other/505");
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(editor.rtfSubEditBasic.hasFocus());
}

TEST_F(CellEditing, EnterOnlyRecordsWhileAMacroIsRecorded)
{
    trace.recorderState = 1;
    editor.rtfEdit.press(Key::Enter);
    editor.rtfSubEditBasic.press(Key::Enter);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(lastAction(), "00:00:01,000/505");
    trace.recorderState = 3; // a macro that waits is no recording
    editor.rtfEdit.press(Key::Enter);
    EXPECT_EQ(changes, 1);
}

TEST_F(CellEditing, EscapeDropsTheEdit)
{
    grid.setCurrent(2, 3);
    times.rtfTimeStart.type(u"00:00:09,000"_s);
    editor.rtfEdit.setFocus();
    editor.rtfEdit.type(u"new"_s);
    editor.rtfEdit.press(Key::Escape);
    EXPECT_EQ(editor.rtfEdit.text(), u"2"_s);
    EXPECT_EQ(editor.rtfSubEditBasic.text(), u"2"_s);
    EXPECT_TRUE(grid.hasFocus());
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(lastAction(), "/0");
    EXPECT_EQ(times.rtfTimeStart.text(), u"00:00:09,000"_s); // what is typed elsewhere stays
}

TEST_F(CellEditing, TabLendsTheCalculatorToATime)
{
    for (const int col : {StartColumn, EndColumn, FirstTextColumn, LastTextColumn}) {
        grid.setCurrent(2, col);
        editor.rtfEdit.press(Key::Tab);
    }
    EXPECT_EQ(calculations, 2);
}

TEST_F(CellEditing, EditBoxOnFocusShowsItsWholeText)
{
    grid.setCurrent(2, 1);
    editor.rtfSubEditBasic.setText(u"abc"_s);
    editor.rtfSubEditBasic.setFocus();
    EXPECT_EQ(editor.rtfSubEditBasic.selLength(), 3);
    EXPECT_EQ(editor.rtfEdit.text(), u"abc"_s);
}

TEST_F(CellEditing, ClipNeedsATextInTheEditBox)
{
    EXPECT_TRUE(editor.Command47.isEnabled());
    for (const auto &[text, enabled] : {std::pair(u""_s, false), {u"  "_s, false}, {u" x"_s, true}})
    {
        editor.rtfSubEditBasic.type(text);
        EXPECT_EQ(editor.Command47.isEnabled(), enabled) << text.toStdString();
    }
}

TEST_F(CellEditing, LeavingTheGridsGroupHidesWhatLiesOverIt)
{
    document.setRowErrorText(2, u"too long"_s);
    Control *const group[] = {&grid, &editor.rtfEdit, &editor.cmdInvCalc, &editor.btnNode[0]};
    for (Control *from : group) {
        for (Control *to : group) {
            grid.setFocus();
            grid.moveTo(2, 2);
            from->setFocus();
            to->setFocus();
            EXPECT_EQ(shown(), "++++") << from->name().toStdString() << to->name().toStdString();
        }
        from->setFocus();
        editor.rtfSubEditBasic.setFocus();
        EXPECT_EQ(shown(), "----") << from->name().toStdString();
    }
    grid.setFocus();
    grid.moveTo(2, 2);
    frmMain.setFocus(nullptr);
    EXPECT_EQ(shown(), "----");
}

} // namespace
} // namespace kavro
