#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

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
        const SubtitleDocument &document;
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
    void readRecent();
    void writeRecent();
    void writeLast();
    void writePosition();
    void keep(QStringView name);
    [[nodiscard]] bool isMissing(QStringView name) const;
    void writeLines(QStringView name, const QStringList &lines);

    Parts m_parts;
    QStringList m_recentAsRead;
};

} // namespace kavro
