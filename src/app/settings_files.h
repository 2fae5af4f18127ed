#pragma once

#include "core/file_status.h"

#include <QString>
#include <QStringList>
#include <QStringView>

namespace kavro {

class FileStore;
class Folders;
enum class Folder;
class ListBox;
class Navigation;
class SubtitleDocument;
struct FrameRatePage;
struct Ports;
struct SettingsPage;

/// The small files in the folder System that keep the program's state between runs.
class SettingsFiles
{
public:
    /// All are borrowed and outlive the files.
    struct Parts
    {
        const Ports &ports;
        const SubtitleDocument &document;
        SettingsPage &settings;
        FrameRatePage &frameRates;
        Navigation &navigation;
        ListBox &searches;
        Folders &folders;
        FileStore &store;
    };

    explicit SettingsFiles(const Parts &parts);

    /// Reads set.sdf and recent.sdf. A missing, short or damaged file leaves what follows as it
    /// stands, and reports nothing.
    void LoadSettingsFile();

    /// Writes the options: set.sdf in its 22 lines, and the writing system beside it.
    FileStatus writeOptions();

    /// Reads sr.sdf, one stored search a line.
    void readSearches();

    struct LastFiles
    {
        QString subtitle;
        QString movie;
    };
    /// What last.sdf holds; both empty when there is none.
    [[nodiscard]] LastFiles lastFiles() const;

    /// Writes the files of an exit. One whose content this program didn't change is left alone, but
    /// made when it is missing.
    void writeAtExit();

private:
    bool readOptions();
    void readScript();
    void readRecent();
    void writeRecent();
    void writeSearches();
    void writeLast();
    void writePosition();
    void keep(QStringView name);
    [[nodiscard]] bool isMissing(QStringView name) const;
    FileStatus writeLines(Folder folder, QStringView name, const QStringList &lines);

    Parts m_parts;
    QStringList m_recentAsRead;
    QStringList m_searchesAsRead;
};

} // namespace kavro
