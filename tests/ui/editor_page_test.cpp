#include "tests/ui/window_fixture.h"
#include "ui/cell_editor.h"
#include "ui/editor_page_view.h"
#include "ui/finding_panel.h"

#include <QInputMethodEvent>
#include <QLabel>
#include <QPushButton>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class Editor : public WindowFixture
{
protected:
    void SetUp() override
    {
        openFilm();
        page = view<EditorPageView>();
        editor = view<CellEditor>();
    }

    void clickCell(int row, int col)
    {
        const auto *model = static_cast<GridModel *>(grid->model());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->visualRect(model->indexOf(row, col)).center());
    }

    EditorPageView *page = nullptr;
    CellEditor *editor = nullptr;
};

TEST_F(Editor, F2EditsAndEnterWritesByTheChangeButton)
{
    const QString before = cell(1, 3);
    key(Qt::Key_F2);
    ASSERT_TRUE(editor->isVisible());
    EXPECT_TRUE(editor->hasFocus());
    EXPECT_EQ(editor->text(), before);
    EXPECT_EQ(editor->selectedText(), before);
    EXPECT_EQ(editor->geometry(), grid->currentCell());
    key(Qt::Key_End);
    type("!");
    EXPECT_EQ(run->editor.rtfSubEditBasic.text(), before + u'!') << "the edit box holds the same";
    EXPECT_EQ(cell(1, 3), before) << "nothing is written before Enter";
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3), before + u'!');
    EXPECT_TRUE(run->document.fileChanged());
    EXPECT_EQ(run->trace.lastActionCode, 504) << "the button's code comes last";
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_EQ(run->editor.grdSubEdit.row(), 1) << "the current cell stays";
}

TEST_F(Editor, TypingReplacesAndEscapeDrops)
{
    const QString before = cell(1, 3);
    type("Hello");
    EXPECT_EQ(editor->text(), u"Hello"_s);
    key(Qt::Key_Escape);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_EQ(cell(1, 3), before);
    EXPECT_EQ(run->editor.rtfSubEditBasic.text(), before);
    EXPECT_FALSE(run->document.fileChanged());
    type("x");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3), u"x"_s);
}

TEST_F(Editor, InputMethodTypesOverToo)
{
    QInputMethodEvent event;
    event.setCommitString(u"日"_s);
    QApplication::sendEvent(grid, &event);
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3), u"日"_s);
}

TEST_F(Editor, LeavingTheCellKeepsWhatWasTyped)
{
    type("by click");
    clickCell(2, 4);
    EXPECT_EQ(cell(1, 3), u"by click"_s);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 2);
    EXPECT_FALSE(editor->isVisible());

    type("by arrow");
    key(Qt::Key_Up);
    EXPECT_EQ(cell(2, 4), u"by arrow"_s);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 1);
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(Editor, LookingAtACellWithoutTypingChangesNothing)
{
    key(Qt::Key_F2);
    clickCell(2, 3);
    key(Qt::Key_F2);
    window->finishEdit();
    EXPECT_FALSE(run->document.fileChanged());
}

TEST_F(Editor, FocusElsewhereKeepsTheTextAndGoesThere)
{
    auto *other = view<QLineEdit>(u"rtfShiftDuration"_s);
    type("kept");
    other->setFocus();
    EXPECT_EQ(cell(1, 3), u"kept"_s);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_FALSE(editor->isVisible());
}

TEST_F(Editor, EditBoxGoesOnWithTheCellsText)
{
    auto *box = page->findChild<QLineEdit *>(u"rtfSubEditBasic"_s);
    auto *change = page->findChild<QPushButton *>(u"Command14"_s);
    type("in the cell");
    box->setFocus();
    EXPECT_EQ(box->selectedText(), u"in the cell"_s);
    EXPECT_FALSE(run->document.fileChanged()) << "the box has the text, the cell has not";
    type("in the box");
    QTest::mouseClick(change, Qt::LeftButton);
    EXPECT_EQ(cell(1, 3), u"in the box"_s);
    EXPECT_TRUE(box->hasFocus()) << "a click on a button leaves the focus where it is";
    box->selectAll();
    type("by Enter");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3), u"by Enter"_s);
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(Editor, LongTextIsEditedWhole)
{
    const QString before(100000, u'x');
    run->editor.grdSubEdit.setText(1, 3, before);
    run->document.RefreshCurrentRow();
    key(Qt::Key_F2);
    key(Qt::Key_End);
    type("y");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3), before + u'y');
}

