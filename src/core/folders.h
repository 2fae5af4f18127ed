#pragma once

#include "core/file_status.h"
#include "core/paths.h"

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <memory>

namespace kavro {

class FileStore;

// The application folder and what stands in it. Names that are there are met in any case of
// letters.

/// The folders of the application folder.
enum class Folder {
    Root,
    System,
    Settings,
    Nodes,
    Language,
    Help, ///< holds one folder for each language
    Files,
    Temporary, ///< this program's own: a second program works in a folder inside the first one's
    Macro,
    MacroExport,
    Calculator,
    Sounds,
    Recovery,  ///< unsaved changes, kept for a start after a kill
    DriveRoot, ///< the work files of the online exchange
};

/// Where the application folder may be; all but the first come from the machine.
struct FolderSources
{
    QString appDir = {};           ///< --app-dir, empty when not given
    QString home = {};             ///< KAVRO_HOME
    QString executableFolder = {}; ///< where the program stands
    QString userData = {};         ///< the user's folder for this program's data
    QString temporary = {};        ///< the machine's folder of temporary files

    /// Asks the environment; `executable` is the path of the program's own file.
    static FolderSources ofMachine(const QString &appDir, const QString &executable);
};

/// How the application folder is used when no --app-dir is given.
enum class FolderUse {
    Own,     ///< the person's own folder, filled from the shipped one at first start
    Shipped, ///< the shipped one is only read; what is written goes to a private place that is
             ///< removed
};

/// The application folder: finds it, fills it, and builds every path in it. Names that stand there
/// are met in any case of letters. Nothing is made on disk before `prepare`, and with
/// `FolderUse::Shipped` before the first write.
class Folders
{
public:
    Folders(FileStore &store, const FolderSources &sources, FolderUse use);
    ~Folders();
    Folders(const Folders &) = delete;
    Folders &operator=(const Folders &) = delete;

    /// Makes and fills the application folder when it is new, adds what an update of the program
    /// brought without touching a file that is there, takes the lock on the temporary files and
    /// deletes what an earlier run left of them.
    FileStatus prepare();

    /// Deletes this program's temporary files and its private place, and gives the lock back. Runs
    /// by itself at the end.
    void tidy();

    /// The path of a folder, without a separator at its end, or of a name in it, to read or to
    /// show. With the private place in use it leads to the shipped file until another was written
    /// there. `name` may be a relative path with "\" or "/".
    [[nodiscard]] QString path(Folder folder, QStringView name = {}) const;

    /// The path to write a name at. With `FolderUse::Shipped` it lies in the private place.
    [[nodiscard]] QString writablePath(Folder folder, QStringView name = {}) const;

    /// Makes the folder of a path that lies in the application folder or the private place; a path
    /// elsewhere is left alone. To be called ahead of a write.
    FileStatus makeRoomFor(const QString &path);

    /// The names of the files in a folder that match one of the patterns ("*.sub;*.srt"), in any
    /// case, sorted without regard to case.
    [[nodiscard]] QStringList files(Folder folder, QStringView patterns) const;

    /// Deletes the files of a folder that match one of the patterns. Where the shipped folder is
    /// only read, its files stay.
    void removeFiles(Folder folder, QStringView patterns);

    /// Where the program's own files are shipped; empty when they were not found.
    [[nodiscard]] const QString &shipped() const { return m_shipped; }

private:
    void chooseRoot(const FolderSources &sources, FolderUse use);
    FileStatus fill();
    FileStatus writeList(const QString &path, const QStringList &names);
    void lockTemporary();
    void clearTemporary();
    void removeAllFiles(const QString &folder);
    [[nodiscard]] QString place(const QString &root, Folder folder, QStringView name) const;
    [[nodiscard]] bool hasPrivatePlace() const { return m_root != m_written; }

    FileStore &m_store;
    QString m_shipped;
    QString m_root;      ///< where files are read
    QString m_written;   ///< where they are written: the same, or the private place
    QString m_runFolder; ///< the own folder inside the temporary ones, none for the first program
    bool m_mayFill = false;
    bool m_placeMade = false; ///< the private place
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace kavro
