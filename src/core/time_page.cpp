#include "core/time_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

TimePage::TimePage(Form &frmMain)
    : Text1(frmMain, u"Text1"_s),
      rtfStretchFirst(frmMain, u"rtfStretchFirst"_s),
      rtfStretchLast(frmMain, u"rtfStretchLast"_s),
      rtfTimeStart(frmMain, u"rtfTimeStart"_s),
      rtfTimeEnd(frmMain, u"rtfTimeEnd"_s)
{
    rtfStretchFirst.setText(u"00:00:00,000"_s);
    rtfStretchLast.setText(u"00:00:00,000"_s);
}

} // namespace kavro
