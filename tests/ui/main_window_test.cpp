#include "ui/main_window.h"

#include "tests/ui/settle.h"
#include "tests/ui/window_fixture.h"
#include "ui/cell_editor.h"
#include "ui/navigation_tree.h"
#include "ui/panel_splitter.h"
#include "ui/view_state.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class Window : public WindowFixture
{
protected:
    QAction *action(const QString &name) { return view<QAction>(name); }
    void drop(const QString &path)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &event);
        settle();
    }
};

TEST_F(Window, TitleNamesTheFileAndMarksChanges)
{
    open(run.write(u"odd[*]name.srt"_s, twoSubtitles()));
    EXPECT_EQ(window->windowTitle(), u"odd[*][*]name.srt[*] - Kavro"_s);
    EXPECT_FALSE(window->isWindowModified());
    run->document.markEdited();
    EXPECT_TRUE(window->isWindowModified());
    run->document.setFileChanged(false);
    EXPECT_FALSE(window->isWindowModified());
    run->fileCommands.mnuNewFile();
    EXPECT_TRUE(window->windowTitle().startsWith(u"Noname"_s));
}

TEST_F(Window, WaitCursorStandsWhileLinesAreMoved)
{
    openFilm();
    QList<Qt::CursorShape> seen;
    QObject::connect(&run->editor.grdSubEdit, &Grid::reset, window.get(),
                     [&] { seen.append(window->cursor().shape()); });
    run->shift.Command13.click();
    run->diagnose.Command27.click();
    EXPECT_EQ(seen, (QList{Qt::WaitCursor, Qt::WaitCursor}));
    EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Window, MenusHoldWhatWorksAndNothingElse)
{
    openFilm();
    QStringList titles;
    for (const QAction *title : window->menuBar()->actions()) {
        int shown = 0;
        for (const QAction *entry : title->menu()->actions()) {
            if (!entry->isSeparator()) {
                EXPECT_FALSE(entry->text().isEmpty()) << qPrintable(entry->objectName());
                shown += entry->isVisible() ? 1 : 0;
            }
        }
        EXPECT_EQ(title->isVisible(), shown > 0) << qPrintable(title->text());
        if (title->isVisible()) {
            titles.append(title->text().remove(u'&'));
        }
    }
    for (const auto &title : {u"File"_s, u"Edit"_s, u"Help"_s}) {
        EXPECT_TRUE(titles.contains(title)) << qPrintable(title);
    }
    EXPECT_EQ(action(u"mnuSave"_s)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    EXPECT_EQ(action(u"mnuSavesubfile"_s)->shortcut(),
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
}

TEST_F(Window, CommandTakesWhatIsBeingTyped)
{
    openFilm();
    type("typed");
    ASSERT_TRUE(view<CellEditor>()->isVisible());
    action(u"mnuSave"_s)->trigger();
    EXPECT_TRUE(TestProgram::read(run.path(u"film.srt"_s)).contains(u"\ntyped"_s));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(Window, ReopenAsOffersTheEncodings)
{
    openFilm();
    QMenu *menu = action(u"mnuReopen"_s)->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), run->fileCommands.lstEncoding.count());
    QStringList checked;
    for (const QAction *entry : menu->actions()) {
        if (entry->isChecked()) {
            checked.append(entry->text());
        }
    }
    EXPECT_EQ(checked, QStringList{run->fileCommands.lstEncoding.selectedText()});
}

TEST_F(Window, DropOpensTheFileAndAsksFirst)
{
    openFilm();
    const QString other = run.write(u"other.srt"_s, twoSubtitles());
    drop(other);
    EXPECT_EQ(run->document.subFileName, other);
    EXPECT_TRUE(run.takeMessages().isEmpty());

    run->document.markEdited();
    run.doors.messages.answer(Answer::Cancel);
    drop(run.path(u"film.srt"_s));
    EXPECT_EQ(run->document.subFileName, other) << "Cancel keeps the changes";
    EXPECT_EQ(run.takeMessages().size(), 1);
}

TEST_F(Window, CloseAsksUntilTheAnswerIsNoOrTheSaveWent)
{
    openFilm();
    run->document.markEdited();
    run.doors.messages.answer(Answer::Yes); // the save's own window is cancelled
    run.doors.messages.answer(Answer::No);
    window->close();
    EXPECT_TRUE(run->hasEnded());
    EXPECT_TRUE(window->isHidden());
    EXPECT_EQ(run.takeMessages().size(), 2);
    EXPECT_EQ(run.doors.files.shown.size(), 1);
}

TEST_F(Window, PlaceAndSplitterComeBack)
{
    openFilm();
    window->resize(1000, 640);
    window->move(20, 30);
    view<PanelSplitter>()->setPanelWidth(240);
    window->close();
    window.reset();
    run.restart();
    open(run.path(u"film.srt"_s));
    EXPECT_EQ(window->pos(), QPoint(20, 30));
    EXPECT_EQ(window->size(), QSize(1000, 640));
    EXPECT_EQ(view<PanelSplitter>()->sizes().constFirst(), 240);
}

TEST_F(Window, LeftPanelGivesWayOnlyWhileAPageNeedsTheRoom)
{
    openFilm();
    window->resize(1000, 640);
    auto *splitter = view<PanelSplitter>();
    splitter->setPanelWidth(240);
    QWidget *right = splitter->widget(1);
    right->setMinimumWidth(900);
    settle();
    EXPECT_LT(splitter->sizes().constFirst(), 240);
    EXPECT_EQ(splitter->panelWidth(), 240) << "a person's choice stays";
    right->setMinimumWidth(100);
    settle();
    EXPECT_EQ(splitter->sizes().constFirst(), 240);
}

TEST_F(Window, PlaceOutsideTheScreenIsBroughtInside)
{
    run.writeApp(u"System/pos.sdf"_s, u"90000\n-60000\n14295\n9195\n"_s);
    openFilm();
    EXPECT_TRUE(window->screen()->availableGeometry().intersects(window->geometry()));
    EXPECT_GE(window->y(), 0);
}

TEST_F(Window, TreeShowsWhatLeadsSomewhereAndActs)
{
    openFilm();
    auto *tree = view<NavigationTree>();
    QStringList texts;
    const auto walk = [&](auto &self, const QModelIndex &parent) -> void {
        for (int row = 0; row < tree->model()->rowCount(parent); ++row) {
            const QModelIndex node = tree->model()->index(row, 0, parent);
            texts.append(node.data().toString());
            self(self, node);
        }
    };
    walk(walk, {});
    EXPECT_TRUE(texts.contains(u"Load File .."_s));
    EXPECT_TRUE(texts.contains(run.path(u"film.srt"_s))) << "a recent file";
    EXPECT_FALSE(texts.contains(u"Media Player"_s)) << "a page that isn't there";

    run.doors.files.cancel();
    TreeView &nodes = run->navigation.TV1;
    const auto *model = static_cast<TreeModel *>(tree->model());
    tree->setCurrentIndex(model->indexOf(nodes.find(u"load"_s)));
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(run.doors.files.shown.size(), 1);
}

TEST_F(Window, NumberKeysBringThePagesThatExist)
{
    openFilm();
    QTest::keyClick(window.get(), Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(run->trace.lastActionCode, 5) << "as a click on the tab";
    run->trace.RecordAction({}, 0);
    QTest::keyClick(window.get(), Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(run->trace.lastActionCode, 0);
    EXPECT_EQ(run->navigation.tabMain.tab(), EditorTab);
}

TEST_F(Window, HelpKeyOpensTheHelpOfWhatHasTheFocus)
{
    struct Case
    {
        const char *field;
        const char *page;
    };
    openFilm();
    for (const Case &c :
         {Case{"grdSubEdit", "edit_bas.htm"}, Case{"rtfSubEditBasic", "edit_bas.htm"},
          Case{"rtfShiftDuration", "edit_shi.htm"}, Case{"rtfClipBoard", "main_cli.htm"},
          Case{"TV1", "edit_bas.htm"}})
    {
        run->navigation.SSTab1.setTab(0);
        view<QWidget>(QLatin1String(c.field))->setFocus();
        key(Qt::Key_F1);
        EXPECT_EQ(run->navigation.SSTab1.tab(), 1);
        EXPECT_TRUE(run.doors.help.opened.constLast().endsWith(QLatin1String(c.page))) << c.field;
    }
}

TEST_F(Window, EveryControlHasANameAndAPlaceInTheTabOrder)
{
    openFilm();
    for (int tab = 0; tab < 4; ++tab) {
        run->editor.SSTab2.setTab(tab);
        run->editor.SSTab3.setTab(tab);
    }
    QSet<QWidget *> reached;
    for (QWidget *at = window->nextInFocusChain(); at != window.get(); at = at->nextInFocusChain())
    {
        reached.insert(at);
    }
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        const bool named = run->frmMain.control(widget->objectName()) != nullptr;
        if (named && widget->focusPolicy() != Qt::NoFocus) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << qPrintable(widget->objectName());
            EXPECT_TRUE(reached.contains(widget)) << qPrintable(widget->objectName());
        }
    }
}

TEST(HelpPages, NothingRemoteIsFetchedAndAMissingPageIsTold)
{
    HelpView view(nullptr);
    view.openPage(u"/no/such/page.htm"_s);
    EXPECT_TRUE(view.toPlainText().contains(u"/no/such/page.htm"_s));
    view.setSource(QUrl(u"https://example.org/"_s));
    EXPECT_TRUE(view.source().isLocalFile());
    EXPECT_FALSE(
        view.loadResource(QTextDocument::ImageResource, QUrl(u"http://example.org/a.png"_s))
            .isValid());
}

TEST(ViewStates, DamagedFileGivesDefaults)
{
    struct Case
    {
        QString text;
        int width;
        bool maximized;
    };
    const Case cases[] = {
        {{}, 0, false},
        {u"left panel:=240\nmaximized:=1\n"_s, 240, true},
        {u"maximized:=\nleft panel:=abc\nnonsense"_s, 0, false},
        {u"left panel:=-5\n"_s, 0, false},
        {u"left panel:=99999999999\n"_s, 4000, false},
    };
    for (const Case &c : cases) {
        TestProgram run;
        run.writeApp(u"System/view.sdf"_s, c.text);
        const ViewState state = ViewState::read(run->folders);
        EXPECT_EQ(state.leftPanelWidth, c.width) << qPrintable(c.text);
        EXPECT_EQ(state.maximized, c.maximized) << qPrintable(c.text);
    }
}

} // namespace
} // namespace kavro::test
