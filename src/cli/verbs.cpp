#include "cli/verbs.h"

#include "app/version.h"
#include "cli/verb_convert.h"
#include "cli/verb_diagnose.h"
#include "cli/verb_drive.h"
#include "cli/verb_dump.h"
#include "cli/verb_formats.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

void printHelp(const std::vector<std::unique_ptr<Verb>> &verbs, std::ostream &out)
{
    writeLine(out, u"Usage: kavro-cli VERB [arguments]");
    writeLine(out, u"The subtitle editor without its windows.");
    writeLine(out, {});
    writeLine(out, u"Verbs:");
    for (const auto &verb : verbs)
        writeLine(out, u"  %1%2"_s.arg(verb->text().name, -9).arg(verb->text().summary));
    writeLine(out, {});
    writeLine(out, u"kavro-cli VERB --help tells more about one, kavro-cli --version prints the "
                   "version.");
}

int wrongCall(const Streams &streams, const QString &fault)
{
    writeLine(streams.err, u"kavro-cli: %1, see kavro-cli --help"_s.arg(fault));
    return static_cast<int>(ExitStatus::WrongCall);
}

/// Options that every verb takes may also stand ahead of it; they are moved behind it. What is left
/// without a verb is an empty one.
void moveOptionsBehindVerb(QStringList &arguments)
{
    QStringList options;
    while (!arguments.isEmpty()) {
        const QString &first = arguments.constFirst();
        const bool withValue = first == "--app-dir"_L1 || first == "--answer"_L1;
        if (!withValue && !first.startsWith("--app-dir="_L1) && !first.startsWith("--answer="_L1))
            break;
        for (int i = 0; i < (withValue ? 2 : 1) && !arguments.isEmpty(); ++i)
            options.append(arguments.takeFirst());
    }
    const QString verb = arguments.isEmpty() ? QString() : arguments.takeFirst();
    arguments = QStringList(verb) + options + arguments;
}

} // namespace

std::vector<std::unique_ptr<Verb>> allVerbs()
{
    std::vector<std::unique_ptr<Verb>> verbs;
    verbs.push_back(std::make_unique<FormatsVerb>());
    verbs.push_back(std::make_unique<ConvertVerb>());
    verbs.push_back(std::make_unique<DumpVerb>());
    verbs.push_back(std::make_unique<DiagnoseVerb>());
    verbs.push_back(std::make_unique<DriveVerb>());
    return verbs;
}

int runCommandLine(QStringList arguments, const Streams &streams)
{
    const auto verbs = allVerbs();
    moveOptionsBehindVerb(arguments);
    const QString name = arguments.constFirst();
    if (name.isEmpty())
        return wrongCall(streams, u"a verb is missing"_s);
    if (name == "--help"_L1 || name == "-h"_L1) {
        printHelp(verbs, streams.out);
        return static_cast<int>(ExitStatus::Done);
    }
    if (name == "--version"_L1 || name == "-v"_L1) {
        writeLine(streams.out, titleWithVersion());
        return static_cast<int>(ExitStatus::Done);
    }
    for (const auto &verb : verbs) {
        if (verb->text().name == name)
            return static_cast<int>(verb->run(arguments.sliced(1), streams));
    }
    const QString kind = name.startsWith(u'-') ? u"option"_s : u"verb"_s;
    return wrongCall(streams, u"no %1 \"%2\""_s.arg(kind, name));
}

} // namespace kavro
