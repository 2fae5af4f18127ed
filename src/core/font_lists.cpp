#include "core/font_lists.h"

#include "core/language.h"

namespace kavro {

using namespace Qt::StringLiterals;

FontLists::FontLists(Form &frmMain)
    : Combo9{DropList(frmMain, u"Combo9"_s, 0, {.toggle = u"Label20"_s, .label = u"Label42"_s}),
             DropList(frmMain, u"Combo9"_s, 1, {.toggle = u"Label44"_s, .label = u"Label43"_s})},
      lblFont(frmMain, u"lblFont"_s),
      Label48(frmMain, u"Label48"_s),
      Command42(frmMain, u"Command42"_s)
{}

void FontLists::fillStyles(const LanguageTable &language)
{
    const QString &bold = language.text(LangGroup::Common, 26);
    const QString &italic = language.text(LangGroup::Common, 27);
    Combo9[1].setItems({language.text(LangGroup::Common, 25), bold, italic, bold + u' ' + italic});
    Combo9[1].setSelected(0);
}

} // namespace kavro
