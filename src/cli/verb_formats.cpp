#include "cli/verb_formats.h"

#include "cli/json_writer.h"
#include "formats/format_table.h"

#include <QCommandLineParser>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

void printTable(std::ostream &out)
{
    const auto line = [&](QStringView id, QStringView name, QStringView extension,
                          QStringView base) {
        writeLine(out, u"%1  %2  %3  %4"_s.arg(id, 2)
                           .arg(name.toString(), -22)
                           .arg(extension.toString(), -9)
                           .arg(base));
    };
    line(u"id", u"name", u"extension", u"time base");
    for (const FormatInfo &format : formatTable())
        line(QString::number(format.id), format.name, format.extension, format.timeBase);
}

void printJson(std::ostream &out)
{
    JsonWriter json;
    json.beginArray();
    for (const FormatInfo &format : formatTable()) {
        json.beginObject().number(u"id", format.id).text(u"name", format.name);
        json.text(u"extension", format.extension).text(u"timeBase", format.timeBase).endObject();
    }
    json.endArray();
    writeLine(out, json);
}

} // namespace

FormatsVerb::FormatsVerb()
    : Verb({.name = u"formats"_s,
            .usage = u"[--json]"_s,
            .summary = u"Lists the formats: id, name, extension, time base."_s})
{}

QList<QCommandLineOption> FormatsVerb::options() const
{
    return {{u"json"_s, u"Print one JSON array."_s}};
}

ExitStatus FormatsVerb::execute(const QCommandLineParser &call, const Streams &streams)
{
    if (!call.positionalArguments().isEmpty())
        return wrongCall(streams, u"takes no arguments");
    if (call.isSet(u"json"_s))
        printJson(streams.out);
    else
        printTable(streams.out);
    return ExitStatus::Done;
}

} // namespace kavro
