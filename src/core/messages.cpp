#include "core/messages.h"

#include "controls/form.h"
#include "core/action_trace.h"
#include "core/language.h"
#include "core/macro_variables.h"
#include "core/text.h"

#include <QStringBuilder>

#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// The pattern with %1 to %9 replaced by the values, in one pass: a value that holds a "%2" of its
/// own stays as it is. A number without a value stays too.
QString putIn(QStringView pattern, const QStringList &values)
{
    QString text;
    qsizetype done = 0;
    for (qsizetype at = pattern.indexOf(u'%'); at >= 0; at = pattern.indexOf(u'%', at + 1)) {
        const int number = at + 1 < pattern.size() ? pattern[at + 1].digitValue() : -1;
        if (number >= 1 && number <= values.size()) {
            text += pattern.sliced(done, at - done);
            text += values[number - 1];
            done = at + 2;
        }
    }
    return text % pattern.sliced(done);
}

} // namespace

Messages::Messages(Form &frmMessageBox, MessageWindow &window, const LanguageTable &language,
                   ActionTrace &trace, MacroVariables &variables)
    : Label4(frmMessageBox, u"Label4"_s),
      Label1(frmMessageBox, u"Label1"_s),
      cmdAction(frmMessageBox, u"cmdAction"_s),
      Picture1(frmMessageBox, u"Picture1"_s),
      txtInput(frmMessageBox, u"txtInput"_s),
      Label2(frmMessageBox, u"Label2"_s),
      m_form(frmMessageBox),
      m_window(window),
      m_language(language),
      m_trace(trace),
      m_variables(variables)
{
    for (Button &button : cmdAction) {
        const auto given = static_cast<Answer>(button.index());
        QObject::connect(&button, &Button::clicked, &button, [this, given] { answer(given); });
    }
}

Answer Messages::ShowMessage(const MessageText &text, Answer defaultButton, const QString &kind,
                             const QString &title, bool showInput)
{
    m_trace.RecordAction({}, 30);
    // Line breaks come first: the value of a variable may be a path with a folder "/n...".
    QString pattern = expandLineBreaks(m_language.ownText(text.pattern));
    if (expandVariables) {
        pattern = expandVariables(pattern);
    }
    QStringList values = text.arguments;
    if (text.fault) {
        values.append(m_language.ownText(*text.fault));
    }
    const Message message{.title = m_language.ownText(title),
                          .text = putIn(pattern, values),
                          .kind = kind.toLower(),
                          .defaultButton = defaultButton,
                          .showInput = showInput};
    fillWindow(message);

    // A timer may bring a second message while the first waits: each has an answer of its own.
    const bool outerAnswered = std::exchange(m_answered, false);
    m_form.show();
    take(message, m_window.show(message));
    m_answered = outerAnswered;
    return msgResult;
}

void Messages::fillWindow(const Message &message)
{
    m_variables.macroInput = message.showInput;
    for (TextBox &field : txtInput) {
        field.setVisible(message.showInput);
        field.setText({});
    }
    for (Label &label : Label2) {
        label.setVisible(message.showInput);
    }
    if (message.showInput) {
        txtInput[0].setText(freeVariableName());
    }
    Label4.setCaption(message.title);
    Label1.setCaption(message.text);
    for (Button &button : cmdAction) {
        const auto given = static_cast<Answer>(button.index());
        button.setVisible(message.offers(given));
        Picture1[button.index()].setVisible(given == message.defaultButton);
    }
}

void Messages::take(const Message &message, const MessageReply &reply)
{
    if (m_answered) {
        return;
    }
    if (message.showInput) {
        txtInput[0].setText(reply.inputName);
        txtInput[1].setText(reply.inputValue);
    }
    const Answer given = message.offers(reply.answer) ? reply.answer : message.safestAnswer();
    cmdAction[static_cast<int>(given)].click();
}

void Messages::answer(Answer answer)
{
    m_answered = true;
    msgResult = answer;
    if (answer == Answer::Cancel) {
        m_trace.macroRunning = false;
    } else if (answer == Answer::Ok) {
        storeInput();
    }
    m_form.hide();
}

QString Messages::freeVariableName() const
{
    for (std::size_t i = 1; i < m_variables.mcrVar.size(); ++i) {
        if (m_variables.mcrVar[i].isEmpty()) {
            return u"mcrVar[%1]"_s.arg(i);
        }
    }
    return {};
}

void Messages::storeInput()
{
    if (trimmed(txtInput[0].text()).isEmpty()) {
        txtInput[0].setText(freeVariableName());
    }
    const QString value = trimmed(txtInput[1].text()).toString();
    if (value.isEmpty() || !m_variables.macroInput) {
        return;
    }
    const QString name = trimmed(txtInput[0].text()) % u":=";
    for (std::size_t i = 1; i < m_variables.mcrVar.size(); ++i) {
        QString &variable = m_variables.mcrVar[i];
        if (variable.isEmpty() || variable.startsWith(name, Qt::CaseInsensitive)) {
            variable = name % value;
            if (variablesChanged) {
                variablesChanged();
            }
            return;
        }
    }
}

} // namespace kavro
