#include "cli/drive_commands.h"

#include "app/program.h"
#include "cli/batch.h"
#include "cli/control_json.h"
#include "cli/document_json.h"
#include "cli/drive_acts.h"
#include "cli/drive_arguments.h"
#include "cli/json_writer.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

Outcome load(Driven &driven, QStringView rest)
{
    const LoadResult result = loadFile(driven.program, rest.toString(), {});
    if (!result.ok() && !result.error.isEmpty())
        writeLine(driven.err, u"%1: %2"_s.arg(rest, result.error));
    return Outcome::done();
}

Outcome drop(Driven &driven, QStringView rest)
{
    driven.program.dropFile(absolutePath(rest.toString()));
    return Outcome::done();
}

Outcome queueAnswer(Driven &driven, QStringView rest)
{
    const std::optional<Answer> answer = answerByName(rest);
    if (!answer)
        return Outcome::wrong(u"\"%1\" is no answer, those are yes, no, ok, cancel"_s.arg(rest));
    driven.ports.messages.answers.append(*answer);
    return Outcome::done();
}

Outcome queueInput(Driven &driven, QStringView rest)
{
    const qsizetype mark = rest.indexOf(u'>');
    if (mark < 0)
        return Outcome::wrong(u"\"%1\" is not NAME>VALUE"_s.arg(rest));
    driven.ports.messages.inputs.append(
        {.name = rest.first(mark).toString(), .value = rest.sliced(mark + 1).toString()});
    return Outcome::done();
}

/// "PATH [INDEX]", "media [INDEX]", "cancel".
Outcome queueFile(Driven &driven, QStringView rest)
{
    FileReply reply{.accepted = true, .path = {}, .filterIndex = -1, .mediaName = false};
    const qsizetype blank = rest.lastIndexOf(u' ');
    const QStringView last = rest.sliced(blank + 1);
    const std::optional<int> index = isDigits(last) ? wholeNumber(last) : std::nullopt;
    if (blank >= 0 && index) {
        reply.filterIndex = *index;
        rest = rest.first(blank);
    }
    if (rest == u"cancel")
        reply.accepted = false;
    else if (rest == u"media")
        reply.mediaName = true;
    else
        reply.path = absolutePath(rest.toString());
    driven.ports.files.replies.append(reply);
    return Outcome::done();
}

Outcome setPlayer(Driven &driven, QStringView rest)
{
    const QStringView what = takeWord(rest);
    const std::optional<double> seconds = decimalNumber(rest);
    if (!seconds)
        return noNumber(rest);
    if (what == u"duration")
        driven.ports.player.reportedDuration = *seconds;
    else if (what == u"position")
        driven.ports.player.reportedPosition = *seconds;
    else
        return Outcome::wrong(u"the player has no \"%1\""_s.arg(what));
    return Outcome::done();
}

Outcome setClock(Driven &driven, QStringView rest)
{
    const QDateTime time = QDateTime::fromString(rest.toString(), u"yyyy-MM-dd HH:mm:ss"_s);
    if (!time.isValid())
        return Outcome::wrong(u"\"%1\" is no time, write YYYY-MM-DD HH:MM:SS"_s.arg(rest));
    driven.ports.clock.time = time;
    return Outcome::done();
}

Outcome seedRandom(Driven &driven, QStringView rest)
{
    bool isNumber = false;
    const qint64 seed = rest.trimmed().toLongLong(&isNumber);
    if (!isNumber)
        return noNumber(rest);
    driven.ports.random.seed(static_cast<std::uint32_t>(seed));
    return Outcome::done();
}

Outcome fillDisk(Driven &driven, QStringView rest)
{
    if (rest == u"off") {
        driven.program.store.setFreeBytes(std::nullopt);
        return Outcome::done();
    }
    bool isNumber = false;
    const qint64 bytes = rest.trimmed().toLongLong(&isNumber);
    if (!isNumber || bytes < 0)
        return noNumber(rest);
    driven.program.store.setFreeBytes(bytes);
    return Outcome::done();
}

/// Nothing transfers yet, so there is nothing to wait for.
Outcome waitForTransfer(Driven &, QStringView rest)
{
    const QStringView what = takeWord(rest);
    if (what != u"transfer")
        return Outcome::wrong(u"can't wait for \"%1\""_s.arg(what));
    return decimalNumber(rest) ? Outcome::done() : noNumber(rest);
}

/// Printed of every control, whatever its state and that of its form.
Outcome getControl(Driven &driven, QStringView rest)
{
    const Control *control = driven.program.control(rest);
    if (control == nullptr)
        return Outcome::wrong(u"no control \"%1\""_s.arg(rest));
    JsonWriter json;
    writeControl(json, *control);
    driven.ports.output.write(json);
    return Outcome::done();
}

Outcome dump(Driven &driven, QStringView)
{
    JsonWriter json;
    writeDocument(json, driven.program);
    driven.ports.output.write(json);
    return Outcome::done();
}

Outcome quit(Driven &driven, QStringView)
{
    driven.program.exit();
    return {.kind = Outcome::Kind::Quit, .text = {}};
}

struct Command
{
    QStringView name;
    Outcome (*run)(Driven &driven, QStringView rest);
};

constexpr Command commands[] = {
    {u"load", load},          {u"drop", drop},          {u"press", pressControl},
    {u"set", setText},        {u"focus", focusControl}, {u"key", pressKey},
    {u"select", selectEntry}, {u"check", checkBox},     {u"tab", clickTab},
    {u"cell", moveToCell},    {u"click", clickCell},    {u"top", scrollGrid},
    {u"node", clickNode},     {u"slide", moveSlider},   {u"tick", fireTimer},
    {u"answer", queueAnswer}, {u"input", queueInput},   {u"file", queueFile},
    {u"fps", pickFrameRate},  {u"player", setPlayer},   {u"clock", setClock},
    {u"seed", seedRandom},    {u"full", fillDisk},      {u"wait", waitForTransfer},
    {u"get", getControl},     {u"dump", dump},          {u"quit", quit},
};

} // namespace

Outcome Outcome::refused(const Control &control)
{
    return {.kind = Kind::Refused, .text = control.fullName()};
}

Outcome runCommand(Driven &driven, QStringView line)
{
    QStringView rest = line;
    const QStringView name = takeWord(rest);
    const auto *command = std::ranges::find(commands, name, &Command::name);
    if (command == std::end(commands))
        return Outcome::wrong(u"no command \"%1\""_s.arg(name));
    return command->run(driven, rest);
}

} // namespace kavro
