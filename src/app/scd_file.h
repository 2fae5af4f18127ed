#pragma once

#include "core/file_status.h"

#include <QPair>
#include <QString>
#include <QStringList>

#include <optional>

namespace kavro {

/// What a setting file, ".scd", brings beside the subtitle that it names.
struct ScdFile
{
    QString subtitle;                     ///< path as it is stored
    QStringList clipboard;                ///< entries of the clipboard list
    QList<QPair<QString, QString>> parts; ///< name and length of each part
    std::optional<int> font;              ///< entry of the list of fonts
};

/// Reads a setting file: the path, then sections "{clipboard}", "{partitionlist}" and
/// "{system font}"; other names in braces change nothing. A fault in its midst keeps what was read.
FileStatus readScdFile(const QString &path, ScdFile &file);

} // namespace kavro
