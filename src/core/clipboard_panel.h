#pragma once

#include "controls/control_array.h"
#include "controls/list_box.h"

namespace kavro {

/// The bottom panel's list of clipped times and its five buttons.
struct ClipboardPanel
{
    explicit ClipboardPanel(Form &frmMain);

    /// Adds an item at the end of the list, selects it and enables the buttons.
    void add(const QString &item);

    ListBox List1; ///< name + ">" + time or text
    /// 0 and 1 copy to the field of the tab that shows; 2 changes, 3 deletes, 4 clears.
    ControlArray<Button, 0, 4> command4;
};

} // namespace kavro
