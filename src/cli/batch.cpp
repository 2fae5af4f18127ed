#include "cli/batch.h"

#include "app/program.h"
#include "cli/output_plan.h"

#include <QFileInfo>

namespace kavro {

using namespace Qt::StringLiterals;

VerbFolders::VerbFolders(const QString &appDir)
    : folders(store, FolderSources::ofMachine(appDir, QFile::symLinkTarget(u"/proc/self/exe"_s)),
              FolderUse::Shipped)
{}

QList<QCommandLineOption> loadCallOptions()
{
    return {
        {u"from"_s, u"Format of the input; \"detect\" looks at the lines alone."_s, u"FORMAT"_s},
        {u"fps"_s, u"Frame rate of the input: 23.97, 24, 25, 29.97 or 30."_s, u"RATE"_s},
        {u"encoding"_s, u"Encoding of the input, whatever its bytes say."_s, u"NAME"_s}};
}

LoadResult loadFile(Program &program, const QString &path, const LoadOptions &options, bool add)
{
    LoadRequest request;
    request.path = absolutePath(path);
    request.format = options.format;
    request.linesDecide = options.linesDecide;
    request.encoding = options.encoding;
    if (add)
        request.nextRow = program.editor.grdSubEdit.rows() - 1;
    return program.loader.LoadSubFile(request);
}

Batch::Batch(const QString &appDir, std::optional<Answer> answer, const Streams &streams)
    : ports(streams.err, answer), disk(appDir)
{}

bool Batch::prepare()
{
    const FileStatus status = disk.folders.prepare();
    if (!status.ok())
        ports.messages.tell(u"The application folder can't be used: %1."_s.arg(status.text));
    return status.ok();
}

std::unique_ptr<Program> Batch::newProgram(const LoadOptions &options)
{
    auto program = std::make_unique<Program>(portsOf(ports), disk.store, disk.folders);
    program->startForVerb(false);
    if (options.frameRate)
        program->frameRates.optFrameRate[*options.frameRate].setOn();
    return program;
}

Batch::Loaded Batch::load(Program &program, const QString &path, const LoadOptions &options,
                          bool add)
{
    BatchMessages &messages = ports.messages;
    messages.subject = path;
    const int before = messages.count;
    const LoadResult result = loadFile(program, path, options, add);
    if (result.kind == LoadResult::Kind::Loaded) {
        if (result.skippedLines > 0)
            messages.tell(result.skippedLines == 1
                              ? u"A bad line was skipped."_s
                              : u"%1 bad lines were skipped."_s.arg(result.skippedLines));
        return result.skippedLines > 0 ? Loaded::Partly : Loaded::Whole;
    }
    if (messages.count == before)
        messages.tell(result.error.isEmpty() ? u"No subtitle was loaded."_s : result.error);
    return Loaded::No;
}

bool Batch::mayWrite(const Output &output, bool overwrite)
{
    if (output.literal || overwrite || !QFileInfo::exists(output.path))
        return true;
    ports.messages.tell(u"%1 is there already, --overwrite replaces it."_s.arg(output.path));
    return false;
}

bool Batch::write(Program &program, const Output &output, int format)
{
    const int before = ports.messages.count;
    return tellWrite(before, output.path,
                     program.writer.CreateSubFile({.format = format,
                                                   .lastRow = program.document.subtitleCount(),
                                                   .path = output.path,
                                                   .literal = output.literal,
                                                   .askOverwrite = false}));
}

/// @param before  count of the messages ahead of the write
bool Batch::tellWrite(int before, const QString &path, const WriteResult &result)
{
    BatchMessages &messages = ports.messages;
    const bool told = messages.count > before;
    if (result.kind == WriteResult::Kind::Written) {
        for (const QString &loss : result.losses)
            messages.tell(loss);
        if (result.rowsLeft > 0 && !told)
            messages.tell(u"Row %1 could not be written, with it %2 rows are missing in %3."_s
                              .arg(result.firstRowLeft)
                              .arg(result.rowsLeft)
                              .arg(path));
        return result.rowsLeft == 0;
    }
    if (told || result.error.isEmpty())
        messages.tell(u"%1 was not written."_s.arg(path));
    else
        messages.tell(u"%1 was not written: %2."_s.arg(path, result.error));
    return false;
}

} // namespace kavro
