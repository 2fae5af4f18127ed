#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class ControlWindow;

/// The report window: log, bar, closing text. It stands beside the work, not before it.
class ControlWindowView : public FormDialog
{
    Q_OBJECT

public:
    ControlWindowView(Form &frmControl, ControlWindow &control, QWidget *parent);
};

} // namespace kavro
