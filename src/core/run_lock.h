#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace kavro {

/// Holds a lock file for as long as this program runs. nullptr while another that runs holds it,
/// and where no file can be made. One that a killed program left is taken over.
std::unique_ptr<QLockFile> takeRunLock(const QString &path);

} // namespace kavro
