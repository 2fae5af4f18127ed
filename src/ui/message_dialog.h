#pragma once

#include "core/ports.h"

#include <QDialog>

#include <array>

class QBoxLayout;
class QLineEdit;
class QPushButton;

namespace kavro {

class Form;

/// One message of the program. Escape and the window's own close button are Cancel where the
/// message has it, and nothing where it has not: neither ever answers a question.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param frmMessageBox  gives the buttons their captions; its button `cmdAction` pressed
    ///                       elsewhere, by a macro, answers the dialog too
    MessageDialog(const Message &message, Form &frmMessageBox, QWidget *parent);

    [[nodiscard]] MessageReply reply() const;
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *makeText();
    QLayout *makeFields();
    QLayout *makeButtons();
    void press(Answer given);
    void answer(Answer given);

    Message m_message;
    Form &m_form;
    Answer m_answer;
    std::array<QLineEdit *, 2> m_fields{};
};

/// Shows messages in the window.
class MessageDialogs : public MessageWindow
{
public:
    [[nodiscard]] MessageReply show(const Message &message) override;

    /// The form of the message window; must be set before the first message.
    Form *form = nullptr;
};

} // namespace kavro
