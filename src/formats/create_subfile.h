#pragma once

#include "core/encoding.h"

#include <QString>
#include <QStringList>

namespace kavro {

class ControlWindow;
class FileStore;
class Folders;
class LanguageTable;
class Messages;
class SubtitleDocument;
struct PartitionPage;

/// One call of the write path.
struct WriteRequest
{
    bool preview = false;   ///< into the folder of temporary files, without a question
    bool partition = false; ///< one file for each row of the partition list
    int format = 0;
    int firstRow = 1;
    int lastRow = 0;
    bool showProgress = false;
    /// Path of the one file of a run without partition, its extension replaced by the format's
    /// unless `literal`.
    QString path = {};
    bool literal = false; ///< a device or a pipe: the path is taken as it stands
    /// False takes an existing file for granted: a save to the document's own file.
    bool askOverwrite = true;
};

struct WriteResult
{
    enum class Kind {
        Written,
        Cancelled, ///< the person kept an existing file, or the encoding that can't hold the text
        Failed     ///< `error` says why; the old file is whole
    };

    Kind kind = Kind::Failed;
    QString error = {};
    QString path = {};      ///< the last file written, with its extension
    QStringList files = {}; ///< all files written
    int rowsWritten = 0;
    /// Of a plain run that ended early: the first row not written, 0 when all were.
    int firstRowLeft = 0;
    int rowsLeft = 0;
    QStringList losses; ///< what the format can't hold of the rows written, a line each
};

/// What previews are written in, whatever the document's encoding is: it holds every text.
[[nodiscard]] inline TextEncoding previewEncoding()
{
    return {};
}

/// The one writer of subtitle files.
///
/// A plain run leaves the document's name and `fileChanged` to its caller; a partition run gives
/// the document the name of the last part, and no file that may be saved to without a question.
/// Both write in the document's encoding, which becomes UTF-8 when it can't hold the text and the
/// person wants that. A fault is told in a message here.
class SubtitleWriter
{
public:
    /// All are borrowed and outlive the writer.
    struct Parts
    {
        SubtitleDocument &document;
        PartitionPage &partition;
        ControlWindow &control;
        Messages &messages;
        const LanguageTable &language;
        Folders &folders;
        FileStore &store;
    };

    explicit SubtitleWriter(const Parts &parts);

    WriteResult CreateSubFile(const WriteRequest &request);

    /// Asks before an existing file is replaced. True when it may be written: it isn't there, or
    /// the answer was yes.
    bool FileExist(const QString &name);

private:
    Parts m_parts;
};

} // namespace kavro
