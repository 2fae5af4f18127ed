#pragma once

#include "cli/drive_ports.h"

#include <QString>
#include <QStringView>

namespace kavro {

class Control;
class Program;

/// How a command of a script ended.
struct Outcome
{
    enum class Kind {
        Done,
        Refused, ///< `text` is the control that a person could not have used so
        Wrong,   ///< `text` is what is wrong with the line
        Quit
    };

    Kind kind = Kind::Done;
    QString text;

    static Outcome done() { return {}; }
    static Outcome refused(const Control &control);
    static Outcome wrong(const QString &text) { return {.kind = Kind::Wrong, .text = text}; }
};

/// What the commands act on.
struct Driven
{
    Program &program;
    DrivePorts &ports;
    std::ostream &err;
};

/// Carries out one line of a script: the command's word, and behind one blank what it takes.
Outcome runCommand(Driven &driven, QStringView line);

} // namespace kavro
