#include "core/folders.h"

#include "core/line_reader.h"
#include "core/run_lock.h"
#include "core/safe_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

struct FolderPath
{
    Folder folder;
    QStringView path;
};

constexpr std::array folderPaths = {
    FolderPath{Folder::Root, u""},
    FolderPath{Folder::System, u"System"},
    FolderPath{Folder::Settings, u"System/Settings"},
    FolderPath{Folder::Nodes, u"System/Nodes"},
    FolderPath{Folder::Language, u"System/Language"},
    FolderPath{Folder::Help, u"System/Language/Help"},
    FolderPath{Folder::Files, u"Data/Files"},
    FolderPath{Folder::Temporary, u"Data/Temporarily"},
    FolderPath{Folder::Macro, u"Data/Macro"},
    FolderPath{Folder::MacroExport, u"Data/Macro/Export"},
    FolderPath{Folder::Calculator, u"Data/Calculator"},
    FolderPath{Folder::Sounds, u"Systemtem/Sounds"}, // spelled so since the first version
    FolderPath{Folder::Recovery, u"System/Recovery"},
    FolderPath{Folder::DriveRoot, u"Data/Drive"},
};

/// Work files of the online exchange, which no run leaves for the next.
constexpr std::array driveFiles = {QStringView(u"message.htm"), QStringView(u"sublist.sdf"),
                                   QStringView(u"version.sdf")};

constexpr QLatin1StringView lockName("kavro.lock");
constexpr QLatin1StringView runPrefix("run-");
constexpr int mostPrograms = 100;

/// What was shipped when the folder was last filled, one name a line.
constexpr QStringView shippedList = u"System/shipped.sdf";

QStringView pathOf(Folder folder)
{
    return std::ranges::find(folderPaths, folder, &FolderPath::folder)->path;
}

/// The shipped folder of an installed program, else that of a build tree around it.
QString findShipped(const QString &executableFolder)
{
    QStringList places = {executableFolder + "/../share/kavro"_L1};
    for (QDir folder(executableFolder);;) {
        places.append(folder.filePath(u"share"_s));
        if (!folder.cdUp())
            break;
    }
    const auto found = std::ranges::find_if(
        places, [](const QString &place) { return QFileInfo(place + "/System"_L1).isDir(); });
    return found == places.end() ? QString() : QDir(*found).canonicalPath();
}

std::unique_ptr<QLockFile> tryLock(const QString &folder)
{
    return takeRunLock(folder + u'/' + lockName);
}

QStringList filesBelow(const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(QDir(folder).relativeFilePath(files.next()));
    names.sort();
    return names;
}

} // namespace

FolderSources FolderSources::ofMachine(const QString &appDir, const QString &executable)
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {.appDir = appDir,
            .home = qEnvironmentVariable("KAVRO_HOME"),
            .executableFolder = QFileInfo(executable).absolutePath(),
            .userData = data + "/kavro"_L1,
            .temporary = QDir::tempPath()};
}

Folders::Folders(FileStore &store, const FolderSources &sources, FolderUse use) : m_store(store)
{
    m_shipped = findShipped(sources.executableFolder);
    chooseRoot(sources, use);
}

Folders::~Folders()
{
    tidy();
}

void Folders::chooseRoot(const FolderSources &sources, FolderUse use)
{
    if (sources.appDir.isEmpty() && use == FolderUse::Shipped) {
        m_root = m_shipped.isEmpty() ? sources.executableFolder : m_shipped;
        m_written = u"%1/kavro-%2"_s.arg(sources.temporary)
                        .arg(QRandomGenerator::system()->generate64(), 16, 16, QChar(u'0'));
        return;
    }
    const QFileInfo beside(sources.executableFolder);
    m_mayFill = true;
    if (!sources.appDir.isEmpty()) {
        m_root = sources.appDir;
    } else if (!sources.home.isEmpty()) {
        m_root = sources.home;
    } else if (QFileInfo(beside.filePath() + "/System"_L1).isDir() && beside.isWritable()) {
        m_root = beside.filePath();
        m_mayFill = false;
    } else {
        m_root = sources.userData;
    }
    m_root = QDir::cleanPath(QFileInfo(m_root).absoluteFilePath());
    m_written = m_root;
}

FileStatus Folders::prepare()
{
    if (hasPrivatePlace())
        return {};
    FileStatus status = m_store.makeFolder(m_root);
    if (status.ok())
        status = fill();
    for (const FolderPath &entry : folderPaths) {
        if (status.ok())
            status = m_store.makeFolder(matchName(m_root, entry.path));
    }
    if (!status.ok())
        return status;
    lockTemporary();
    if (m_lock)
        clearTemporary();
    return status;
}

