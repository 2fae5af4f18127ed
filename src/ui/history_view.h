#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class EditHistory;

/// The window that lists what was changed, and takes the document back to before a change.
class HistoryView : public FormDialog
{
    Q_OBJECT

public:
    HistoryView(Form &frmHistory, EditHistory &history, QWidget *parent);

    /// Escape closes the window, which changes nothing.
    void reject() override;
};

} // namespace kavro
