#pragma once

class QWidget;

namespace kavro {

/// The window that a dialog opened now stands before: the topmost dialog, else the active window,
/// else any that is shown. nullptr when there is none.
QWidget *windowParent();

} // namespace kavro
