#include "app/version.h"
#include "ui/main_window.h"
#include "ui/program_icon.h"
#include "ui/shell.h"
#include "ui/start_trace.h"
#include "ui/theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <clocale>

using namespace Qt::StringLiterals;

namespace {

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(u"Desktop editor for film subtitles"_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({u"app-dir"_s, u"Keep settings and data in <folder>."_s, u"folder"_s});
    parser.addPositionalArgument(u"file"_s, u"Subtitle file to open."_s, u"[file]"_s);
}

/// What a command line asks for that needs no display: help, version, or the word that it is wrong.
bool needsNoDisplay(QCommandLineParser &parser, int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    // Qt's own options, such as -platform, are taken out by the application later.
    return parser.parse(arguments) && (parser.isSet(u"help"_s) || parser.isSet(u"version"_s));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(u"kavro"_s);
    QCoreApplication::setApplicationVersion(
        u"%1.%2"_s.arg(kavro::versionMajor).arg(kavro::versionMinor));
    QCommandLineParser parser;
    describe(parser);
    if (needsNoDisplay(parser, argc, argv)) {
        const QCoreApplication application(argc, argv);
        parser.process(application);
    }

    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(kavro::programIcon());
    // What the desktop knows this program by: its entry is kavro.desktop.
    QGuiApplication::setDesktopFileName(u"kavro"_s);
    // Decimal points are points, whatever the desktop's language.
    std::setlocale(LC_NUMERIC, "C");
    parser.process(application);
    kavro::applyTheme(qEnvironmentVariable("KAVRO_THEME"));

    kavro::FileStore store;
    kavro::Folders folders(store,
                           kavro::FolderSources::ofMachine(parser.value(u"app-dir"_s),
                                                           QCoreApplication::applicationFilePath()),
                           kavro::FolderUse::Own);
    kavro::Shell shell(store, folders);
    shell.program().start(parser.positionalArguments().value(0));
    if (shell.program().hasEnded()) {
        return 0;
    }
    if (qEnvironmentVariableIntValue("KAVRO_TRACE_START") == 1 && shell.mainWindow() != nullptr) {
        new kavro::StartTrace(*shell.mainWindow());
    }
    return QApplication::exec();
}
