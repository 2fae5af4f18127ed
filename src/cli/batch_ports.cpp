#include "cli/batch_ports.h"

#include "cli/call_reader.h"
#include "cli/streams.h"
#include "controls/form.h"

namespace kavro {

using namespace Qt::StringLiterals;

MessageReply BatchMessages::show(const Message &message)
{
    const bool takesAnswer = m_answer && message.offers(*m_answer);
    const Answer answer = takesAnswer ? *m_answer : message.safestAnswer();
    QString title = message.title;
    while (title.endsWith(u'.'))
        title.chop(1);
    QString text = title.isEmpty() ? message.text : title + u": "_s + message.text;
    if (message.offers(Answer::Yes) || message.offers(Answer::No))
        text += u"\nAnswered %1."_s.arg(answerName(answer));
    tell(text);
    return {.answer = answer, .inputName = {}, .inputValue = {}};
}

void BatchMessages::tell(const QString &text)
{
    ++count;
    QString head = subject.isEmpty() ? u"kavro-cli: "_s : subject + u": "_s;
    for (const QString &line : text.split(u'\n')) {
        const QString plain = line.trimmed();
        if (plain.isEmpty())
            continue;
        writeLine(m_err, head + plain);
        head = u"  "_s;
    }
}

void ClosedForms::runModal(Form &form)
{
    form.show();
    m_messages.tell(u"%1 was closed, nobody is here to work in it."_s.arg(form.name()));
    form.requestClose();
    form.hide();
}

QStringList FixedScreen::fonts() const
{
    return {u"Arial"_s, u"Courier New"_s, u"Tahoma"_s, u"Times New Roman"_s, u"Verdana"_s};
}

BatchPorts::BatchPorts(std::ostream &err, std::optional<Answer> answer)
    : messages(err, answer), forms(messages), player(u"The command line plays no movies."_s)
{}

} // namespace kavro
