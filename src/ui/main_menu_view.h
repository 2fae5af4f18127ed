#pragma once

#include "controls/list_box.h"

#include <QMenuBar>

#include <functional>

namespace kavro {

struct MainMenu;

/// The main window's menus. An entry stands there from the day on which its command works.
class MainMenuView : public QMenuBar
{
    Q_OBJECT

public:
    /// @param encodings  what "Reopen as" offers
    /// @param beforeAct  runs ahead of every command
    MainMenuView(MainMenu &menu, ListBox &encodings, std::function<void()> beforeAct,
                 QWidget *parent);

private:
    static void showIfUsed(QMenu &menu);
    QMenu *makeMenu(const Control &entry, QStringView control, const QString &otherwise);
    void makeEncodings(QAction &entry);

    MainMenu &m_menu;
    ListBox &m_encodings;
};

} // namespace kavro
