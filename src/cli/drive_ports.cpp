#include "cli/drive_ports.h"

#include "cli/json_writer.h"
#include "cli/streams.h"
#include "controls/form.h"
#include "core/paths.h"

#include <QFileInfo>

namespace kavro {

using namespace Qt::StringLiterals;

void ObjectOutput::write(const JsonWriter &object)
{
    writeLine(m_out, object);
    m_out.flush();
}

MessageReply DriveMessages::show(const Message &message)
{
    MessageReply reply{.answer = chooseAnswer(message), .inputName = {}, .inputValue = {}};
    if (message.showInput && !inputs.isEmpty()) {
        const TypedInput typed = inputs.takeFirst();
        reply.inputName = typed.name;
        reply.inputValue = typed.value;
    }
    JsonWriter json;
    json.beginObject().key(u"message").beginObject();
    json.text(u"title", message.title).text(u"text", message.text).text(u"kind", message.kind);
    json.number(u"default", static_cast<int>(message.defaultButton));
    json.number(u"answer", static_cast<int>(reply.answer)).endObject().endObject();
    m_output.write(json);
    return reply;
}

void DriveMessages::beginCommand()
{
    m_settled.clear();
    noteWindow();
}

Answer DriveMessages::chooseAnswer(const Message &message)
{
    if (answers.isEmpty())
        return standingAnswer(message).value_or(message.safestAnswer());
    const Answer answer = answers.takeFirst();
    if (message.offers(answer))
        return answer;
    writeLine(m_err, u"The message \"%1\" doesn't offer the queued answer."_s.arg(message.title));
    return message.safestAnswer();
}

// A question that comes back behind another window of the same command was not settled by the
// answer: the exit asks again after a save that failed. The safest answer ends the circle.
std::optional<Answer> DriveMessages::standingAnswer(const Message &message)
{
    const QString which = message.title + u'\n' + message.text;
    const bool again = m_last != which && m_settled.contains(which);
    m_last = which;
    if (!m_answer || !message.offers(*m_answer) || again)
        return std::nullopt;
    m_settled.insert(which);
    return m_answer;
}

FileReply DriveFiles::show(const FileRequest &request)
{
    m_messages.noteWindow();
    FileReply reply{.accepted = false, .path = {}, .filterIndex = -1, .mediaName = false};
    if (!replies.isEmpty())
        reply = replies.takeFirst();
    if (!fits(reply, request)) {
        reply.accepted = false;
        reply.path.clear();
    }
    JsonWriter json;
    json.beginObject().key(u"fileWindow").beginObject();
    json.text(u"info", request.info).text(u"name", request.name).text(u"path", reply.path);
    json.number(u"index", reply.filterIndex);
    json.number(u"answer", reply.accepted ? 1 : 0).endObject().endObject();
    m_output.write(json);
    return reply;
}

/// Fills in what stands; false for what the window's OK wouldn't take.
bool DriveFiles::fits(FileReply &reply, const FileRequest &request)
{
    const int wanted = reply.filterIndex;
    if (wanted < 0 || wanted >= request.filters.size())
        reply.filterIndex = request.filterIndex;
    if (!reply.accepted)
        return true;
    if (wanted >= request.filters.size()) {
        writeLine(m_err, u"The file window has no entry %1."_s.arg(wanted));
        return false;
    }
    const bool noFormat =
        request.firstOtherFilter > 0
        && (reply.filterIndex < 1 || reply.filterIndex >= request.firstOtherFilter);
    if (noFormat)
        writeLine(m_err,
                  u"Entry %1 of the file window is no subtitle format."_s.arg(reply.filterIndex));
    return !noFormat;
}

void DriveForms::runModal(Form &form)
{
    form.show();
    runCommands(form);
    if (form.isOpen())
        form.requestClose();
    form.hide();
}

void DriveHelp::open(const QString &page)
{
    JsonWriter json;
    m_output.write(json.beginObject().text(u"help", nameOf(page)).endObject());
}

void DriveSound::play(const QString &path)
{
    JsonWriter json;
    m_output.write(json.beginObject().text(u"sound", nameOf(path)).endObject());
}

bool DrivePrinter::print(const QString &, const QStringList &lines)
{
    JsonWriter json;
    m_output.write(json.beginObject().key(u"print").texts(lines).endObject());
    return true;
}

bool ScriptedPlayer::open(const QString &path)
{
    const bool isThere = QFileInfo(path).isFile();
    m_fileName = isThere ? path : QString();
    return isThere;
}

double SeededRandom::next()
{
    return static_cast<double>(m_engine()) / 4294967296.0;
}

DrivePorts::DrivePorts(std::ostream &out, std::ostream &err, std::optional<Answer> answer)
    : output(out),
      messages(output, err, answer),
      files(output, err, messages),
      help(output),
      sound(output),
      printer(output)
{}

} // namespace kavro
