#pragma once

#include "core/encoding.h"
#include "core/file_status.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

namespace kavro {

/// The one door through which the program changes files. It can be told that the disk is full.
class FileStore
{
public:
    /// Lets the disk be full after so many more bytes; none ends that.
    void setFreeBytes(std::optional<qint64> bytes) { m_freeBytes = bytes; }

    /// How many of `wanted` bytes the disk still takes; they count as written.
    qint64 take(qint64 wanted);

    /// Makes a folder and those above it.
    FileStatus makeFolder(const QString &path);

    /// Deletes a file; one that isn't there is no fault.
    FileStatus remove(const QString &path);

    /// Deletes a folder with all that is in it; one that isn't there is no fault.
    FileStatus removeFolder(const QString &path);

    /// Copies the bytes of a file; `to` is replaced by the complete copy alone.
    FileStatus copy(const QString &from, const QString &to);

private:
    std::optional<qint64> m_freeBytes;
};

/// True for a name that leads to a device, a pipe, or a file that somebody holds open for us: what
/// is written there goes straight in, whatever stands there.
bool isWrittenStraight(const QString &path);

enum class WriteMode {
    Replace, ///< the name leads to the old file until the new one is complete
    Plain,   ///< straight into the file: snapshots, previews
};

/// Writes one text file, line by line, each ended with CR LF.
///
/// In `Replace` a regular file is written beside the one that the name leads to, through links,
/// keeps its permissions, and takes its place only in `commit`. When writing fails the old file is
/// whole and what was begun stays under the name + ".part", if that can be. Devices and pipes are
/// written straight. A writer that goes without `commit` leaves no trace in `Replace`.
///
/// The first fault stays: later calls do nothing, and `commit` returns it.
class FileWriter
{
public:
    explicit FileWriter(FileStore &store);
    ~FileWriter();
    FileWriter(const FileWriter &) = delete;
    FileWriter &operator=(const FileWriter &) = delete;

    const FileStatus &open(const QString &path, const TextEncoding &encoding = {},
                           WriteMode mode = WriteMode::Replace);

    /// Both return false once a fault was met; what is buffered may fail later.
    bool write(QStringView text);
    bool writeLine(QStringView line);

    /// Writes what is left, and puts the file in its place.
    const FileStatus &commit();

    [[nodiscard]] const FileStatus &status() const { return m_status; }

private:
    bool openBeside(const QString &target);
    bool openAs(const QString &path, QIODevice::OpenMode mode);
    QChar *makeRoom(qsizetype count);
    bool flush();
    bool writeBytes();
    bool putInPlace();
    void discard();
    bool fail(FileFault fault, const QString &text);
    bool failDevice();

    FileStore &m_store;
    QFile m_file;
    QString m_target; ///< what `m_file` is renamed to in the end; empty when written straight
    std::optional<TextEncoder> m_encoder;
    std::vector<QChar> m_text; ///< its first `m_used` characters are not encoded yet
    std::size_t m_used = 0;
    QByteArray m_bytes; ///< encoded, not written yet
    FileStatus m_status;
};

} // namespace kavro
