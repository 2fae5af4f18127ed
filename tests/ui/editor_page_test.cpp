#include "tests/support/test_program.h"
#include "ui/cell_editor.h"
#include "ui/editor_page_view.h"
#include "ui/finding_panel.h"
#include "ui/form_focus.h"
#include "ui/grid_view.h"

#include <QInputMethodEvent>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// The editor page in a window of its own, over a document of two subtitles; the grid has the
/// focus, and the current cell is the first text of row 1.
class Editor : public ::testing::Test
{
protected:
    Editor()
    {
        run.start(run.write(u"film.srt"_s, twoSubtitles()));
        page = new EditorPageView(run.program(), &window);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(page);
        new FormFocus(run->frmMain, window);
        grid = page->findChild<GridView *>();
        editor = page->findChild<CellEditor *>();
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        grid->setFocus();
        run->editor.grdSubEdit.setCurrent(1, 3);
        run->trace.RecordAction({}, 0);
    }

    QString cell(int row, int col) { return run->editor.grdSubEdit.text(row, col); }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void type(const QString &text)
    {
        for (const QChar letter : text) {
            QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        }
    }
    void clickCell(int row, int col)
    {
        const auto *model = static_cast<GridModel *>(grid->model());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->visualRect(model->indexOf(row, col)).center());
    }

    TestProgram run;
    QWidget window;
    EditorPageView *page = nullptr;
    GridView *grid = nullptr;
    CellEditor *editor = nullptr;
};

TEST_F(Editor, F2EditsAndEnterWritesByTheChangeButton)
{
    const QString before = cell(1, 3).trimmed();
    press(Qt::Key_F2);
    ASSERT_TRUE(editor->isVisible());
    EXPECT_TRUE(editor->hasFocus());
    EXPECT_EQ(editor->text(), before);
    EXPECT_EQ(editor->selectedText(), before);
    EXPECT_EQ(editor->geometry(), grid->currentCell());
    press(Qt::Key_End);
    type(u"!"_s);
    EXPECT_EQ(run->editor.rtfSubEditBasic.text(), before + u'!') << "the edit box holds the same";
    EXPECT_EQ(cell(1, 3).trimmed(), before) << "nothing is written before Enter";
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3).trimmed(), before + u'!');
    EXPECT_TRUE(run->document.fileChanged());
    EXPECT_EQ(run->trace.lastActionCode, 504) << "the button's code comes last";
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_EQ(run->editor.grdSubEdit.row(), 1) << "the current cell stays";
}

TEST_F(Editor, TypingReplacesAndEscapeDrops)
{
    const QString before = cell(1, 3);
    type(u"Hello"_s);
    EXPECT_EQ(editor->text(), u"Hello"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_EQ(cell(1, 3), before);
    EXPECT_EQ(run->editor.rtfSubEditBasic.text(), before.trimmed());
    EXPECT_FALSE(run->document.fileChanged());
    type(u"x"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3).trimmed(), u"x"_s);
}

TEST_F(Editor, InputMethodTypesOverToo)
{
    QInputMethodEvent event;
    event.setCommitString(u"日"_s);
    QApplication::sendEvent(grid, &event);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3).trimmed(), u"日"_s);
}

TEST_F(Editor, LeavingTheCellKeepsWhatWasTyped)
{
    type(u"by click"_s);
    clickCell(2, 4);
    EXPECT_EQ(cell(1, 3).trimmed(), u"by click"_s);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 2);
    EXPECT_FALSE(editor->isVisible());

    type(u"by arrow"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(cell(2, 4).trimmed(), u"by arrow"_s);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 1);
    EXPECT_TRUE(grid->hasFocus());

    type(u"by command"_s);
    page->finishEdit();
    EXPECT_EQ(cell(1, 4).trimmed(), u"by command"_s);
}

TEST_F(Editor, LookingAtACellWithoutTypingChangesNothing)
{
    press(Qt::Key_F2);
    clickCell(2, 3);
    press(Qt::Key_F2);
    page->finishEdit();
    EXPECT_FALSE(run->document.fileChanged());
}

TEST_F(Editor, FocusElsewhereKeepsTheTextAndGoesThere)
{
    auto *other = new QPushButton(&window);
    window.layout()->addWidget(other);
    other->show();
    type(u"kept"_s);
    other->setFocus();
    EXPECT_EQ(cell(1, 3).trimmed(), u"kept"_s);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_FALSE(editor->isVisible());
}

TEST_F(Editor, EditBoxGoesOnWithTheCellsText)
{
    auto *box = page->findChild<QLineEdit *>(u"rtfSubEditBasic"_s);
    auto *change = page->findChild<QPushButton *>(u"Command14"_s);
    type(u"in the cell"_s);
    box->setFocus();
    EXPECT_EQ(box->selectedText(), u"in the cell"_s);
    EXPECT_FALSE(run->document.fileChanged()) << "the box has the text, the cell has not";
    type(u"in the box"_s);
    QTest::mouseClick(change, Qt::LeftButton);
    EXPECT_EQ(cell(1, 3).trimmed(), u"in the box"_s);
    EXPECT_TRUE(box->hasFocus()) << "a click on a button leaves the focus where it is";
    box->selectAll();
    type(u"by Enter"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3).trimmed(), u"by Enter"_s);
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(Editor, LongTextIsEditedWhole)
{
    const QString before(100000, u'x');
    run->editor.grdSubEdit.setText(1, 3, before);
    run->document.RefreshCurrentRow();
    press(Qt::Key_F2);
    press(Qt::Key_End);
    type(u"y"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 3).trimmed(), before + u'y');
}

TEST_F(Editor, TabStaysInTheCellAndEndRowHasNoEdit)
{
    press(Qt::Key_F2);
    press(Qt::Key_Tab);
    EXPECT_TRUE(editor->hasFocus());
    press(Qt::Key_Escape);
    run->editor.grdSubEdit.setCurrent(3, 3);
    press(Qt::Key_F2);
    type(u"x"_s);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(Editor, CodeCanOpenTheCellToo)
{
    run->editor.grdSubEdit.setFocus();
    run->editor.grdSubEdit.press(Key::Enter);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_TRUE(editor->hasFocus());
    run->editor.rtfEdit.press(Key::Escape);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(Editor, PreviewShowsTheLineAsItStands)
{
    const auto *first = page->findChild<QLabel *>(u"Label23(0)"_s);
    EXPECT_EQ(first->text(), cell(1, 3).trimmed());
    EXPECT_FALSE(first->font().italic());
    run->editor.Label23[0].setItalic(true);
    EXPECT_TRUE(first->font().italic());
}

TEST_F(Editor, FindingStandsBesideItsCell)
{
    const auto *panel = page->findChild<FindingPanel *>();
    EXPECT_FALSE(panel->isVisible());
    run->document.setRowErrorText(2, u"Overlap with the line above"_s);
    press(Qt::Key_Down);
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->findChild<QLabel *>()->text(), u"Overlap with the line above"_s);
    EXPECT_GT(panel->y(), grid->currentCell().bottom());
    press(Qt::Key_Up);
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
