#pragma once

class QAbstractButton;
class QAction;
class QCheckBox;
class QRadioButton;

namespace kavro {

class Button;
class CheckBox;
class Label;
class OptionButton;

// Both ways without echo, as in bind_text.h.

void bind(QAbstractButton &view, Button &button);
/// A label that is a button of the program.
void bind(QAbstractButton &view, Label &label);
void bind(QCheckBox &view, CheckBox &box);
/// The views of a group, and no others, stand in one parent.
void bind(QRadioButton &view, OptionButton &option);

/// A menu entry. Its text is the caption; a mnemonic is the menu's affair.
void bind(QAction &action, Button &button);

} // namespace kavro
