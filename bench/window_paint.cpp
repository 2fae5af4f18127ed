// window_paint FILE: opens the window with FILE and prints how long a person waits for the picture
// of a step to the next row, of a key typed in a cell and of a step back over a shift of all lines,
// and how long the recovery holds the window up, as medians in milliseconds: "window_step_painted
// <ms>" and so on.

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

template <class Act>
double millisecondsOf(Act act)
{
    QElapsedTimer timer;
    timer.start();
    act();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void report(const char *name, std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    std::printf("%s %.3f\n", name, *middle);
}

/// From the key to its picture.
void reportKey(const char *name, QWidget &widget, int key, const QString &text)
{
    std::vector<double> times;
    times.reserve(runs);
    for (int run = 0; run < runs; ++run) {
        times.push_back(millisecondsOf([&] {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(&widget, &press);
            settle();
        }));
    }
    report(name, times);
}

/// From Ctrl+Z behind a shift of every line to its picture, and what a tick of the recovery takes
/// from the window's own thread.
void reportChanges(kavro::Program &program)
{
    std::vector<double> undone;
    std::vector<double> kept;
    undone.reserve(runs);
    kept.reserve(runs);
    program.shift.rtfShiftDuration.setText(u"00:00:01,000"_s);
    program.shift.Combo2.pick(1);
    for (int run = 0; run < runs / 10; ++run) {
        program.shift.Command13.click();
        settle();
        kept.push_back(millisecondsOf([&] { program.recovery.timRecovery.fire(); }));
        program.recovery.finishWriting();
        undone.push_back(millisecondsOf([&] {
            program.menu.mnuUndo.click();
            settle();
        }));
    }
    report("window_undo_painted", undone);
    report("window_recovery_kept", kept);
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
    kavro::Program program(kavro::portsOf(doors), store, folders);
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
    reportKey("window_step_painted", *grid, Qt::Key_Down, {});
    grid->setFocus();
    program.editor.grdSubEdit.press(kavro::Key::Enter);
    settle();
    reportKey("window_key_painted", *cell, Qt::Key_A, u"a"_s);
    window.finishEdit();
    reportChanges(program);
    return 0;
}
