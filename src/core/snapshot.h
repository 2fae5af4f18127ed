#pragma once

#include "core/document.h"
#include "core/file_status.h"

#include <QList>
#include <QString>

#include <vector>

namespace kavro {

class FileStore;

/// The document at one moment: rows behind the header, the end row included, and nodes from element
/// 0 on. Fonts and findings are no part of it.
struct Snapshot
{
    QList<QStringList> rows; ///< the cells of each row, its plain number first
    std::vector<Node> nodes;
    int curNode = 0;
};

// A snapshot file holds one value a line: version + ":=" + number of rows, number of the last node,
// current node, then name, first row, last row and flag ("0" or "1") of each node, then the five
// cells of each row. A text that would not come back from a line as it went there (line breaks,
// NUL, half a surrogate pair) is written behind an escape character.

/// Writes the document as it stands; a file that failed is gone.
FileStatus writeSnapshot(FileStore &store, const QString &path, const SubtitleDocument &document,
                         const QString &versionNumber);

/// Reads a snapshot whole. The version isn't compared. A file with a fault leaves `snapshot` alone.
FileStatus readSnapshot(const QString &path, Snapshot &snapshot);

} // namespace kavro
