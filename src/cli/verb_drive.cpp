#include "cli/verb_drive.h"

#include "app/program.h"
#include "cli/batch.h"
#include "cli/call_reader.h"
#include "cli/drive_script.h"
#include "cli/json_writer.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <fstream>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// Prints a window's opening and closing. Message and file windows have objects of their own, and
/// the main window stands from the script's first line to its last.
void printWindows(Program &program, ObjectOutput &output)
{
    const QList<const Form *> silent{&program.frmMain, &program.frmSplash, &program.frmMessageBox,
                                     &program.frmFile};
    for (Form *form : program.forms()) {
        if (silent.contains(form))
            continue;
        QObject::connect(form, &Form::openChanged, form, [form, &output](bool open) {
            JsonWriter json;
            json.beginObject().text(u"window", form->name()).boolean(u"open", open).endObject();
            output.write(json);
        });
    }
}

/// With a folder of its own the program starts as it would for a person; the splash is passed over.
void start(Program &program, bool ownFolder)
{
    if (!ownFolder) {
        program.startForVerb();
        return;
    }
    program.start({});
    program.splash.ExitfrmSplash();
}

} // namespace

DriveVerb::DriveVerb()
    : Verb({.name = u"drive"_s,
            .usage = u"[SCRIPT] [options]"_s,
            .summary = u"Carries out the commands of a script, from a file or standard input."_s})
{}

QList<QCommandLineOption> DriveVerb::options() const
{
    return {};
}

ExitStatus DriveVerb::execute(const QCommandLineParser &call, const Streams &streams)
{
    CallReader reader(call);
    const std::optional<Answer> answer = reader.answer();
    const QStringList scripts = call.positionalArguments();
    if (scripts.size() > 1)
        reader.fail(u"takes one SCRIPT"_s);
    const QString name = scripts.value(0, u"-"_s);
    std::ifstream file;
    if (name != u"-") {
        file.open(QFile::encodeName(name).constData(), std::ios::binary);
        if (!file.is_open() || QFileInfo(name).isDir())
            reader.fail(u"%1 can't be read"_s.arg(name));
    }
    if (!reader.fault().isEmpty())
        return wrongCall(streams, reader.fault());
    return drive(call.value(u"app-dir"_s), answer, file.is_open() ? file : streams.in, streams);
}

ExitStatus DriveVerb::drive(const QString &appDir, std::optional<Answer> answer,
                            std::istream &script, const Streams &streams)
{
    DrivePorts ports(streams.out, streams.err, answer);
    VerbFolders disk(appDir);
    Program program(portsOf(ports), disk.store, disk.folders);
    DriveScript commands(script, {.program = program, .ports = ports, .err = streams.err});
    ports.forms.runCommands = [&commands](Form &form) { commands.runForm(form); };
    printWindows(program, ports.output);
    start(program, !appDir.isEmpty());
    return commands.run() ? ExitStatus::Done : ExitStatus::WrongCall;
}

} // namespace kavro
