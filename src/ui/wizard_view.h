#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class WizardWindow;

/// The window of the wizard: the jobs at the left, what the selected one does beside them.
class WizardView : public FormDialog
{
    Q_OBJECT

public:
    WizardView(Form &frmWizard, WizardWindow &wizard, QWidget *parent);
};

} // namespace kavro
