#include "cli/verb_convert.h"

#include "app/program.h"
#include "cli/batch.h"
#include "cli/output_plan.h"

#include <QCommandLineParser>

namespace kavro {

using namespace Qt::StringLiterals;

/// What counts for every file of a call.
struct ConvertCall
{
    LoadOptions load;
    std::optional<TextEncoding> encoding; ///< of the output; none keeps the input's
    int format = UnknownFormat;
    QString folder; ///< made ahead of the first write when it isn't there; empty for none
    bool overwrite = false;
};

ConvertVerb::ConvertVerb()
    : Verb({.name = u"convert"_s,
            .usage = u"INPUT... (-o OUT | --out-dir DIR) --to FORMAT [options]"_s,
            .summary = u"Loads each input and writes it in another format."_s})
{}

QList<QCommandLineOption> ConvertVerb::options() const
{
    return QList<QCommandLineOption>{
               {u"to"_s, u"Format of the output, see kavro-cli formats."_s, u"FORMAT"_s},
               {u"o"_s, u"Write to this file; the format sets its extension."_s, u"OUT"_s},
               {u"out-dir"_s, u"Write to this folder, each file named after its input."_s,
                u"DIR"_s},
               {u"overwrite"_s, u"Replace files that are there."_s},
               {u"output-encoding"_s, u"Encoding of the output, else that of the input."_s,
                u"NAME"_s}}
           + loadCallOptions();
}

ExitStatus ConvertVerb::execute(const QCommandLineParser &call, const Streams &streams)
{
    CallReader reader(call);
    const QStringList inputs = call.positionalArguments();
    const QString name = call.value(u"o"_s);
    ConvertCall common;
    common.folder = call.value(u"out-dir"_s);
    common.load = reader.loadOptions();
    common.encoding = reader.encoding(u"output-encoding"_s);
    common.format = reader.format(u"to"_s);
    common.overwrite = call.isSet(u"overwrite"_s);
    const std::optional<Answer> answer = reader.answer();
    if (inputs.isEmpty())
        reader.fail(u"INPUT is missing"_s);
    if (!call.isSet(u"to"_s))
        reader.fail(u"--to FORMAT is missing"_s);
    if (name.isEmpty() == common.folder.isEmpty())
        reader.fail(u"takes either -o OUT or --out-dir DIR"_s);
    if (!name.isEmpty() && !mayNameFile(name))
        reader.fail(u"-o names no file, for a folder use --out-dir"_s);
    if (!reader.fault().isEmpty())
        return wrongCall(streams, reader.fault());

    Batch batch(call.value(u"app-dir"_s), answer, streams);
    const OutputPlan plan = common.folder.isEmpty()
                                ? OutputPlan::toFile(inputs, name, common.format)
                                : OutputPlan::toFolder(inputs, common.folder, common.format);
    if (const QString conflict = plan.conflict(); !conflict.isEmpty()) {
        batch.ports.messages.tell(conflict + u", nothing was written."_s);
        return ExitStatus::No;
    }
    if (!batch.prepare())
        return ExitStatus::No;
    ExitStatus status = ExitStatus::Done;
    for (const Output &output : plan.outputs()) {
        if (!convert(batch, output, common))
            status = ExitStatus::No;
    }
    return status;
}

// Each file has a program of its own, so that none sees what another one has left behind.
bool ConvertVerb::convert(Batch &batch, const Output &output, const ConvertCall &call)
{
    batch.ports.messages.subject = output.input;
    if (!batch.mayWrite(output, call.overwrite))
        return false;
    const auto program = batch.newProgram(call.load);
    const Batch::Loaded loaded = batch.load(*program, output.input, call.load);
    if (loaded == Batch::Loaded::No)
        return false;
    if (call.encoding)
        program->document.encoding = *call.encoding;
    if (!call.folder.isEmpty())
        batch.disk.store.makeFolder(absolutePath(call.folder)); // else the write tells why not
    return batch.write(*program, output, call.format) && loaded == Batch::Loaded::Whole;
}

} // namespace kavro
