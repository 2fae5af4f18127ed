#include "ui/tool_pages.h"

#include "app/program.h"
#include "ui/basic_edit_view.h"
#include "ui/filters_view.h"
#include "ui/font_view.h"
#include "ui/frame_rate_view.h"
#include "ui/search_view.h"
#include "ui/shift_view.h"
#include "ui/stretch_view.h"
#include "ui/time_change_view.h"

#include <QTabBar>

#include <utility>

namespace kavro {

namespace {

constexpr int rowsOfAPage = 3;

} // namespace

ToolPages::ToolPages(TabStrip &strip, const QString &label, QWidget *parent)
    : PageTabs(strip, label, parent)
{
    // No page that is made later shall take room from the grid.
    setFixedHeight(ToolPage::heightOf(rowsOfAPage) + QTabBar().fontMetrics().height() * 2);
}

void ToolPages::add(int number, std::function<ToolPage *(QWidget *parent)> make)
{
    addPage(number, [this, make = std::move(make)](QWidget *parent) {
        ToolPage *page = make(parent);
        connect(page, &ToolPage::aboutToAct, this, &ToolPages::aboutToAct);
        return page;
    });
}

TextPages::TextPages(Program &program, QWidget *parent)
    : ToolPages(program.editor.SSTab2, tr("Text"), parent)
{
    add(0, [&program](QWidget *page) {
        return new BasicEditView(program.editor, program.settings, page);
    });
    add(1, [&program](QWidget *page) { return new SearchView(program.searchReplace, page); });
    add(2, [&program](QWidget *page) { return new FiltersView(program.filters, page); });
    add(3, [&program](QWidget *page) { return new FontView(program.fonts, page); });
}

TimingPages::TimingPages(Program &program, QWidget *parent)
    : ToolPages(program.editor.SSTab3, tr("Timing"), parent)
{
    add(0, [&program](QWidget *page) { return new ShiftView(program.shift, program.times, page); });
    add(1, [&program](QWidget *page) {
        return new StretchView(program.stretch, program.shift.Label39, program.times, page);
    });
    add(2, [&program](QWidget *page) {
        return new TimeChangeView(program.timeChange, program.times, page);
    });
    add(3, [&program](QWidget *page) {
        return new FrameRateView(program.frameRateConversion, program.frameRates, page);
    });
}

} // namespace kavro
