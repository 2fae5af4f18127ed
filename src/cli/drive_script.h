#pragma once

#include "cli/drive_commands.h"
#include "cli/streams.h"

#include <QString>

namespace kavro {

class Form;

/// A script that drives a program: reads it line by line and carries out each command at once.
///
/// A form that is run as modal reads on from the same script until it is hidden, so commands nest;
/// the end of the script, a wrong line and the end of the program end all levels.
class DriveScript
{
public:
    /// @param input  UTF-8, one command a line; blank lines and those that begin with "#" count
    ///               for nothing
    DriveScript(std::istream &input, const Driven &driven);

    /// The script from here to its end. False after a wrong line, which it tells.
    bool run();

    /// The script from here on until the form is hidden.
    void runForm(const Form &form);

private:
    bool runNext();
    bool nextLine(QString &line);
    void tellWrong(int number, const QString &fault);

    std::istream &m_input;
    Driven m_driven;
    int m_lineNumber = 0;
    bool m_over = false;
    bool m_wrong = false;
};

} // namespace kavro
