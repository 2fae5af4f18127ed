#include "core/frame_rate_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

FrameRatePage::FrameRatePage(Form &frmMain)
    : optFrameRate(frmMain, u"optFrameRate"_s),
      Combo14{DropList(frmMain, u"Combo14"_s, 0, {.toggle = u"Label29"_s, .label = u"Label46"_s}),
              DropList(frmMain, u"Combo14"_s, 1, {.toggle = u"Label45"_s, .label = u"Label49"_s})}
{
    for (int i = 0; i < rates().size(); ++i) {
        optFrameRate[i].setCaption(rates()[i]);
    }
    for (DropList &list : Combo14) {
        list.setItems(rates());
    }
}

const QStringList &FrameRatePage::rates()
{
    static const QStringList texts{u"23.970"_s, u"24.000"_s, u"25.000"_s, u"29.970"_s, u"30.000"_s};
    return texts;
}

} // namespace kavro
