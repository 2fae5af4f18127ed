#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class ScriptPreview;

/// The window that shows the document as its format would write it. Escape closes it: it changes
/// nothing.
class PreviewView : public FormDialog
{
    Q_OBJECT

public:
    PreviewView(Form &frmPreview, ScriptPreview &preview, QWidget *parent);

    void reject() override;
};

} // namespace kavro
