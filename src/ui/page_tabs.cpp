#include "ui/page_tabs.h"

#include "controls/tab_strip.h"
#include "ui/bind_look.h"
#include "ui/mnemonics.h"

#include <QScopedValueRollback>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavro {

PageTabs::PageTabs(TabStrip &strip, const QString &label, QWidget *parent)
    : QTabWidget(parent), m_strip(strip)
{
    bindLookInPlace(*this, strip, label);
    setDocumentMode(true);
    tabBar()->setAccessibleName(label);
    connect(&strip, &TabStrip::tabChanged, this, &PageTabs::showTab);
    connect(&strip, &TabStrip::tabTextChanged, this, &PageTabs::showTexts);
    connect(tabBar(), &QTabBar::tabBarClicked, this, &PageTabs::act);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        // By mouse the act came already; this is the keyboard or the wheel.
        if (!m_following && index >= 0
            && m_pages[static_cast<std::size_t>(index)].number != m_strip.tab()) {
            act(index);
        }
    });
}

void PageTabs::addPage(int number, MakePage make)
{
    const QScopedValueRollback following(m_following, true);
    const auto place = std::ranges::upper_bound(m_pages, number, {}, &Page::number);
    const int index = static_cast<int>(place - m_pages.begin());
    auto *frame = new QWidget(this);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    m_pages.insert(place, {.number = number, .make = std::move(make), .frame = frame});
    insertTab(index, frame, QString());
    showTexts(number);
    showTab(m_strip.tab());
}

QWidget *PageTabs::page(int number) const
{
    const int index = indexOfNumber(number);
    return index < 0 ? nullptr : m_pages[static_cast<std::size_t>(index)].content;
}

void PageTabs::showTab(int number)
{
    const int index = indexOfNumber(number);
    if (index < 0) {
        return;
    }
    const QScopedValueRollback following(m_following, true);
    Page &page = m_pages[static_cast<std::size_t>(index)];
    if (page.content == nullptr) {
        page.content = page.make(page.frame);
        page.frame->layout()->addWidget(page.content);
        placeInTabOrder(*page.content);
    }
    setCurrentIndex(index);
    assignMnemonicsLater(*this);
}

/// A page that is made late would come at the window's end.
void PageTabs::placeInTabOrder(QWidget &page)
{
    QList<QWidget *> stops;
    for (QWidget *next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
        if (page.isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) != 0) {
            stops.append(next);
        }
    }
    QWidget *before = tabBar();
    for (QWidget *stop : stops) {
        setTabOrder(before, stop);
        before = stop;
    }
}

void PageTabs::showTexts(int number)
{
    const int index = indexOfNumber(number);
    if (index >= 0) {
        setTabText(index, withoutMnemonic(m_strip.tabCaption(number)));
        setTabToolTip(index, m_strip.tabToolTip(number));
    }
}

void PageTabs::act(int index)
{
    if (index >= 0 && m_strip.acceptsActs()) {
        m_strip.pick(m_pages[static_cast<std::size_t>(index)].number);
    }
}

int PageTabs::indexOfNumber(int number) const
{
    const auto found = std::ranges::find(m_pages, number, &Page::number);
    return found == m_pages.end() ? -1 : static_cast<int>(found - m_pages.begin());
}

} // namespace kavro
