#include "core/clipboard_panel.h"

namespace kavro {

using namespace Qt::StringLiterals;

ClipboardPanel::ClipboardPanel(Form &frmMain)
    : List1(frmMain, u"List1"_s), command4(frmMain, u"command4"_s)
{}

void ClipboardPanel::add(const QString &item)
{
    List1.addItem(item);
    List1.setSelected(List1.count() - 1);
    for (Button &button : command4) {
        button.setEnabled(true);
    }
}

} // namespace kavro
