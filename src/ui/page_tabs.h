#pragma once

#include <QTabWidget>

#include <functional>
#include <vector>

namespace kavro {

class TabStrip;

/// The tabs of a strip whose pages exist, under the strip's own numbers. Shows the strip's tab and
/// makes a person's click on any tab, the present one included, the strip's act.
class PageTabs : public QTabWidget
{
    Q_OBJECT

public:
    using MakePage = std::function<QWidget *(QWidget *parent)>;

    /// @param label  what a screen reader calls the set of tabs
    PageTabs(TabStrip &strip, const QString &label, QWidget *parent);

    [[nodiscard]] const TabStrip &strip() const { return m_strip; }

    /// Gives tab `number` its page, which is made when it is shown first. Pages may come in any
    /// order; the tabs stand in the strip's.
    void addPage(int number, MakePage make);

    /// The page's widget, nullptr when there is none or it wasn't shown yet.
    [[nodiscard]] QWidget *page(int number) const;

private:
    struct Page
    {
        int number;
        MakePage make;
        QWidget *frame;
        QWidget *content = nullptr;
    };

    void showTab(int number);
    void placeInTabOrder(QWidget &page);
    void showTexts(int number);
    void act(int index);
    [[nodiscard]] int indexOfNumber(int number) const;

    TabStrip &m_strip;
    std::vector<Page> m_pages; ///< in the order of the tabs
    bool m_following = false;  ///< the strip moves the tabs, not a person
};

} // namespace kavro
