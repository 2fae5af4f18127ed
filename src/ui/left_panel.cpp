#include "ui/left_panel.h"

#include "app/navigation.h"
#include "ui/help_browser.h"
#include "ui/navigation_tree.h"

namespace kavro {

LeftPanel::LeftPanel(Navigation &navigation, HelpPages &pages, QWidget *parent)
    : PageTabs(navigation.SSTab1, tr("Left panel"), parent)
{
    addPage(0, [&navigation](QWidget *page) {
        const auto isShown = [&navigation](int node) { return navigation.leadsSomewhere(node); };
        return new NavigationTree(navigation.TV1, isShown, tr("Program tree"), page);
    });
    addPage(1, [&pages](QWidget *page) { return new HelpPanel(pages, page); });
}

} // namespace kavro
