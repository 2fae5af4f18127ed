#include "ui/main_window.h"

#include "app/program.h"
#include "app/version.h"
#include "ui/bind_indicators.h"
#include "ui/bind_look.h"
#include "ui/bottom_panel.h"
#include "ui/diagnose_view.h"
#include "ui/editor_page_view.h"
#include "ui/form_focus.h"
#include "ui/help_browser.h"
#include "ui/left_panel.h"
#include "ui/main_menu_view.h"
#include "ui/page_tabs.h"
#include "ui/panel_splitter.h"
#include "ui/partition_view.h"
#include "ui/status_bar_view.h"
#include "ui/view_state.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int leftPanelWidth = 210;

int toPixels(double twips)
{
    return static_cast<int>(std::lround(twips / ScreenPos::twipsPerPixel));
}

/// The first file of this machine among what is dragged; empty for none.
QString localFile(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile()) {
            return QDir::toNativeSeparators(url.toLocalFile());
        }
    }
    return {};
}

} // namespace

MainWindow::MainWindow(Program &program, HelpPages &help) : m_program(program), m_help(help)
{
    setObjectName(program.frmMain.name());
    setAcceptDrops(true);
    setMinimumSize(toPixels(ScreenPos::minFormWidth), toPixels(ScreenPos::minFormHeight));
    setMenuBar(new MainMenuView(
        program.menu, program.fileCommands.lstEncoding, [this] { finishEdit(); }, this));
    setStatusBar(new StatusBarView(program.status, this));
    makePages();
    connectProgram();
    showTitle();
}

void MainWindow::makePages()
{
    m_splitter = new PanelSplitter(this);
    m_splitter->setObjectName(u"pMove"_s);
    m_splitter->addWidget(new LeftPanel(m_program.navigation, m_help, m_splitter));
    m_tabs = new PageTabs(m_program.navigation.tabMain, tr("Pages"), m_splitter);
    addPage(EditorTab, [this](QWidget *page) { return new EditorPageView(m_program, page); });
    addPage(PartitionTab, [this](QWidget *page) { return new PartitionView(m_program, page); });
    addPage(DiagnoseTab, [this](QWidget *page) {
        auto *view = new DiagnoseView(m_program.diagnose, page);
        connect(view, &ToolPage::aboutToAct, this, &MainWindow::finishEdit);
        connect(view, &DiagnoseView::lineAsked, this, &MainWindow::showCurrentLine);
        return view;
    });
    auto *right = new QWidget(m_splitter);
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(new BottomPanel(m_program, right));
    m_splitter->addWidget(right);
    setCentralWidget(m_splitter);
}

void MainWindow::addPage(int number, PageTabs::MakePage make)
{
    m_tabs->addPage(number, std::move(make));
    auto *key = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + number)), this);
    TabStrip &tabMain = m_program.navigation.tabMain;
    connect(key, &QShortcut::activated, &tabMain, [&tabMain, number] { tabMain.pick(number); });
}

void MainWindow::connectProgram()
{
    new FormFocus(m_program.frmMain, *this);
    runByTheClock(m_program.recovery.timRecovery, *this);
    SubtitleDocument &document = m_program.document;
    connect(&document, &SubtitleDocument::nameChanged, this, &MainWindow::showTitle);
    connect(&document, &SubtitleDocument::fileChangedChanged, this, &QWidget::setWindowModified);
    bindCursor(*this, m_program.frmMain);
    connect(&m_program.frmMain, &Form::openChanged, this, [this](bool open) {
        if (!open && m_program.hasEnded()) {
            end();
        }
    });
    auto *help = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(help, &QShortcut::activated, this, &MainWindow::showPageHelp);
}

void MainWindow::open()
{
    const ScreenPos &place = m_program.navigation.screenPos;
    QRect rect(toPixels(place.left), toPixels(place.top), toPixels(place.width),
               toPixels(place.height));
    const QScreen *screen = QGuiApplication::screenAt(rect.center());
    const QRect room =
        (screen == nullptr ? QGuiApplication::primaryScreen() : screen)->availableGeometry();
    rect.setSize(rect.size().boundedTo(room.size()));
    if (!room.contains(rect)) {
        // The screen of the last run may be another one now.
        rect.moveTo(qBound(room.left(), rect.left(), room.right() - rect.width() + 1),
                    qBound(room.top(), rect.top(), room.bottom() - rect.height() + 1));
    }
    resize(rect.size());
    move(rect.topLeft());
    const ViewState state = ViewState::read(m_program.folders);
    m_splitter->setPanelWidth(state.leftPanelWidth > 0 ? state.leftPanelWidth : leftPanelWidth);
    if (EditorPageView *editor = editorPage()) {
        editor->focusGrid();
    }
    state.maximized ? showMaximized() : show();
}

void MainWindow::finishEdit()
{
    if (EditorPageView *editor = editorPage()) {
        editor->finishEdit();
    }
    if (auto *parts = qobject_cast<PartitionView *>(m_tabs->page(PartitionTab))) {
        parts->finishEdit();
    }
}

EditorPageView *MainWindow::editorPage() const
{
    return qobject_cast<EditorPageView *>(m_tabs->page(EditorTab));
}

void MainWindow::showTitle()
{
    // The program's own word for the changed mark must not come from a file's name.
    const QString file =
        QFileInfo(m_program.document.subFileName).fileName().replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(file.isEmpty() ? versionName() : file + u"[*] - "_s + versionName());
    setWindowModified(m_program.document.fileChanged());
}

void MainWindow::showPageHelp()
{
    Navigation &navigation = m_program.navigation;
    navigation.SSTab1.setTab(1);
    m_program.help.ShowHelpPage(
        helpOfFocus().value_or(navigation.helpOfMainTab(navigation.tabMain.tab())));
}

/// The help page of the inner tabs that hold the focus.
std::optional<int> MainWindow::helpOfFocus() const
{
    for (const QWidget *widget = focusWidget(); widget != nullptr && widget != m_tabs;
         widget = widget->parentWidget())
    {
        if (const auto *tabs = qobject_cast<const PageTabs *>(widget)) {
            return m_program.navigation.helpOfTabs(tabs->strip());
        }
    }
    return std::nullopt;
}

void MainWindow::showCurrentLine()
{
    Grid &grid = m_program.editor.grdSubEdit;
    m_program.navigation.tabMain.pick(EditorTab);
    grid.scrollTo(grid.row());
    grid.setFocus();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    finishEdit();
    event->setAccepted(m_program.exit());
}

void MainWindow::end()
{
    const ViewState state{.leftPanelWidth = m_splitter->panelWidth(), .maximized = isMaximized()};
    state.write(m_program.folders, m_program.store);
    hide();
    QCoreApplication::quit();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFile(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString file = localFile(*event->mimeData());
    if (file.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    // A question may come, and whoever holds the file waits for the end of the drop.
    QTimer::singleShot(0, this, [this, file] {
        finishEdit();
        m_program.dropFile(file);
    });
}

void MainWindow::moveEvent(QMoveEvent *event)
{
    QMainWindow::moveEvent(event);
    storePlace();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    storePlace();
}

void MainWindow::storePlace()
{
    if (!isVisible() || isMaximized() || isMinimized() || isFullScreen()) {
        return;
    }
    m_program.navigation.screenPos = {.left = pos().x() * ScreenPos::twipsPerPixel,
                                      .top = pos().y() * ScreenPos::twipsPerPixel,
                                      .width = width() * ScreenPos::twipsPerPixel,
                                      .height = height() * ScreenPos::twipsPerPixel};
}

} // namespace kavro
