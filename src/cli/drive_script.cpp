#include "cli/drive_script.h"

#include "app/program.h"
#include "cli/json_writer.h"

#include <string>

namespace kavro {

using namespace Qt::StringLiterals;

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
        writeLine(m_driven.err, u"kavro-cli drive: line %1: %2"_s.arg(number).arg(outcome.text));
        m_wrong = true;
    }
    m_over =
        m_over || m_wrong || outcome.kind == Outcome::Kind::Quit || m_driven.program.hasEnded();
    return !m_over;
}

/// The next line that is a command.
bool DriveScript::nextLine(QString &line)
{
    std::string bytes;
    while (std::getline(m_input, bytes)) {
        if (m_lineNumber++ == 0 && bytes.starts_with("\xEF\xBB\xBF"))
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
