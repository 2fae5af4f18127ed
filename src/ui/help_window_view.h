#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class HelpPages;
class HelpWindow;

/// The help centre in a window of its own.
class HelpWindowView : public FormDialog
{
    Q_OBJECT

public:
    HelpWindowView(Form &frmHelp, HelpWindow &help, HelpPages &pages, QWidget *parent);
};

} // namespace kavro
