// window_pictures FILE FOLDER: opens the window with FILE and writes a picture of every page and
// window that a person works in to FOLDER, as <page>.png. KAVRO_THEME picks the palette.

#include "app/program.h"
#include "core/editor_page.h"
#include "core/main_tabs.h"
#include "ui/main_window.h"
#include "ui/shell.h"
#include "ui/theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <clocale>
#include <cstdio>

namespace {

using namespace Qt::StringLiterals;
using namespace kavro;

class Pictures
{
public:
    Pictures(Shell &shell, QString folder)
        : m_program(shell.program()), m_window(*shell.mainWindow()), m_folder(std::move(folder))
    {}

    void takeAll()
    {
        m_window.resize(1280, 800);
        takeEditor();
        takePages();
        takeForms();
    }

    [[nodiscard]] bool failed() const { return m_failed; }

private:
    void takeEditor()
    {
        m_program.editor.grdSubEdit.moveTo(3, FirstTextColumn);
        const QStringView left[] = {u"basic", u"search", u"filters", u"font"};
        const QStringView right[] = {u"shift", u"stretch", u"time", u"frame-rate"};
        for (int tab = 0; tab < 4; ++tab) {
            m_program.editor.SSTab2.pick(tab);
            m_program.editor.SSTab3.pick(tab);
            take(m_window, u"editor-%1-%2"_s.arg(left[tab], right[tab]));
        }
    }

    void takePages()
    {
        Grid &parts = m_program.partition.grid;
        if (parts.rows() == 2) {
            m_program.partition.append(u"film-1"_s, u"00:02:00,000"_s);
            m_program.partition.append(u"film-2"_s, u"00:01:30,000"_s);
        }
        m_program.navigation.tabMain.pick(PartitionTab);
        take(m_window, u"partition"_s);
        m_program.diagnose.Command27.click();
        m_program.navigation.tabMain.pick(DiagnoseTab);
        take(m_window, u"diagnose"_s);
        m_program.navigation.tabMain.pick(EditorTab);
        m_program.menu.mnuNextFinding.click();
        take(m_window, u"finding"_s);
    }

    void takeForms()
    {
        m_program.editor.rtfSubEditBasic.type(u"Changed"_s);
        m_program.editor.Command14.click();
        takeWindow(m_program.menu.mnuHistory, u"history"_s);
        takeWindow(m_program.menu.mnuPreview, u"preview"_s);
        takeWindow(m_program.menu.mnuGotoLine, u"goto"_s);
        takeWindow(m_program.menu.mnuSettings, u"settings"_s);
        takeWindow(m_program.menu.mnuWizard, u"wizard"_s);
        takeWindow(m_program.menu.mnuAbout, u"about"_s);
        takeWindow(m_program.menu.mnuShowTips, u"tips"_s);
    }

    /// The window that an entry opens; it is closed as by Escape or its frame.
    void takeWindow(Button &entry, const QString &name)
    {
        QTimer::singleShot(300, &m_window, [this, name] {
            QWidget *window = openedWindow();
            if (window == nullptr) {
                std::fprintf(stderr, "no window for %s\n", qPrintable(name));
                m_failed = true;
                return;
            }
            take(*window, name);
            window->close();
        });
        entry.click();
        // A window that isn't modal is taken while this goes on.
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 500) {
            settle();
        }
    }

    /// Any window that stands beside the main one.
    [[nodiscard]] QWidget *openedWindow() const
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto found = std::ranges::find_if(windows, [this](const QWidget *window) {
            return window != &m_window && window->isVisible();
        });
        return found == windows.end() ? nullptr : *found;
    }

    void take(QWidget &window, const QString &name)
    {
        settle();
        if (!window.grab().save(m_folder + u'/' + name + u".png"_s)) {
            std::fprintf(stderr, "%s can't be written\n", qPrintable(name));
            m_failed = true;
        }
    }

    static void settle()
    {
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
        }
    }

    Program &m_program;
    MainWindow &m_window;
    QString m_folder;
    bool m_failed = false;
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    applyTheme(qEnvironmentVariable("KAVRO_THEME"));
    const QTemporaryDir folder;
    FileStore store;
    Folders folders(store,
                    FolderSources::ofMachine(folder.filePath(u"app"_s),
                                             QCoreApplication::applicationFilePath()),
                    FolderUse::Own);
    Shell shell(store, folders);
    shell.program().start(QCoreApplication::arguments().value(1));
    if (shell.mainWindow() == nullptr) {
        return 2;
    }
    Pictures pictures(shell, QCoreApplication::arguments().value(2));
    pictures.takeAll();
    return pictures.failed() ? 1 : 0;
}
