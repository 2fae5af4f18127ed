#include "core/edit_history.h"

namespace kavro {

using namespace Qt::StringLiterals;

EditHistory::EditHistory(Form &frmHistory)
    : List1(frmHistory, u"List1"_s),
      List2(frmHistory, u"List2"_s),
      lblHistComment(frmHistory, u"lblHistComment"_s),
      Command1(frmHistory, u"Command1"_s)
{
    Command1[1].setEnabled(false);
}

void EditHistory::reset()
{
    List1.clear();
    List2.clear();
    lblHistComment.setCaption({});
    Command1[1].setEnabled(false);
}

} // namespace kavro
