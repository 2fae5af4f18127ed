#include "ui/bottom_panel.h"

#include "app/program.h"
#include "ui/bind_buttons.h"
#include "ui/clipboard_view.h"
#include "ui/page_tabs.h"

#include <QGridLayout>
#include <QTabBar>
#include <QToolButton>

namespace kavro {

namespace {

constexpr int rowsOfAPage = 3;

} // namespace

BottomPanel::BottomPanel(Program &program, QWidget *parent) : QWidget(parent)
{
    TabStrip &tabClipboard = program.navigation.tabClipboard;
    auto *tabs = new PageTabs(tabClipboard, tr("Panel"), this);
    tabs->addPage(0, [&program](QWidget *page) {
        return new ClipboardView(program.clipboard, program.clips, page);
    });
    tabs->setFixedHeight(ToolPage::heightOf(rowsOfAPage) + QTabBar().fontMetrics().height() * 2);

    auto *fold = new QToolButton(this);
    bind(*fold, program.navigation.command55[0]);
    fold->setFocusPolicy(Qt::TabFocus);
    // The button stands beside the tabs, and stays where it is when they are folded away.
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(9, 0, 9, 0);
    layout->addWidget(tabs, 0, 0);
    layout->addWidget(fold, 0, 0, Qt::AlignTop | Qt::AlignRight);

    const auto follow = [tabs, &tabClipboard] { tabs->setVisible(tabClipboard.isVisible()); };
    connect(&tabClipboard, &Control::lookChanged, tabs, follow);
    follow();
}

} // namespace kavro
