#include "cli/drive_script.h"

#include "app/program.h"
#include "cli/json_writer.h"

#include <string>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// Longer lines are no commands; a device may hold one without an end.
constexpr std::size_t maxLine = 1024 * 1024;

/// The next line without its end, cut behind the first byte too many. False when there is none.
bool readLine(std::istream &input, std::string &line)
{
    line.clear();
    for (int byte = input.get(); input.good(); byte = input.get()) {
        if (byte == '\n')
            return true;
        line.push_back(static_cast<char>(byte));
        if (line.size() > maxLine)
            return true;
    }
    return !line.empty();
}

} // namespace

DriveScript::DriveScript(std::istream &input, const Driven &driven)
    : m_input(input), m_driven(driven)
{}

bool DriveScript::run()
{
    while (runNext()) {
    }
    return !m_wrong;
}

void DriveScript::runForm(const Form &form)
{
    while (form.isOpen() && runNext()) {
    }
}

/// One command. False when the script is over.
bool DriveScript::runNext()
{
    QString line;
    if (m_over || !nextLine(line)) {
        m_over = true;
        return false;
    }
    // Commands within a modal form have other numbers by the time this one is told wrong.
    const int number = m_lineNumber;
    m_driven.ports.messages.beginCommand();
    const Outcome outcome = runCommand(m_driven, line);
    if (outcome.kind == Outcome::Kind::Refused) {
        JsonWriter json;
        m_driven.ports.output.write(json.beginObject().text(u"refused", outcome.text).endObject());
    } else if (outcome.kind == Outcome::Kind::Wrong) {
        tellWrong(number, outcome.text);
    }
    m_over = m_over || m_wrong || outcome.kind == Outcome::Kind::Quit || m_driven.program.hasEnded()
             || m_driven.ports.output.hasFailed();
    return !m_over;
}

void DriveScript::tellWrong(int number, const QString &fault)
{
    writeLine(m_driven.err, u"kavro-cli drive: line %1: %2"_s.arg(number).arg(fault));
    m_wrong = true;
}

/// The next line that is a command.
bool DriveScript::nextLine(QString &line)
{
    std::string bytes;
    while (readLine(m_input, bytes)) {
        ++m_lineNumber;
        if (bytes.size() > maxLine) {
            tellWrong(m_lineNumber, u"longer than 1 MiB"_s);
            return false;
        }
        if (m_lineNumber == 1 && bytes.starts_with("\xEF\xBB\xBF"))
            bytes.erase(0, 3);
        if (bytes.ends_with('\r'))
            bytes.pop_back();
        line = QString::fromStdString(bytes);
        while (line.startsWith(u' '))
            line.remove(0, 1);
        if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
            return true;
    }
    return false;
}

} // namespace kavro
