#include "core/status_panels.h"

namespace kavro {

using namespace Qt::StringLiterals;

StatusPanels::StatusPanels(Form &frmMain)
    : StatusBar1(frmMain, u"StatusBar1"_s, 4), lblEncoding(frmMain, u"lblEncoding"_s)
{}

} // namespace kavro
