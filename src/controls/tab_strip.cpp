#include "controls/tab_strip.h"

namespace kavro {

TabStrip::TabStrip(Form &form, const QString &name, const QStringList &captions)
    : Control(form, name), m_captions(captions), m_toolTips(captions.size())
{}

void TabStrip::setTab(int tab)
{
    if (tab >= 0 && tab < count() && tab != m_tab) {
        m_tab = tab;
        emit tabChanged(tab);
    }
}

void TabStrip::setTabCaption(int tab, const QString &caption)
{
    if (tab >= 0 && tab < count()) {
        m_captions[tab] = caption;
        emit tabTextChanged(tab);
    }
}

void TabStrip::setTabToolTip(int tab, const QString &toolTip)
{
    if (tab >= 0 && tab < count()) {
        m_toolTips[tab] = toolTip;
        emit tabTextChanged(tab);
    }
}

void TabStrip::pick(int tab)
{
    if (tab >= 0 && tab < count()) {
        const int previous = m_tab;
        setTab(tab);
        emit picked(tab, previous);
    }
}

} // namespace kavro
