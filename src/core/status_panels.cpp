#include "core/status_panels.h"

namespace kavro {

using namespace Qt::StringLiterals;

StatusPanels::StatusPanels(Form &frmMain)
    : StatusBar1(frmMain, u"StatusBar1"_s, 4), lblEncoding(frmMain, u"lblEncoding"_s)
{}

StatusNote::StatusNote(StatusPanels &panels, const QString &text)
    : m_panels(panels), m_before(panels.StatusBar1.panel(StatePanel))
{
    m_panels.StatusBar1.setPanel(StatePanel, text);
}

StatusNote::~StatusNote()
{
    m_panels.StatusBar1.setPanel(StatePanel, m_before);
}

} // namespace kavro
