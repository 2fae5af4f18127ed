#pragma once

#include "controls/indicators.h"

namespace kavro {

/// The foot of the main window.
struct StatusPanels
{
    explicit StatusPanels(Form &frmMain);

    /// 1 the document's name, 2 its format's label, 3 state and recorder, 4 findings.
    StatusBar StatusBar1;
    Label lblEncoding; ///< encoding of the document
};

} // namespace kavro
