#pragma once

#include "controls/control_array.h"
#include "controls/text_box.h"
#include "core/ports.h"

#include <functional>
#include <optional>
#include <utility>

namespace kavro {

class Form;
class LanguageTable;
struct ActionTrace;
struct MacroVariables;

/// A message's text: a template in the program's own words, and what is put in for %1 to %9.
///
/// "/n" and variables are expanded in the template alone, never in a path, a line of a file or a
/// fault's description that is put in.
struct MessageText
{
    // NOLINTNEXTLINE(google-explicit-constructor): a plain text is a template without arguments
    MessageText(const QString &text, const QStringList &values = {},
                std::optional<QString> faultText = {})
        : pattern(text), arguments(values), fault(std::move(faultText))
    {}

    QString pattern;
    QStringList arguments;
    /// What is wrong with a file, in the program's own words: put in behind the arguments, in the
    /// person's language.
    std::optional<QString> fault;
};

/// The message window, `frmMessageBox`: the single way to report or ask anything.
class Messages
{
public:
    Messages(Form &frmMessageBox, MessageWindow &window, const LanguageTable &language,
             ActionTrace &trace, MacroVariables &variables);

    /// Shows a message and waits. Records code 30. The form is open meanwhile, and `cmdAction` may
    /// be clicked in place of the window's reply: both do the same. A reply that the message
    /// doesn't offer counts as its safest answer.
    ///
    /// @param kind   words "cancel", "ok", "no", "yes" in any combination, such as "yesnocancel"
    /// @return       the answer, which `msgResult` keeps
    Answer ShowMessage(const MessageText &text, Answer defaultButton, const QString &kind,
                       const QString &title, bool showInput = false);

    /// The last answer.
    Answer msgResult = Answer::Cancel;

    /// Replaces the variables in a text by their values; set by the macro system.
    std::function<QString(const QString &)> expandVariables;
    /// Called when a variable was entered in the window.
    std::function<void()> variablesChanged;

    Label Label4;                         ///< title
    Label Label1;                         ///< text
    ControlArray<Button, 0, 3> cmdAction; ///< cancel, ok, no, yes
    ControlArray<Frame, 0, 3> Picture1;   ///< marks the default button
    ControlArray<TextBox, 0, 1> txtInput; ///< a variable's name and value
    ControlArray<Label, 0, 1> Label2;     ///< captions of the two fields

private:
    void fillWindow(const Message &message);
    void take(const Message &message, const MessageReply &reply);
    void answer(Answer answer);
    [[nodiscard]] QString freeVariableName() const;
    void storeInput();

    Form &m_form;
    MessageWindow &m_window;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
    MacroVariables &m_variables;
    bool m_answered = false; ///< a button of the message that shows was clicked
};

} // namespace kavro
