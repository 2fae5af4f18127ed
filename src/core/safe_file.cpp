#include "core/safe_file.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <tuple>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

constexpr std::size_t flushLength = 1 << 16;
constexpr int mostLinks = 40;

QString describe(int code)
{
    return QString::fromStdString(std::generic_category().message(code));
}

FileStatus faultOf(const QFileDevice &file)
{
    const bool full = file.error() == QFileDevice::ResourceError;
    return {.fault = full ? FileFault::DiskFull : FileFault::Unwritable,
            .text = file.errorString()};
}

FileStatus diskFull()
{
    return {.fault = FileFault::DiskFull, .text = describe(ENOSPC)};
}

bool renameOver(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

/// Also where the disk takes a part of it at first.
bool writeAll(QFile &file, const char *bytes, qint64 length)
{
    for (qint64 done = 0; done < length;) {
        const qint64 written = file.write(bytes + done, length - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

/// A name in a folder for a file that is on its way to another name.
QString newNameIn(const QString &folder)
{
    return u"%1/.kavro-%2"_s.arg(folder).arg(QRandomGenerator::system()->generate64(), 16, 16,
                                             QChar(u'0'));
}

/// Where a name leads, through links, also to a file that isn't there yet.
struct Destination
{
    QString path;
    bool straight = false; ///< a device, a pipe, or a file that somebody holds open for us
    bool circle = false;   ///< the links lead nowhere
};

Destination destinationOf(const QString &path)
{
    QString at = path;
    for (int hop = 0; hop < mostLinks; ++hop) {
        const QFileInfo info(at);
        const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
        // "/dev/stdout" and "/dev/fd/1" may lead to a regular file, which a shell goes on
        // appending to.
        if (folder.startsWith("/proc/"_L1))
            return {.path = path, .straight = true};
        if (!info.isSymLink())
            return {.path = at, .straight = info.exists() && !info.isFile() && !info.isDir()};
        // ".." in a link counts from the true folder of the link.
        at = QFileInfo(folder + u'/' + info.fileName()).symLinkTarget();
    }
    return {.path = path, .circle = true};
}

/// The new file belongs to whom the old one belonged, where we may do that; others of its group
/// keep their rights also where it becomes ours.
void takeOver(QFile &file, const QFileInfo &old)
{
    constexpr auto nobody = static_cast<uid_t>(-1);
    if (::fchown(file.handle(), old.ownerId(), old.groupId()) != 0)
        std::ignore = ::fchown(file.handle(), nobody, old.groupId());
    file.setPermissions(old.permissions());
}

} // namespace

bool isWrittenStraight(const QString &path)
{
    return destinationOf(path).straight;
}

qint64 FileStore::take(qint64 wanted)
{
    if (!m_freeBytes)
        return wanted;
    const qint64 taken = std::min(wanted, *m_freeBytes);
    *m_freeBytes -= taken;
    return taken;
}

FileStatus FileStore::makeFolder(const QString &path)
{
    if (QDir().mkpath(path))
        return {};
    return {.fault = FileFault::Unwritable, .text = describe(errno)};
}

FileStatus FileStore::remove(const QString &path)
{
    QFile file(path);
    const bool gone = file.remove() || !file.exists();
    return gone ? FileStatus{} : faultOf(file);
}

FileStatus FileStore::removeFolder(const QString &path)
{
    QDir folder(path);
    if (!folder.exists() || folder.removeRecursively())
        return {};
    return {.fault = FileFault::Unwritable, .text = describe(errno)};
}

FileStatus FileStore::copy(const QString &from, const QString &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return {.fault = FileFault::Unreadable, .text = source.errorString()};
    QFile copy(newNameIn(QFileInfo(to).absolutePath()));
    if (!copy.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return faultOf(copy);
    FileStatus status;
    while (status.ok() && source.error() == QFileDevice::NoError && !source.atEnd()) {
        const QByteArray part = source.read(qint64{flushLength});
        if (part.isEmpty())
            break; // a fault of the disk, told below
        const qint64 taken = take(part.size());
        if (!writeAll(copy, part.constData(), taken))
            status = faultOf(copy);
        else if (taken < part.size())
            status = diskFull();
    }
    if (status.ok() && source.error() != QFileDevice::NoError)
        status = {.fault = FileFault::Unreadable, .text = source.errorString()};
    if (status.ok() && !renameOver(copy.fileName(), to))
        status = {.fault = FileFault::Unwritable, .text = describe(errno)};
    if (!status.ok())
        copy.remove();
    return status;
}

FileWriter::FileWriter(FileStore &store) : m_store(store) {}

FileWriter::~FileWriter()
{
    discard();
}

const FileStatus &FileWriter::open(const QString &path, const TextEncoding &encoding,
                                   WriteMode mode)
{
    discard();
    m_status = {};
    m_used = 0;
    m_bytes.resize(0);
    m_encoder.emplace(encoding);
    const Destination destination = destinationOf(path);
    if (path.isEmpty() || destination.circle)
        fail(FileFault::Unwritable, describe(path.isEmpty() ? ENOENT : ELOOP));
    else if (destination.straight)
        openAs(path, QFileInfo(path).isFile() ? QIODevice::Append : QIODevice::Truncate);
    else if (mode == WriteMode::Plain)
        openAs(path, QIODevice::Truncate);
    else
        openBeside(destination.path);
    return m_status;
}

bool FileWriter::openBeside(const QString &target)
{
    const QFileInfo old(target);
    if (old.isDir())
        return fail(FileFault::Folder, describe(EISDIR));
    // The rename would pass over a write protection that a person has set.
    if (old.exists() && !old.isWritable())
        return fail(FileFault::Unwritable, describe(EACCES));
    if (!openAs(newNameIn(old.absolutePath()), QIODevice::NewOnly))
        return false;
    m_target = target;
    if (old.exists())
        takeOver(m_file, old);
    return true;
}

bool FileWriter::openAs(const QString &path, QIODevice::OpenMode mode)
{
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered | mode))
        return true;
    m_status = faultOf(m_file);
    return false;
}

// In pieces, so that a long text isn't held once more; a surrogate pair stays in one piece.
bool FileWriter::write(QStringView text)
{
    while (m_status.ok() && !text.isEmpty()) {
        qsizetype length = std::min<qsizetype>(text.size(), flushLength);
        if (length < text.size() && text[length - 1].isHighSurrogate())
            ++length;
        std::copy_n(text.data(), length, makeRoom(length));
        text = text.sliced(length);
        if (m_used >= flushLength)
            flush();
    }
    return m_status.ok();
}

bool FileWriter::writeLine(QStringView line)
{
    if (!m_status.ok())
        return false;
    QChar *const end = std::copy_n(line.data(), line.size(), makeRoom(line.size() + 2));
    end[0] = u'\r';
    end[1] = u'\n';
    return m_used < flushLength || flush();
}

QChar *FileWriter::makeRoom(qsizetype count)
{
    const std::size_t at = m_used;
    m_used += static_cast<std::size_t>(count);
    if (m_used > m_text.size())
        m_text.resize(m_used + flushLength);
    return m_text.data() + at;
}

bool FileWriter::flush()
{
    if (!m_encoder->append(QStringView(m_text.data(), static_cast<qsizetype>(m_used)), m_bytes)) {
        discard();
        return fail(FileFault::Unencodable, u"the encoding lacks a character of the text"_s);
    }
    m_used = 0;
    return writeBytes();
}

bool FileWriter::writeBytes()
{
    const qint64 taken = m_store.take(m_bytes.size());
    if (!writeAll(m_file, m_bytes.constData(), taken))
        return failDevice();
    if (taken < m_bytes.size())
        return fail(FileFault::DiskFull, diskFull().text);
    m_bytes.resize(0);
    return true;
}

const FileStatus &FileWriter::commit()
{
    if (m_status.ok() && flush())
        putInPlace();
    return m_status;
}

bool FileWriter::putInPlace()
{
    // A crash of the machine must not leave an empty file in the place of the old one. A new file
    // has nothing to lose, and a hundred of them would wait for the disk a hundred times.
    const bool replaces = !m_target.isEmpty() && QFileInfo::exists(m_target);
    if (replaces && ::fdatasync(m_file.handle()) != 0)
        return fail(FileFault::Unwritable, describe(errno));
    // A file system across a network may tell its faults here.
    m_file.close();
    if (m_file.error() != QFileDevice::NoError)
        return failDevice();
    if (!m_target.isEmpty() && !renameOver(m_file.fileName(), m_target))
        return fail(FileFault::Unwritable, describe(errno));
    m_target.clear();
    return true;
}

void FileWriter::discard()
{
    m_file.close();
    if (!m_target.isEmpty())
        m_store.remove(m_file.fileName());
    m_target.clear();
}

bool FileWriter::failDevice()
{
    const FileStatus status = faultOf(m_file);
    return fail(status.fault, status.text);
}

bool FileWriter::fail(FileFault fault, const QString &text)
{
    m_status = {.fault = fault, .text = text};
    m_file.close();
    if (!m_target.isEmpty() && !renameOver(m_file.fileName(), m_target + ".part"_L1))
        m_store.remove(m_file.fileName());
    m_target.clear();
    return false;
}

} // namespace kavro
