#include "core/settings_page.h"

#include "core/text.h"

namespace kavro {

using namespace Qt::StringLiterals;

SettingsPage::SettingsPage(Form &frmSettings)
    : Check7(frmSettings, u"Check7"_s),
      Check5(frmSettings, u"Check5"_s),
      Check6(frmSettings, u"Check6"_s),
      Check1(frmSettings, u"Check1"_s),
      Check2(frmSettings, u"Check2"_s),
      Check3(frmSettings, u"Check3"_s),
      Check4(frmSettings, u"Check4"_s),
      List1(frmSettings, u"List1"_s, Control::noIndex,
            {.toggle = u"Label1"_s, .label = u"Label2"_s}),
      List2(frmSettings, u"List2"_s),
      Combo2(frmSettings, u"Combo2"_s, Control::noIndex,
             {.toggle = u"Label37"_s, .label = u"Label38"_s}),
      cmbScript(frmSettings, u"cmbScript"_s, Control::noIndex,
                {.toggle = u"Label65"_s, .label = u"Label64"_s})
{
    Check7[ShowTips].setOn(true);
    Check3.setOn(true);
    Combo2.setItems({u"23.97"_s, u"24"_s, u"25"_s, u"29.97"_s, u"30"_s});
    Combo2.setSelected(2);
    cmbScript.setItems({u"Western (0)"_s, u"Symbol (2)"_s, u"DOS/OEM (255)"_s, u"Mac (77)"_s,
                        u"Greek (161)"_s, u"Turkish (162)"_s, u"Baltic (186)"_s,
                        u"Cyrillic (204)"_s, u"Central European (238)"_s, u"Hebrew (177)"_s,
                        u"Arabic (178)"_s});
    cmbScript.setSelected(0);
    cmbScript.setAvailable(false);
}

int SettingsPage::characterSetOf(QStringView entry)
{
    return intVal(Mid(entry, InStr(entry, u"(") + 1));
}

} // namespace kavro
