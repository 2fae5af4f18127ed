#include "ui/main_menu_view.h"

#include "controls/form.h"
#include "core/main_menu.h"
#include "ui/bind_buttons.h"
#include "ui/bind_look.h"
#include "ui/mnemonics.h"

#include <QActionGroup>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

struct MenuRow
{
    QStringView menu; ///< control that gives the menu its caption
    Button MainMenu::*entry;
    const char *keys = "";
    bool separated = false; ///< a line stands above it
};

// clang-format off
constexpr MenuRow rows[] = {
    {u"mnuFile", &MainMenu::mnuNewFile, "Ctrl+N"},
    {u"mnuFile", &MainMenu::mnuLoadFile, "Ctrl+O"},
    {u"mnuFile", &MainMenu::mnuAddFile},
    {u"mnuFile", &MainMenu::mnuReopen},
    {u"mnuFile", &MainMenu::mnuSave, "Ctrl+S", true},
    {u"mnuFile", &MainMenu::mnuSavesubfile, "Ctrl+Shift+S"},
    {u"mnuFile", &MainMenu::mnuSaveSettings},
    {u"mnuFile", &MainMenu::mnuPrint, "Ctrl+P", true},
    {u"mnuFile", &MainMenu::mnuExit, "Ctrl+Q", true},
    {u"mnuEdit", &MainMenu::mnuUndo, "Ctrl+Z"},
    {u"mnuEdit", &MainMenu::mnuRedo, "Ctrl+Shift+Z; Ctrl+Y"},
    {u"mnuEdit", &MainMenu::mnuSearch, "Ctrl+F", true},
    {u"mnuEdit", &MainMenu::mnuSearchAgain, "F3"},
    {u"mnuEdit", &MainMenu::mnuReplace, "Ctrl+H"},
    {u"mnuEdit", &MainMenu::mnuGotoLine, "Ctrl+G"},
    {u"mnuEdit", &MainMenu::mnuNextFinding, "F8", true},
    {u"mnuEdit", &MainMenu::mnuPreviousFinding, "Shift+F8"},
    {u"mnuView", &MainMenu::mnuPreview},
    {u"mnuOptions", &MainMenu::mnuSettings},
    {u"mnuOptions", &MainMenu::mnuSystem},
    {u"mnuOptions", &MainMenu::mnuHistory},
    {u"mnuWizards", &MainMenu::mnuWizard},
    {u"mnuHelp", &MainMenu::mnuHelpIndex},
    {u"mnuHelp", &MainMenu::mnuShowTips},
    {u"mnuHelp", &MainMenu::mnuAbout, "", true},
};
// clang-format on

} // namespace

MainMenuView::MainMenuView(MainMenu &menu, ListBox &encodings, std::function<void()> beforeAct,
                           QWidget *parent)
    : QMenuBar(parent), m_menu(menu), m_encodings(encodings)
{
    QMenu *shown = nullptr;
    for (const MenuRow &row : rows) {
        Button &entry = m_menu.*(row.entry);
        if (shown == nullptr || shown->objectName() != row.menu) {
            shown = makeMenu(entry, row.menu, row.menu.mid(3).toString());
        }
        if (row.separated) {
            shown->addSeparator();
        }
        QAction *action = shown->addAction(QString());
        connect(action, &QAction::triggered, this, beforeAct);
        bind(*action, entry);
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.keys)));
        // A menu without an entry isn't shown.
        connect(action, &QAction::changed, shown, [shown] { showIfUsed(*shown); });
        showIfUsed(*shown);
        if (row.entry == &MainMenu::mnuReopen) {
            makeEncodings(*action);
        }
    }
    assignMnemonics(actions());
}

void MainMenuView::showIfUsed(QMenu &menu)
{
    menu.menuAction()->setVisible(std::ranges::any_of(menu.actions(), [](const QAction *entry) {
        return entry->isVisible() && !entry->isSeparator();
    }));
}

QMenu *MainMenuView::makeMenu(const Control &entry, QStringView control, const QString &otherwise)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(control.toString());
    const auto *title = qobject_cast<CaptionControl *>(entry.form().control(control));
    menu->setTitle(withoutMnemonic(
        title == nullptr || title->caption().isEmpty() ? otherwise : title->caption()));
    connect(menu, &QMenu::aboutToShow, menu, [menu] { assignMnemonics(menu->actions()); });
    addMenu(menu);
    return menu;
}

void MainMenuView::makeEncodings(QAction &entry)
{
    auto *menu = new QMenu(this);
    entry.setMenu(menu);
    connect(menu, &QMenu::aboutToShow, menu, [this, menu] {
        menu->clear();
        auto *choice = new QActionGroup(menu->menuAction());
        for (int i = 0; i < m_encodings.count(); ++i) {
            QAction *encoding = menu->addAction(withoutMnemonic(m_encodings.item(i)));
            encoding->setCheckable(true);
            encoding->setActionGroup(choice);
            encoding->setChecked(i == m_encodings.selected());
            // The menu is left before the file is read, since a question may come.
            connect(
                encoding, &QAction::triggered, &m_encodings, [this, i] { m_encodings.pick(i); },
                Qt::QueuedConnection);
        }
    });
}

} // namespace kavro
