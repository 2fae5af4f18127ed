#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class TipWindow;

/// The window of tips.
class TipView : public FormDialog
{
    Q_OBJECT

public:
    TipView(Form &frmTip, TipWindow &tips, QWidget *parent);
};

} // namespace kavro
