#pragma once

class QAbstractButton;
class QAction;
class QCheckBox;

namespace kavro {

class Button;
class CheckBox;
class Label;

// Both ways without echo, as in bind_text.h.

void bind(QAbstractButton &view, Button &button);
/// A label that is a button of the program.
void bind(QAbstractButton &view, Label &label);
void bind(QCheckBox &view, CheckBox &box);

/// A menu entry. Its text is the caption; a mnemonic is the menu's affair.
void bind(QAction &action, Button &button);

} // namespace kavro
