#pragma once

#include "cli/batch_ports.h"
#include "cli/call_reader.h"
#include "cli/streams.h"
#include "core/folders.h"
#include "core/safe_file.h"
#include "formats/load_subfile.h"

#include <QCommandLineOption>
#include <QString>

#include <memory>

namespace kavro {

class Program;
struct Output;
struct WriteResult;

/// Where a verb finds the program's files and puts its own: the folder of --app-dir, else the
/// shipped one, read only.
struct VerbFolders
{
    explicit VerbFolders(const QString &appDir);

    FileStore store;
    Folders folders;
};

/// What loading takes from a call: --from, --fps, --encoding.
QList<QCommandLineOption> loadCallOptions();

/// One load as all verbs do it: the load pipeline once, as a plain load or behind the document.
LoadResult loadFile(Program &program, const QString &path, const LoadOptions &options,
                    bool add = false);

/// Work on one document after the other with nobody there: whatever is to be told goes to the
/// stream for people.
class Batch
{
public:
    Batch(const QString &appDir, std::optional<Answer> answer, const Streams &streams);

    /// Makes the application folder of --app-dir. False when it can't be made, which it tells.
    bool prepare();

    /// A program as it is at its start, for one document; the batch outlives it.
    std::unique_ptr<Program> newProgram(const LoadOptions &options);

    enum class Loaded { No, Partly, Whole };
    /// Loads a subtitle; `Partly` when a bad line was skipped. Tells why not.
    Loaded load(Program &program, const QString &path, const LoadOptions &options,
                bool add = false);

    /// False for a file that is there and not to be replaced, which it tells.
    bool mayWrite(const Output &output, bool overwrite);
    /// Writes the whole document. False when a row isn't in the file; tells what was lost, or why
    /// nothing was written.
    bool write(Program &program, const Output &output, int format);

    BatchPorts ports;
    VerbFolders disk;

private:
    bool tellWrite(int before, const QString &path, const WriteResult &result);
};

} // namespace kavro
