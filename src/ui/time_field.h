#pragma once

#include <QLineEdit>

namespace kavro {

/// A field for a time with fixed columns: digits are typed over, separators are jumped over, and
/// Up and Down step the part under the cursor.
///
/// Page Up and Page Down step by ten. What is taken out becomes zeros. A text that doesn't have the
/// columns is shown as it stands and edited freely, until it has them.
class TimeField : public QLineEdit
{
    Q_OBJECT

public:
    enum class Form {
        Hours,   ///< "hh:mm:ss,fff", the hours with a sign below zero
        Minutes, ///< "mm:ss,fff"
    };

    TimeField(Form form, QWidget *parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] bool hasColumns() const;
    [[nodiscard]] bool isSeparator(qsizetype column) const;
    bool takesKey(const QKeyEvent &event);
    void typeOver(const QString &letters);
    void typeDigit(QChar digit);
    void jumpBehindSeparator();
    bool clearColumns(int key);
    void step(int parts);
    void overwrite(qsizetype column, const QString &text, qsizetype cursor);

    const QString m_zero; ///< the columns, all digits zero
};

} // namespace kavro
