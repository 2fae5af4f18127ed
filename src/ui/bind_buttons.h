#pragma once

class QAbstractButton;
class QAction;
class QCheckBox;
class QRadioButton;

namespace kavro {

class Button;
class CheckBox;
class ClickControl;
class OptionButton;

// Both ways without echo, as in bind_text.h.

/// A button, or a label that is one to a person.
void bind(QAbstractButton &view, ClickControl &control);
void bind(QCheckBox &view, CheckBox &box);
/// The views of a group, and no others, stand in one parent.
void bind(QRadioButton &view, OptionButton &option);

/// A menu entry. Its text is the caption; a mnemonic is the menu's affair.
void bind(QAction &action, Button &button);

} // namespace kavro
