#pragma once

#include "core/file_status.h"

#include <QStringList>

namespace kavro {

/// The lines of a preview file, read in the encoding that it was written in. Lines read before a
/// fault are kept.
[[nodiscard]] FileStatus readPreviewFile(const QString &path, QStringList &lines);

} // namespace kavro
