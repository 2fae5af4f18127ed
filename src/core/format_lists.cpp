#include "core/format_lists.h"

namespace kavro {

using namespace Qt::StringLiterals;

FormatLists::FormatLists(Form &frmMain)
    : combo3(frmMain, u"combo3"_s, Control::noIndex,
             {.toggle = u"Label31"_s, .label = u"Label36"_s}),
      Combo7(frmMain, u"Combo7"_s, Control::noIndex, {.toggle = u"Label56"_s, .label = {}}),
      Combo8{DropList(frmMain, u"Combo8"_s, 0, {.toggle = u"Label58"_s, .label = {}}),
             DropList(frmMain, u"Combo8"_s, 1, {.toggle = u"Label60"_s, .label = {}}),
             DropList(frmMain, u"Combo8"_s, 2, {.toggle = {}, .label = {}})},
      Command39(frmMain, u"Command39"_s),
      List8(frmMain, u"List8"_s)
{}

} // namespace kavro
