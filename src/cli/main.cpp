#include "cli/verbs.h"

#include <QLocale>

#include <iostream>

// There is no QCoreApplication: nothing here needs an event loop, and it would take the locale of
// the environment, where this program keeps to C.
int main(int argc, char **argv)
{
    QLocale::setDefault(QLocale::c());
    std::ios::sync_with_stdio(false);
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const int status =
        kavro::runCommandLine(arguments, {.in = std::cin, .out = std::cout, .err = std::cerr});
    if (!std::cout.flush()) {
        std::cerr << "kavro-cli: standard output can't be written\n";
        return status == 0 ? 1 : status;
    }
    return status;
}
