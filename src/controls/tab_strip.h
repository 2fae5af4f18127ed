#pragma once

#include "controls/control.h"

#include <QStringList>

namespace kavro {

/// The tabs of a set of pages, numbered from 0. All tabs of the program are here from the start; a
/// view leaves out those whose page it has not.
class TabStrip : public Control
{
    Q_OBJECT

public:
    TabStrip(Form &form, const QString &name, const QStringList &captions);
    /// So many tabs, whose captions are still to come.
    TabStrip(Form &form, const QString &name, int tabs) : TabStrip(form, name, QStringList(tabs)) {}

    [[nodiscard]] int count() const { return static_cast<int>(m_captions.size()); }
    [[nodiscard]] int tab() const { return m_tab; }
    [[nodiscard]] QString tabCaption(int tab) const { return m_captions.value(tab); }
    [[nodiscard]] QString tabToolTip(int tab) const { return m_toolTips.value(tab); }

    /// Nothing outside the tabs, as in the other functions that take one.
    void setTab(int tab);
    void setTabCaption(int tab, const QString &caption);
    void setTabToolTip(int tab, const QString &toolTip);

    /// Act: the user clicks a tab.
    void pick(int tab);

signals:
    void tabChanged(int tab);
    /// `previous` is the tab that stood before the click, the same one when it was clicked again.
    void picked(int tab, int previous);
    void tabTextChanged(int tab);

private:
    QStringList m_captions;
    QStringList m_toolTips;
    int m_tab = 0;
};

} // namespace kavro
