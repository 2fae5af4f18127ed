#pragma once

#include <QString>

class QWidget;

namespace kavro {

class Control;
class Form;

/// A text as a button or a label shows it: a "&" in it is a character, not a mnemonic.
QString withoutMnemonic(const QString &text);

/// What a screen reader calls a control: its caption, else `label`, else its tool tip. The "..."
/// and ">>" of a caption are no name.
QString accessibleNameOf(const Control &control, const QString &label = {});

/// Names a widget after its control and lets it follow: object name, accessible name, tool tip,
/// enabled, visible. The widget must have a parent.
///
/// @param label  what stands beside the widget, for controls without a caption
void bindLook(QWidget &widget, Control &control, const QString &label = {});

/// The same for a widget whose place in the window is its own affair: it is never hidden.
void bindLookInPlace(QWidget &widget, Control &control, const QString &label = {});

/// The wait cursor stands over the window while its form is busy.
void bindCursor(QWidget &window, Form &form);

} // namespace kavro
