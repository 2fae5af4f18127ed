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

TEST_F(CellEditing, KeysEndTheEdit)
{
    const struct
    {
        const char *name;
        TextBox &box;
        Key key;
        int recorderState;
        const char *action;
        int changes;
        QStringView text; ///< that the boxes show
    } rows[] = {
        {"Enter", editor.rtfEdit, Key::Enter, 0, " new /505", 1, u" new "},
        {"in the box below", editor.rtfSubEditBasic, Key::Enter, 0, " new /505", 1, u" new "},
        {"while a macro is recorded", editor.rtfEdit, Key::Enter, 1, " new /505", 0, u" new "},
        {"and below", editor.rtfSubEditBasic, Key::Enter, 1, " new /505", 0, u" new "},
        {"while a macro waits", editor.rtfEdit, Key::Enter, 3, " new /505", 1, u" new "},
        {"Escape drops the edit", editor.rtfEdit, Key::Escape, 0, "/0", 0, u"2"},
        {"but not below", editor.rtfSubEditBasic, Key::Escape, 0, "/0", 0, u" new "},
        {"nor does Tab", editor.rtfSubEditBasic, Key::Tab, 0, "/0", 0, u" new "},
    };
    grid.setCurrent(2, 3);
    times.rtfTimeStart.type(u"00:00:09,000"_s);
    for (const auto &row : rows) {
        changes = 0;
        trace.RecordAction({}, 0);
        trace.recorderState = row.recorderState;
        row.box.setFocus();
        row.box.type(u" new "_s);
        row.box.press(row.key);
        EXPECT_EQ(lastAction(), row.action) << row.name;
        EXPECT_EQ(changes, row.changes) << row.name;
        EXPECT_EQ(editor.rtfSubEditBasic.text(), row.text.toString()) << row.name;
        EXPECT_EQ(grid.hasFocus(), &row.box == &editor.rtfEdit) << row.name;
    }
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

TEST_F(CellEditing, EditBoxLendsItsTextToTheCellAndToClip)
{
    EXPECT_TRUE(editor.Command47.isEnabled());
    for (const QString &text : {u""_s, u"  "_s, u" x"_s}) {
        grid.setFocus();
        editor.rtfSubEditBasic.setText(text);
        EXPECT_EQ(editor.Command47.isEnabled(), text == u" x"_s) << text.toStdString();
        editor.rtfSubEditBasic.setFocus();
        EXPECT_EQ(editor.rtfSubEditBasic.selLength(), text.size());
        EXPECT_EQ(editor.rtfEdit.text(), text);
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
