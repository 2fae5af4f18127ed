#include "core/editor_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

EditorPage::EditorPage(Form &frmMain)
    : grdSubEdit(frmMain, u"grdSubEdit"_s, 2, ColumnCount),
      lstFont(frmMain, u"lstFont"_s),
      rtfEdit(frmMain, u"rtfEdit"_s),
      cmdInvCalc(frmMain, u"cmdInvCalc"_s),
      btnNode(frmMain, u"btnNode"_s),
      errExp(frmMain, u"errExp"_s),
      lblErrExp(frmMain, u"lblErrExp"_s),
      Label13(frmMain, u"Label13"_s),
      Label24(frmMain, u"Label24"_s),
      lblSubRowCount(frmMain, u"lblSubRowCount"_s),
      Label23(frmMain, u"Label23"_s),
      rtfSubEditBasic(frmMain, u"rtfSubEditBasic"_s),
      Command10(frmMain, u"Command10"_s),
      Command11(frmMain, u"Command11"_s),
      Command14(frmMain, u"Command14"_s),
      Command47(frmMain, u"Command47"_s),
      Label74(frmMain, u"Label74"_s),
      Label75(frmMain, u"Label75"_s),
      SSTab2(frmMain, u"SSTab2"_s, 5),
      SSTab3(frmMain, u"SSTab3"_s, 4)
{
    lstFont.setVisible(false);
}

} // namespace kavro
