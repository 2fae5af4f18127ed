#include "cli/verbs.h"

#include <QLocale>

#include <csignal>
#include <iostream>

namespace {

volatile std::sig_atomic_t pipeBroke = 0;

void notePipe(int)
{
    pipeBroke = 1;
}

} // namespace

// There is no QCoreApplication: nothing here needs an event loop, and it would take the locale of
// the environment, where this program keeps to C.
int main(int argc, char **argv)
{
    QLocale::setDefault(QLocale::c());
    std::ios::sync_with_stdio(false);
    // Without its reader the program ends as any other, but has work files to tidy first.
    if (std::signal(SIGPIPE, notePipe) == SIG_IGN)
        std::signal(SIGPIPE, SIG_IGN);
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const int status =
        kavro::runCommandLine(arguments, {.in = std::cin, .out = std::cout, .err = std::cerr});
    if (!std::cout.flush()) {
        if (pipeBroke != 0) {
            std::signal(SIGPIPE, SIG_DFL);
            std::raise(SIGPIPE);
        }
        std::cerr << "kavro-cli: standard output can't be written\n";
        return status == 0 ? 1 : status;
    }
    return status;
}
