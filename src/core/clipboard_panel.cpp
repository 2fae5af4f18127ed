#include "core/clipboard_panel.h"

namespace kavro {

using namespace Qt::StringLiterals;

ClipboardPanel::ClipboardPanel(Form &frmMain)
    : List1(frmMain, u"List1"_s), command4(frmMain, u"command4"_s)
{}

} // namespace kavro
