#include "cli/verb_diagnose.h"

#include "app/program.h"
#include "cli/batch.h"
#include "cli/control_json.h"
#include "cli/findings_table.h"
#include "cli/json_writer.h"
#include "cli/output_plan.h"

#include <QCommandLineParser>

#include <algorithm>
#include <optional>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

struct RepairName
{
    QStringView name;
    DiagnoseSwitch repair;
};

constexpr RepairName repairNames[] = {{u"overlapping", DiagnoseSwitch::RepairOverlapping},
                                      {u"invalid", DiagnoseSwitch::RepairInvalid},
                                      {u"empty", DiagnoseSwitch::RepairEmpty}};

/// Every check and count, and the repairs that a call names.
DiagnoseSwitches readSwitches(const QCommandLineParser &call, CallReader &reader)
{
    DiagnoseSwitches switches;
    switches.on.fill(true);
    for (const RepairName &known : repairNames)
        switches.on[static_cast<std::size_t>(known.repair)] = false;
    for (const QString &list : call.values(u"repair"_s)) {
        for (const QString &name : list.split(u',')) {
            const auto *const known = std::ranges::find_if(repairNames, [&](const RepairName &one) {
                return one.name.compare(name, Qt::CaseInsensitive) == 0;
            });
            if (known == std::ranges::end(repairNames))
                reader.fail(u"--repair takes overlapping, invalid, empty, not \"%1\""_s.arg(name));
            else
                switches.on[static_cast<std::size_t>(known->repair)] = true;
        }
    }
    return switches;
}

void scan(Program &program, const DiagnoseSwitches &switches)
{
    for (CheckBox &box : program.diagnose.Check3)
        box.setOn(switches.isOn(static_cast<DiagnoseSwitch>(box.index())));
    program.diagnose.GoDiagnose();
}

void printJson(const Program &program, std::ostream &out)
{
    JsonWriter json;
    json.beginObject().text(u"file", program.document.subFileName);
    json.number(u"errorCount", program.document.errorCount).key(u"nodes");
    writeTree(json, program.diagnose.tvDiag);
    json.endObject();
    writeLine(out, json);
}

/// Writes the document in its own format. False when it isn't whole in the file, which is told.
bool write(Batch &batch, Program &program, const QString &name, bool overwrite)
{
    const int format = program.document.curFormatId;
    const OutputPlan plan = OutputPlan::toFile({batch.ports.messages.subject}, name, format);
    const Output &output = plan.outputs().constFirst();
    return batch.mayWrite(output, overwrite) && batch.write(program, output, format);
}

} // namespace

DiagnoseVerb::DiagnoseVerb()
    : Verb({.name = u"diagnose"_s,
            .usage = u"INPUT [--repair LIST] [-o OUT] [options]"_s,
            .summary = u"Scans the input with every check and prints the findings."_s})
{}

QList<QCommandLineOption> DiagnoseVerb::options() const
{
    return QList<QCommandLineOption>{
               {u"json"_s, u"Print one JSON object with the tree of findings."_s},
               {u"repair"_s, u"Repair these: overlapping,invalid,empty."_s, u"LIST"_s},
               {u"o"_s, u"Write the script to this file; its format sets the extension."_s,
                u"OUT"_s},
               {u"overwrite"_s, u"Replace a file that is there."_s}}
           + loadCallOptions();
}

ExitStatus DiagnoseVerb::execute(const QCommandLineParser &call, const Streams &streams)
{
    CallReader reader(call);
    const LoadOptions options = reader.loadOptions();
    const DiagnoseSwitches switches = readSwitches(call, reader);
    const std::optional<Answer> answer = reader.answer();
    const QStringList inputs = call.positionalArguments();
    const QString name = call.value(u"o"_s);
    if (inputs.size() != 1)
        reader.fail(inputs.isEmpty() ? u"INPUT is missing"_s : u"takes one INPUT"_s);
    if (call.isSet(u"o"_s) && !mayNameFile(name))
        reader.fail(u"-o names no file"_s);
    if (!reader.fault().isEmpty())
        return wrongCall(streams, reader.fault());

    Batch batch(call.value(u"app-dir"_s), answer, streams);
    if (!batch.prepare())
        return ExitStatus::No;
    const auto program = batch.newProgram(options);
    const Batch::Loaded loaded = batch.load(*program, inputs.constFirst(), options);
    if (loaded == Batch::Loaded::No)
        return ExitStatus::No;
    scan(*program, switches);
    if (call.isSet(u"json"_s))
        printJson(*program, streams.out);
    else
        printFindings(program->diagnose.tvDiag, program->diagnose.remaining(), streams.out);
    // The script may go where the findings go, and then goes behind them.
    streams.out.flush();
    const bool written = name.isEmpty() || write(batch, *program, name, call.isSet(u"overwrite"_s));
    const bool whole = loaded == Batch::Loaded::Whole && written;
    return whole && program->diagnose.remaining() == 0 ? ExitStatus::Done : ExitStatus::No;
}

} // namespace kavro
