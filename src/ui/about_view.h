#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class AboutWindow;

/// The window about the program.
class AboutView : public FormDialog
{
    Q_OBJECT

public:
    AboutView(Form &frmAbout, AboutWindow &about, QWidget *parent);
};

} // namespace kavro
