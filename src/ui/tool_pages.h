#pragma once

#include "ui/page_tabs.h"

namespace kavro {

class Program;
class ToolPage;

/// Tabs whose pages are those of the tools that work on the document.
class ToolPages : public PageTabs
{
    Q_OBJECT

public:
    ToolPages(TabStrip &strip, const QString &label, QWidget *parent);

signals:
    /// A button of a page is pressed, and hasn't acted yet.
    void aboutToAct();

protected:
    void add(int number, std::function<ToolPage *(QWidget *parent)> make);
};

/// The tabs of `SSTab2`: Basic, Search/Replace, Filters, Font.
class TextPages : public ToolPages
{
    Q_OBJECT

public:
    TextPages(Program &program, QWidget *parent);
};

/// The tabs of `SSTab3`: Shift, Stretch, Time, Frame Rate.
class TimingPages : public ToolPages
{
    Q_OBJECT

public:
    TimingPages(Program &program, QWidget *parent);
};

} // namespace kavro