// A folder that holds a System of its own and no list was made by hand, and stays as it is. The
// list tells what an update brought anew from what a person has deleted. An empty one stands ahead
// of all else, so that the next start goes on where a filling was broken off.
FileStatus Folders::fill()
{
    const QString list = matchName(m_root, shippedList);
    const bool isNew = QDir(matchName(m_root, u"System")).isEmpty();
    if (!m_mayFill || m_shipped.isEmpty() || (!isNew && !QFileInfo::exists(list)))
        return {};
    if (isNew) {
        FileStatus begun = m_store.makeFolder(QFileInfo(list).path());
        if (begun.ok())
            begun = writeList(list, {});
        if (!begun.ok())
            return begun;
    }
    QSet<QString> known;
    LineReader reader;
    for (reader.open(list); !reader.atEnd();)
        known.insert(reader.readLine().toString());

    const QStringList names = filesBelow(m_shipped);
    bool changed = false;
    for (const QString &name : names) {
        if (known.contains(name))
            continue;
        changed = true;
        const QString to = matchName(m_root, name);
        FileStatus status;
        if (!QFileInfo::exists(to))
            status = m_store.makeFolder(QFileInfo(to).path());
        if (status.ok() && !QFileInfo::exists(to))
            status = m_store.copy(m_shipped + u'/' + name, to);
        if (!status.ok())
            return status;
    }
    return changed ? writeList(list, names) : FileStatus{};
}

FileStatus Folders::writeList(const QString &path, const QStringList &names)
{
    FileWriter writer(m_store);
    writer.open(path);
    for (const QString &name : names)
        writer.writeLine(name);
    return writer.commit();
}

void Folders::lockTemporary()
{
    const QString folder = matchName(m_root, pathOf(Folder::Temporary));
    if (!QFileInfo(folder).isWritable())
        return;
    for (int number = 1; number < mostPrograms; ++number) {
        const QString name = number == 1 ? QString() : runPrefix + QString::number(number);
        const QString own = number == 1 ? folder : folder + u'/' + name;
        if (!m_store.makeFolder(own).ok())
            return;
        m_lock = tryLock(own);
        if (m_lock)
            m_runFolder = name;
        // Where no lock of another's stands, the disk takes none now.
        if (m_lock || !QFileInfo::exists(own + u'/' + lockName))
            return;
    }
}

void Folders::removeAllFiles(const QString &folder)
{
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        if (name != lockName)
            m_store.remove(folder + u'/' + name);
    }
}

void Folders::clearTemporary()
{
    const QString folder = path(Folder::Temporary);
    removeAllFiles(folder);
    if (!m_runFolder.isEmpty())
        return;
    for (const QStringView name : driveFiles)
        m_store.remove(path(Folder::DriveRoot, name));
    for (const QString &name : QDir(folder).entryList({runPrefix + u"*"_s}, QDir::Dirs)) {
        // What can be locked was left by a program that ended without its exit.
        auto left = tryLock(folder + u'/' + name);
        if (!left)
            continue;
        removeAllFiles(folder + u'/' + name);
        left.reset();
        QDir().rmdir(folder + u'/' + name);
    }
}

void Folders::tidy()
{
    if (m_placeMade)
        m_store.removeFolder(m_written);
    m_placeMade = false;
    if (!m_lock)
        return;
    clearTemporary();
    const QString own = m_runFolder.isEmpty() ? QString() : path(Folder::Temporary);
    m_lock.reset();
    if (!own.isEmpty())
        QDir().rmdir(own);
}

QString Folders::place(const QString &root, Folder folder, QStringView name) const
{
    QString path = matchName(root, pathOf(folder));
    if (folder == Folder::Temporary && !m_runFolder.isEmpty())
        path += u'/' + m_runFolder;
    // Thousands of snapshots may stand there, all named by this program: no look through them.
    if (folder == Folder::Temporary && !name.isEmpty())
        return path + u'/' + name.toString();
    return matchName(path, name);
}

QString Folders::path(Folder folder, QStringView name) const
{
    const bool workFiles = folder == Folder::Temporary || folder == Folder::DriveRoot;
    if (!hasPrivatePlace() || workFiles)
        return writablePath(folder, name);
    if (m_placeMade && !name.isEmpty()) {
        const QString written = writablePath(folder, name);
        if (QFileInfo::exists(written))
            return written;
    }
    return place(m_root, folder, name);
}

QString Folders::writablePath(Folder folder, QStringView name) const
{
    return place(m_written, folder, name);
}

FileStatus Folders::makeRoomFor(const QString &path)
{
    if (!path.startsWith(m_written + u'/'))
        return {};
    if (hasPrivatePlace() && !m_placeMade) {
        // Nobody else's to look into: a document on its way may stand there.
        constexpr auto ours =
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
        m_placeMade = QDir().mkdir(m_written, ours);
    }
    return m_store.makeFolder(QFileInfo(path).path());
}

QStringList Folders::files(Folder folder, QStringView patterns) const
{
    QStringList names = filesIn(path(folder), patterns);
    if (!m_placeMade)
        return names;
    for (const QString &name : filesIn(writablePath(folder), patterns)) {
        if (!names.contains(name, Qt::CaseInsensitive))
            names.append(name);
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

void Folders::removeFiles(Folder folder, QStringView patterns)
{
    for (const QString &name : filesIn(writablePath(folder), patterns))
        m_store.remove(writablePath(folder, name));
}

} // namespace kavro
