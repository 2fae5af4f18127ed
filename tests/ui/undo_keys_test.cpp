// The keys of undo: in the grid they walk over the document, in a text over what was typed.

#include "tests/support/test_program.h"
#include "ui/cell_editor.h"
#include "ui/grid_view.h"
#include "ui/help_browser.h"
#include "ui/main_window.h"

#include <QTest>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class UndoKeys : public ::testing::Test
{
protected:
    UndoKeys()
    {
        run.start(run.write(u"film.srt"_s, twoSubtitles()));
        window = std::make_unique<MainWindow>(run.program(), pages);
        window->open();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        grid = window->findChild<GridView *>();
        editor = window->findChild<CellEditor *>();
        grid->setFocus();
        run->editor.grdSubEdit.setCurrent(1, 3);
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void type(const char *text)
    {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
    }
    QString cell() { return run->editor.grdSubEdit.text(1, 3).trimmed(); }

    TestProgram run;
    HelpPages pages;
    std::unique_ptr<MainWindow> window;
    GridView *grid = nullptr;
    CellEditor *editor = nullptr;
};

TEST_F(UndoKeys, WalkOverTheDocumentInTheGrid)
{
    type("first");
    press(Qt::Key_Return);
    type("second");
    press(Qt::Key_Return);
    ASSERT_TRUE(grid->hasFocus());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(), u"first"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cell(), u"One"_s);
    EXPECT_FALSE(run->document.fileChanged());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cell(), u"first"_s);
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(cell(), u"second"_s);
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(UndoKeys, WalkOverTheTextInACell)
{
    type("first");
    press(Qt::Key_Return);
    type("second");
    press(Qt::Key_Return);
    press(Qt::Key_Z, Qt::ControlModifier); // now there is a way in both directions
    type("other");
    ASSERT_TRUE(editor->hasFocus());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(editor->hasFocus());
    EXPECT_NE(editor->text(), u"other"_s);
    EXPECT_EQ(cell(), u"first"_s) << "the document stays";
    for (int i = 0; i < 10; ++i) {
        press(Qt::Key_Z, Qt::ControlModifier); // also when nothing is left of the text
    }
    EXPECT_EQ(cell(), u"first"_s);
    EXPECT_TRUE(editor->hasFocus());
    for (int i = 0; i < 10; ++i) {
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_Y, Qt::ControlModifier);
    }
    EXPECT_EQ(cell(), u"first"_s);
    EXPECT_TRUE(editor->hasFocus());
    press(Qt::Key_Escape);
    EXPECT_EQ(cell(), u"first"_s);
}

} // namespace
} // namespace kavro::test
