#pragma once

#include "ui/page_tabs.h"

namespace kavro {

class HelpPages;
class Navigation;

/// The left panel: the tree of the program and the help page.
class LeftPanel : public PageTabs
{
    Q_OBJECT

public:
    LeftPanel(Navigation &navigation, HelpPages &pages, QWidget *parent);
};

} // namespace kavro
