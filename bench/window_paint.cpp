// window_paint FILE: opens the window with FILE and prints how long a person waits for the picture
// of a step to the next row and of a key typed in a cell, as medians in milliseconds:
// "window_step_painted <ms>" and "window_key_painted <ms>".

#include "app/program.h"
#include "tests/support/scripted_ports.h"
#include "ui/cell_editor.h"
#include "ui/grid_view.h"
#include "ui/help_browser.h"
#include "ui/main_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace Qt::StringLiterals;

constexpr int runs = 200;

/// Until nothing is left to paint and the display has what was painted.
void settle()
{
    QCoreApplication::processEvents();
    QGuiApplication::sync();
}

/// From the key to its picture, in milliseconds.
double paintedAfter(QWidget &widget, int key, const QString &text)
{
    QElapsedTimer timer;
    timer.start();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
    settle();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void report(const char *name, QWidget &widget, int key, const QString &text)
{
    std::vector<double> times;
    times.reserve(runs);
    for (int run = 0; run < runs; ++run) {
        times.push_back(paintedAfter(widget, key, text));
    }
    std::ranges::nth_element(times, times.begin() + runs / 2);
    std::printf("%s %.3f\n", name, times[runs / 2]);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QString file = QCoreApplication::arguments().value(1);
    const QTemporaryDir folder;
    kavro::test::ScriptedPorts doors;
    kavro::FileStore store;
    kavro::Folders folders(store,
                           {.appDir = folder.filePath(u"app"_s),
                            .home = {},
                            .executableFolder = folder.path(),
                            .userData = folder.filePath(u"user"_s),
                            .temporary = folder.filePath(u"tmp"_s)},
                           kavro::FolderUse::Own);
    kavro::Program program(doors.ports(), store, folders);
    program.start(file);
    kavro::HelpPages pages;
    kavro::MainWindow window(program, pages);
    window.open();
    window.resize(1280, 800);
    window.activateWindow();
    for (int turn = 0; turn < 20; ++turn) {
        settle();
    }
    auto *grid = window.findChild<kavro::GridView *>();
    auto *cell = window.findChild<kavro::CellEditor *>();
    if (program.document.subtitleCount() <= runs) {
        std::fprintf(stderr, "%s has too few subtitles\n", qPrintable(file));
        return 2;
    }
    report("window_step_painted", *grid, Qt::Key_Down, {});
    grid->setFocus();
    program.editor.grdSubEdit.press(kavro::Key::Enter);
    settle();
    report("window_key_painted", *cell, Qt::Key_A, u"a"_s);
    return 0;
}
