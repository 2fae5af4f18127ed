#pragma once

#include "app/recovery_file.h"
#include "controls/indicators.h"

#include <QLockFile>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace kavro {

class Folders;
class Form;
class Messages;
class FileStore;
enum class Answer;
struct Ports;

/// Keeps the unsaved changes of the document in a file of their own, so that a program that was
/// killed loses a few seconds of work at most, and offers at the next start what such a program
/// left. A clean exit and a save leave no such file.
///
/// Each running program has a number in the folder Recovery: N.lock while it runs, N.rec while it
/// has changes. A file whose lock nobody holds was left by a program that was killed.
class Recovery
{
public:
    /// All are borrowed and outlive the recovery.
    struct Parts
    {
        const Ports &ports;
        SubtitleDocument &document;
        Messages &messages;
        Folders &folders;
        FileStore &store;
        /// Makes a kept document the one at work, with unsaved changes.
        std::function<void(const KeptDocument &)> bringBack;
    };

    Recovery(Form &frmMain, Parts parts);
    ~Recovery();
    Recovery(const Recovery &) = delete;
    Recovery &operator=(const Recovery &) = delete;

    /// Offers what killed programs left, the newest first, and begins to keep the document. Yes
    /// brings a document back, no deletes its file, cancel leaves it and the rest for a later
    /// start. With a file named for this start only what was kept of that file is offered. A file
    /// that was written after its changes were kept isn't replaced by a save that asks nothing.
    ///
    /// @return  true when a document was brought back
    bool begin(const QString &namedFile);
    /// The clean exit: the file goes.
    void end();

    /// Waits until what a tick has begun is on the disk.
    void finishWriting() { m_writer.waitForDone(); }

    Timer timRecovery; ///< runs while there are unsaved changes; a tick keeps what is new

private:
    void watch();
    void followChanges(bool changed);
    void keep();
    void inTheBackground(const std::function<void()> &job);
    /// Yes when the document was brought back, no when the next may be offered, else cancel.
    Answer offer(const QString &file, const QString &namedFile);
    Answer ask(const KeptDocument &kept, bool overtaken);
    void takeNumber();
    bool lock(int number);
    [[nodiscard]] QString fileOf(int number) const;

    Parts m_parts;
    bool m_dirty = false; ///< something changed since the last tick that kept
    int m_number = 0;     ///< ours, 0 before `begin` and where nothing can be written
    std::unique_ptr<QLockFile> m_lock;
    QThreadPool m_writer; ///< one thread: writes and the removal keep their order
};

} // namespace kavro
