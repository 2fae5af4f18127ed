#pragma once

#include "core/file_status.h"
#include "core/kept_document.h"

#include <QString>

#include <optional>

namespace kavro {

/// Replaces the file by a complete one. May run on any thread.
FileStatus writeRecovery(const QString &path, const KeptDocument &document);

/// None for a file that is missing, cut off or damaged.
std::optional<KeptDocument> readRecovery(const QString &path);

} // namespace kavro
