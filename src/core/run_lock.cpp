#include "core/run_lock.h"

namespace kavro {

std::unique_ptr<QLockFile> takeRunLock(const QString &path)
{
    // From this age on a lock file that doesn't tell its owner, cut off or of another machine,
    // counts as left behind. The file of a program that runs for days is still its own: the system
    // keeps a lock on it besides.
    constexpr int stale = 5000;
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(stale);
    return lock->tryLock() ? std::move(lock) : nullptr;
}

} // namespace kavro
