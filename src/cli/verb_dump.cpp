#include "cli/verb_dump.h"

#include "app/program.h"
#include "cli/batch.h"
#include "cli/document_json.h"
#include "cli/json_writer.h"

#include <QCommandLineParser>

namespace kavro {

using namespace Qt::StringLiterals;

DumpVerb::DumpVerb()
    : Verb({.name = u"dump"_s,
            .usage = u"INPUT [options]"_s,
            .summary = u"Loads the input and prints the document as one JSON object."_s})
{}

QList<QCommandLineOption> DumpVerb::options() const
{
    return loadCallOptions()
           + QList<QCommandLineOption>{
               {u"add"_s, u"Add this file behind the document; any number, in order."_s,
                u"FILE"_s}};
}

ExitStatus DumpVerb::execute(const QCommandLineParser &call, const Streams &streams)
{
    CallReader reader(call);
    const LoadOptions options = reader.loadOptions();
    const std::optional<Answer> answer = reader.answer();
    const QStringList inputs = call.positionalArguments();
    if (inputs.size() != 1)
        reader.fail(inputs.isEmpty() ? u"INPUT is missing"_s : u"takes one INPUT"_s);
    if (!reader.fault().isEmpty())
        return wrongCall(streams, reader.fault());

    Batch batch(call.value(u"app-dir"_s), answer, streams);
    if (!batch.prepare())
        return ExitStatus::No;
    const auto program = batch.newProgram(options);
    Batch::Loaded loaded = batch.load(*program, inputs.constFirst(), options);
    if (loaded == Batch::Loaded::No)
        return ExitStatus::No;
    // What can't be added is left out: the document is shown as it stands, and the status tells.
    for (const QString &file : call.values(u"add"_s))
        loaded = std::min(loaded, batch.load(*program, file, options, true));

    JsonWriter json;
    writeDocument(json, *program);
    writeLine(streams.out, json);
    return loaded == Batch::Loaded::Whole ? ExitStatus::Done : ExitStatus::No;
}

} // namespace kavro
