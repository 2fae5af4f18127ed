#pragma once

#include "controls/control.h"

namespace kavro {

/// A text that can be edited. Positions count UTF-16 units from 0.
class TextBox : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] bool isBold() const { return m_bold; }
    [[nodiscard]] bool isItalic() const { return m_italic; }
    [[nodiscard]] qsizetype selStart() const { return m_selStart; }
    [[nodiscard]] qsizetype selLength() const { return m_selLength; }

    void setText(const QString &text);
    void setBold(bool bold);
    void setItalic(bool italic);
    /// Cut to the text that is there.
    void setSelection(qsizetype start, qsizetype length);
    void selectAll() { setSelection(0, m_text.size()); }

    /// Act: the user replaces the text. A line break that was pasted with it becomes a blank: a
    /// field is one line, and so is what a file makes of a cell.
    void type(const QString &text);

signals:
    /// The text is another one, whoever wrote it.
    void textChanged(const QString &text);
    /// The user typed, also what stood there already.
    void typed(const QString &text);
    void fontChanged();
    void selectionChanged();

private:
    QString m_text;
    bool m_bold = false;
    bool m_italic = false;
    qsizetype m_selStart = 0;
    qsizetype m_selLength = 0;
};

} // namespace kavro
