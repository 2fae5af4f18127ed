#pragma once

#include "tests/support/test_program.h"
#include "ui/grid_view.h"
#include "ui/help_browser.h"
#include "ui/main_window.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace kavro::test {

/// The main window over a program of its own.
class WindowFixture : public ::testing::Test
{
protected:
    /// Starts with that file and shows the window; the grid has the focus.
    void open(const QString &file)
    {
        run.start(file);
        window = std::make_unique<MainWindow>(run.program(), pages);
        window->open();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        grid = window->findChild<GridView *>();
        grid->setFocus();
    }
    /// A document of two subtitles, the first text of row 1 the current cell.
    void openFilm()
    {
        open(run.write(QStringLiteral("film.srt"), twoSubtitles()));
        run->editor.grdSubEdit.setCurrent(1, FirstTextColumn);
        run->trace.RecordAction({}, 0);
    }

    template <class T>
    T *view(const QString &name = {})
    {
        T *found = window->findChild<T *>(name);
        EXPECT_NE(found, nullptr) << qPrintable(name);
        return found;
    }
    /// Keys and letters go where the focus is.
    static void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    static void type(const char *text)
    {
        for (const char *letter = text; *letter != 0; ++letter) {
            QTest::keyClick(QApplication::focusWidget(), *letter);
        }
    }
    static QString focus() { return QApplication::focusWidget()->objectName(); }
    /// Without the blank at a text's head.
    QString cell(int row, int col) { return run->editor.grdSubEdit.text(row, col).trimmed(); }

    TestProgram run;
    HelpPages pages;
    std::unique_ptr<MainWindow> window;
    GridView *grid = nullptr;
};

} // namespace kavro::test
