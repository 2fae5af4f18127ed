#pragma once

#include "core/line_reader.h"
#include "formats/format_table.h"

#include <QString>

namespace kavro {

class ControlWindow;
class EditHistory;
class Folders;
class LanguageTable;
class Messages;
class SubtitleDocument;
class Clock;
class NodeFile;
struct FormatLists;
struct KeptDocument;
struct MainMenu;
struct SettingsPage;

/// What the read path needs of the rooms above it.
class LoadHost
{
public:
    virtual ~LoadHost() = default;
    /// Opens a movie in the player and brings its page to the front; false when nothing plays,
    /// which the host tells the person.
    virtual bool openMovie(const QString &path) = 0;
    /// Seconds.
    [[nodiscard]] virtual double movieDuration() const = 0;
    /// Runs the save command; false when the document isn't whole in its file.
    virtual bool saveDocument() = 0;
    /// Names the document in the window's places without writing anything.
    virtual void setFileName(const QString &path, int format) = 0;
    /// The path enters the recent list, or is selected there.
    virtual void addRecent(const QString &path) = 0;
    /// The document's commands can be used: a document is there.
    virtual void EnableDocumentCommands() = 0;
    /// Last step of a load: what hangs on the document follows, in its order.
    virtual void documentLoaded() = 0;
};

/// One call of the read path. The first three change.
struct LoadRequest
{
    QString path; ///< a movie's path may be replaced by that of the subtitle beside it
    int format = UnknownFormat; ///< in: what the caller believes; out: what was read
    int nextRow = 1;            ///< 1 replaces the document; the end row adds behind it
    bool detectOnly = false;    ///< stop with `format` found, read nothing
    bool showLog = true;
    bool showMessages = true;
    /// Look at the lines alone, whatever the extension says.
    bool linesDecide = false;
    ReadOptions encoding = {};
};

struct LoadResult
{
    enum class Kind {
        Loaded,
        Detected,    ///< `detectOnly`
        MovieOnly,   ///< a movie was opened, the document stands as it was
        Cancelled,   ///< the person kept the document
        Failed,      ///< nothing was read; `error` says why
        LimitReached ///< too many subtitles; a plain load has cleared the grid
    };

    Kind kind = Kind::Failed;
    QString error = {};
    int skippedLines = 0; ///< lines or pieces of lines that had no place

    [[nodiscard]] bool ok() const
    {
        return kind == Kind::Loaded || kind == Kind::Detected || kind == Kind::MovieOnly;
    }
};

/// The one entry for reading a file into the document.
class SubtitleLoader
{
public:
    /// All are borrowed and outlive the loader.
    struct Parts
    {
        SubtitleDocument &document;
        FormatLists &lists;
        MainMenu &menu;
        SettingsPage &settings;
        ControlWindow &control;
        Messages &messages;
        const LanguageTable &language;
        Folders &folders;
        Clock &clock;
        LoadHost &host;
        NodeFile &nodeFile;
    };

    explicit SubtitleLoader(const Parts &parts);

    /// Reads a file into the document. A file with a fault leaves the document as it was, but for
    /// the limit, which is met when the old document is already gone.
    LoadResult LoadSubFile(LoadRequest &request);

    /// Makes a kept document the one at work, as a plain load of its file would, with its changes
    /// unsaved. No file is touched, nothing is asked.
    void bringBack(const KeptDocument &kept);

    /// Selects a format, 1 to 16, in the lists and switches what it can hold of fonts, as a load
    /// does.
    void showFormat(int format);

private:
    Parts m_parts;
};

} // namespace kavro
