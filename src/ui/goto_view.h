#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class GotoWindow;

/// The window that asks for a line's number.
class GotoView : public FormDialog
{
    Q_OBJECT

public:
    GotoView(Form &frmGoto, GotoWindow &window, QWidget *parent);

    /// Escape is the window's own Cancel.
    void reject() override;

private:
    GotoWindow &m_window;
};

} // namespace kavro
