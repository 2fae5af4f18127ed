#include "tests/support/scripted_ports.h"

#include "controls/form.h"

namespace kavro::test {

MessageReply ScriptedMessages::show(const Message &message)
{
    shown.append(message);
    if (during) {
        during(message);
    }
    if (replies.isEmpty() || !message.offers(replies.constFirst().answer)) {
        return {.answer = message.safestAnswer(), .inputName = {}, .inputValue = {}};
    }
    return replies.takeFirst();
}

FileReply ScriptedFiles::show(const FileRequest &request)
{
    shown.append(request);
    if (replies.isEmpty()) {
        return {};
    }
    FileReply reply = replies.takeFirst();
    if (reply.filterIndex < 0) {
        reply.filterIndex = request.filterIndex;
    }
    return reply;
}

void ScriptedFiles::choose(const QString &path, int filterIndex)
{
    replies.append(
        {.accepted = true, .path = path, .filterIndex = filterIndex, .mediaName = false});
}

void ScriptedFiles::chooseMediaName()
{
    replies.append({.accepted = true, .path = {}, .filterIndex = -1, .mediaName = true});
}

void ScriptedForms::runModal(Form &form)
{
    shown.append(form.name());
    form.show();
    if (during) {
        during(form);
    }
    form.hide();
}

bool FakePlayer::open(const QString &path)
{
    calls.append(QStringLiteral("open ") + path);
    file = missing.isEmpty() ? path : QString();
    return !file.isEmpty();
}

bool RecordedPrinter::print(const QString &title, const QStringList &lines)
{
    titles.append(title);
    printed.append(lines);
    return available;
}

} // namespace kavro::test
