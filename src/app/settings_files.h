#pragma once

#include <QString>
#include <QStringList>

namespace kavro {

class FileStore;
class Folders;
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
        SubtitleDocument &document;
        SettingsPage &settings;
        FrameRatePage &frameRates;
        Navigation &navigation;
        Folders &folders;
        FileStore &store;
    };

    explicit SettingsFiles(const Parts &parts);

    /// Reads set.sdf and recent.sdf. A missing, short or damaged file leaves what follows as it
    /// stands, and reports nothing.
    void LoadSettingsFile();

    /// What last.sdf holds; both empty when there is none.
    struct LastFiles
    {
        QString subtitle;
        QString movie;
    };
    [[nodiscard]] LastFiles lastFiles() const;

    /// Writes the files of an exit: wizard, macros, searches, recent and last files, position. A
    /// file whose content this program didn't change is made when it is missing, else left alone.
    void writeAtExit();

private:
    bool readOptions();
    void readRecent();
    void writeRecent();
    void writeLast();
    void writePosition();
    void writeLines(const QString &name, const QStringList &lines);
    void keep(const QString &name);

    Parts m_parts;
    QStringList m_recentAsRead; ///< the recent list behind the load
};

} // namespace kavro
