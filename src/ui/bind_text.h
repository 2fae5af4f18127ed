#pragma once

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QString;

namespace kavro {

class Label;
class TextBox;

// Both ways without echo: what a person does becomes the control's act, what the control holds is
// shown. Each names the widget after its control and lets it follow as `bindLook` does.

/// A field to type in. Enter and Escape become keys of the control.
void bind(QLineEdit &edit, TextBox &box, const QString &label);

/// The text and the selection alone, for a field whose keys and place are its own affair.
void bindTyping(QLineEdit &edit, TextBox &box);

/// A text of several lines that is only read, from its beginning.
void bind(QPlainTextEdit &view, TextBox &box, const QString &label);

/// A text that is only read, such as a log; it stays scrolled to its end.
void bindLog(QPlainTextEdit &view, TextBox &box, const QString &label);

/// One line of text with its bold and italic, which nobody types in.
void bindPreview(QLabel &label, TextBox &box, const QString &name);

/// A text of the window. What it shows can be selected.
void bind(QLabel &view, Label &label);

} // namespace kavro
