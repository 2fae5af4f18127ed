#include "core/player_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

PlayerPage::PlayerPage(Form &frmMain)
    : Combo1(frmMain, u"Combo1"_s),
      Slider1(frmMain, u"Slider1"_s),
      Command8(frmMain, u"Command8"_s),
      Command49(frmMain, u"Command49"_s),
      Label27(frmMain, u"Label27"_s),
      timPlayer(frmMain, u"timPlayer"_s, 10)
{}

} // namespace kavro
