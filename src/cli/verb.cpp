#include "cli/verb.h"

#include "app/version.h"

#include <QCommandLineParser>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

QList<QCommandLineOption> commonOptions()
{
    return {{u"app-dir"_s, u"Use this application folder, made and filled when it isn't there."_s,
             u"DIR"_s},
            {u"answer"_s, u"Give this answer to every message window that offers it."_s,
             u"yes|no|ok|cancel"_s},
            {{u"h"_s, u"help"_s}, u"Print this help."_s},
            {{u"v"_s, u"version"_s}, u"Print the program's version."_s}};
}

QString optionLine(const QCommandLineOption &option)
{
    QStringList names;
    for (const QString &name : option.names())
        names.append((name.size() == 1 ? u"-"_s : u"--"_s) + name);
    QString line = u"  "_s + names.join(u", "_s);
    if (!option.valueName().isEmpty())
        line += u' ' + option.valueName();
    constexpr int column = 28;
    if (line.size() + 2 > column)
        line += u'\n' + QString(column, u' ');
    return line.leftJustified(column) + option.description();
}

} // namespace

ExitStatus Verb::run(const QStringList &arguments, const Streams &streams)
{
    const QList<QCommandLineOption> all = options() + commonOptions();
    QCommandLineParser parser;
    parser.addOptions(all);
    const bool read = parser.parse(QStringList(m_text.name) + arguments);
    if (parser.isSet(u"help"_s)) {
        printHelp(all, streams);
        return ExitStatus::Done;
    }
    if (parser.isSet(u"version"_s)) {
        writeLine(streams.out, titleWithVersion());
        return ExitStatus::Done;
    }
    if (!read)
        return wrongCall(streams, parser.errorText());
    return execute(parser, streams);
}

ExitStatus Verb::wrongCall(const Streams &streams, QStringView fault) const
{
    writeLine(streams.err, u"kavro-cli %1: %2"_s.arg(m_text.name, fault));
    return ExitStatus::WrongCall;
}

void Verb::printHelp(const QList<QCommandLineOption> &all, const Streams &streams) const
{
    writeLine(streams.out, u"Usage: kavro-cli %1 %2"_s.arg(m_text.name, m_text.usage).trimmed());
    writeLine(streams.out, m_text.summary);
    writeLine(streams.out, {});
    writeLine(streams.out, u"Options:");
    for (const QCommandLineOption &option : all)
        writeLine(streams.out, optionLine(option));
}

} // namespace kavro