TEST_F(Editor, TabStaysInTheCellAndEndRowHasNoEdit)
{
    key(Qt::Key_F2);
    key(Qt::Key_Tab);
    EXPECT_TRUE(editor->hasFocus());
    key(Qt::Key_Escape);
    run->editor.grdSubEdit.setCurrent(3, 3);
    key(Qt::Key_F2);
    type("x");
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(Editor, UndoKeysWalkOverTheDocumentInTheGrid)
{
    type("first");
    key(Qt::Key_Return);
    type("second");
    key(Qt::Key_Return);
    ASSERT_TRUE(grid->hasFocus());
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 3), u"first"_s);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 3), u"One"_s);
    EXPECT_FALSE(run->document.fileChanged());
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cell(1, 3), u"first"_s);
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(cell(1, 3), u"second"_s);
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(Editor, UndoKeysWalkOverTheTextInACell)
{
    type("first");
    key(Qt::Key_Return);
    type("second");
    key(Qt::Key_Return);
    key(Qt::Key_Z, Qt::ControlModifier); // now there is a way in both directions
    type("other");
    ASSERT_TRUE(editor->hasFocus());
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(editor->hasFocus());
    EXPECT_NE(editor->text(), u"other"_s);
    EXPECT_EQ(cell(1, 3), u"first"_s) << "the document stays";
    for (int i = 0; i < 10; ++i) {
        key(Qt::Key_Z, Qt::ControlModifier); // also when nothing is left of the text
    }
    EXPECT_EQ(cell(1, 3), u"first"_s);
    EXPECT_TRUE(editor->hasFocus());
    for (int i = 0; i < 10; ++i) {
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        key(Qt::Key_Y, Qt::ControlModifier);
    }
    EXPECT_EQ(cell(1, 3), u"first"_s);
    EXPECT_TRUE(editor->hasFocus());
    key(Qt::Key_Escape);
    EXPECT_EQ(cell(1, 3), u"first"_s);
}

TEST_F(Editor, PreviewShowsTheLineAsItStands)
{
    const auto *first = page->findChild<QLabel *>(u"Label23(0)"_s);
    EXPECT_EQ(first->text(), cell(1, 3));
    EXPECT_FALSE(first->font().italic());
    run->editor.Label23[0].setItalic(true);
    EXPECT_TRUE(first->font().italic());
}

TEST_F(Editor, FindingStandsBesideItsCell)
{
    const auto *panel = page->findChild<FindingPanel *>();
    EXPECT_FALSE(panel->isVisible());
    run->document.setRowErrorText(2, u"Overlap with the line above"_s);
    key(Qt::Key_Down);
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->findChild<QLabel *>()->text(), u"Overlap with the line above"_s);
    EXPECT_GT(panel->y(), grid->currentCell().bottom());
    key(Qt::Key_Up);
    EXPECT_FALSE(panel->isVisible());
}

TEST(FindingPanel, NeverCrossesTheGridsEdges)
{
    struct Case
    {
        QRect cell;
        QPoint place;
    };
    const QSize panel(100, 40);
    const QSize grid(400, 300);
    const Case cases[] = {
        {{10, 20, 50, 20}, {62, 42}},     // below and right of the cell
        {{350, 20, 50, 20}, {300, 42}},   // at the right edge: its own width from there
        {{10, 270, 50, 20}, {62, 228}},   // at the lower edge: above the cell
        {{350, 270, 50, 20}, {300, 228}}, // in the corner both
    };
    for (const Case &c : cases) {
        EXPECT_EQ(placeBeside(c.cell, panel, grid), c.place);
    }
}

} // namespace
} // namespace kavro::test
