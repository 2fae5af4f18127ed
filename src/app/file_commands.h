#pragma once

#include "app/file_window.h"
#include "formats/create_subfile.h"

#include <QString>

namespace kavro {

class DiagnoseHost;
class EditHistory;
class LanguageTable;
class Navigation;
class NodeFile;
class SubtitleDocument;
class SubtitleLoader;
struct ClipboardPanel;
struct FontLists;
struct FormatLists;
struct LoadRequest;
struct MainMenu;
struct PartitionPage;
struct ScdFile;
struct SettingsPage;
struct StatusPanels;

/// The commands of the File menu, and the naming of the document.
class FileCommands
{
public:
    /// All are borrowed and outlive the commands.
    struct Parts
    {
        const Ports &ports;
        SubtitleDocument &document;
        SubtitleLoader &loader;
        SubtitleWriter &writer;
        NodeFile &nodeFile;
        EditHistory &history;
        DiagnoseHost &diagnose;
        Navigation &navigation;
        MainMenu &menu;
        FormatLists &formats;
        FontLists &fonts;
        ClipboardPanel &clipboard;
        PartitionPage &partition;
        StatusPanels &status;
        SettingsPage &settings;
        Messages &messages;
        const LanguageTable &language;
        const Folders &folders;
        ActionTrace &trace;
    };

    FileCommands(Form &frmMain, Form &frmFile, const Parts &parts);

    void mnuNewFile();
    void mnuLoadFile();
    void mnuAddFile();
    /// Writes at once, without a question, where the document came from or went to its file in its
    /// format; else it is `mnuSavesubfile`. True when the whole document is in the file.
    bool mnuSave();
    /// Asks for a name and a format. True when the whole document is in the file.
    bool mnuSavesubfile();
    /// Asks for a name and writes nothing.
    void mnuSaveSettings();
    void mnuPrint();
    /// Reads the document's file again in the encoding of that entry of `lstEncoding`; asks about
    /// changes as any load does.
    void mnuReopen(int entry);

    /// The load command on that path, without the file window.
    void dropFile(const QString &path);

    /// Names the document: the path with its extension replaced by the format's.
    void SetFileName(const QString &path, int formatId);
    /// Names the document by the path as it stands: in the window's places, among the properties of
    /// a transfer, and with an edit history that begins anew.
    void nameDocument(const QString &path, int formatId);
    /// Writes rows 1 to `lastRow`; the format sets the path's extension. Only a write that
    /// succeeded names the document, clears its changes and stores its nodes.
    WriteResult WriteSubtitleFile(const QString &path, int formatId, int lastRow);
    /// Enables what needs a document.
    void EnableDocumentCommands();
    /// The encoding of the document goes into the status bar and `lstEncoding`.
    void showEncoding();

    FileWindowState window;
    ListBox lstEncoding; ///< a pick reads the file again in that encoding

private:
    void connectMenu();
    bool mayDropChanges();
    bool mayWriteErrors();
    void loadPath(const QString &path, int format);
    void load(LoadRequest &request);
    void takeScdFile(const ScdFile &file);
    void documentWritten(const WriteResult &result);
    void fillFileProperties();

    Parts m_parts;
};

} // namespace kavro
