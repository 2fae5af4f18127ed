#include "app/file_commands.h"

#include "app/navigation.h"
#include "app/scd_file.h"
#include "core/action_trace.h"
#include "core/clipboard_panel.h"
#include "core/diagnose_host.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/encoding.h"
#include "core/folders.h"
#include "core/font_lists.h"
#include "core/format_lists.h"
#include "core/language.h"
#include "core/main_menu.h"
#include "core/messages.h"
#include "core/partition_page.h"
#include "core/player_page.h"
#include "core/ports.h"
#include "core/settings_page.h"
#include "core/text.h"
#include "formats/file_filters.h"
#include "formats/format_table.h"
#include "formats/load_subfile.h"
#include "formats/node_file.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum ActionCode {
    NewCode = 101,
    LoadCode = 102,
    AddCode = 103,
    SaveCode = 104,
    SaveSettingsCode = 105,
    PrintCode = 106
};

enum HelpPage { LoadPage = 22, AddPage = 23, SavePage = 24, SaveSettingsPage = 29 };

enum FileText { LoadText = 0, SaveText = 1, SaveSettingsText = 2 };

/// Rows that a write left out are in no file yet.
bool isWhole(const WriteResult &result)
{
    return result.kind == WriteResult::Kind::Written && result.firstRowLeft == 0;
}

} // namespace

FileCommands::FileCommands(Form &frmMain, Form &frmFile, const Parts &parts)
    : window(frmFile, parts.ports, parts.folders, parts.messages, parts.language, parts.trace),
      lstEncoding(frmMain, u"lstEncoding"_s),
      m_parts(parts)
{
    for (const EncodingEntry &entry : textEncodings()) {
        lstEncoding.addItem(QString::fromLatin1(entry.label));
    }
    connectMenu();
}

void FileCommands::connectMenu()
{
    MainMenu &menu = m_parts.menu;
    const auto run = [this](Button &entry, auto command) {
        QObject::connect(&entry, &Button::clicked, &entry, [this, command] { (this->*command)(); });
    };
    run(menu.mnuNewFile, &FileCommands::mnuNewFile);
    run(menu.mnuLoadFile, &FileCommands::mnuLoadFile);
    run(menu.mnuAddFile, &FileCommands::mnuAddFile);
    run(menu.mnuSave, &FileCommands::mnuSave);
    run(menu.mnuSavesubfile, &FileCommands::mnuSavesubfile);
    run(menu.mnuSaveSettings, &FileCommands::mnuSaveSettings);
    run(menu.mnuPrint, &FileCommands::mnuPrint);
    QObject::connect(&menu.mnuReopen, &Button::clicked, &menu.mnuReopen,
                     [this] { mnuReopen(lstEncoding.selected()); });
    QObject::connect(&lstEncoding, &ListBox::picked, &lstEncoding,
                     [this](int entry) { mnuReopen(entry); });
    for (Button *entry : {&menu.mnuAddFile, &menu.mnuSave, &menu.mnuSavesubfile, &menu.mnuPrint,
                          &menu.mnuPreview, &menu.mnuReopen, &menu.mnuSearch, &menu.mnuReplace,
                          &menu.mnuSearchAgain, &menu.mnuGotoLine})
    {
        entry->setEnabled(false);
    }
}

bool FileCommands::mayDropChanges()
{
    if (!m_parts.document.fileChanged()) {
        return true;
    }
    return m_parts.messages.ShowMessage(
               {u"File %1 has been changed and not saved./n/nDo you want to continue creating new "
                "file?"_s,
                {m_parts.document.subFileName}},
               Answer::No, u"yesno"_s, u"Warning: File not saved"_s)
           == Answer::Yes;
}

void FileCommands::mnuNewFile()
{
    if (!mayDropChanges()) {
        return;
    }
    SubtitleDocument &document = m_parts.document;
    const int format = m_parts.formats.combo3.selected() + 1;
    SetFileName(m_parts.folders.path(Folder::Files, u"Noname"), format);
    document.startNew();
    document.setFileChanged(false);
    document.subtitleChanged = false;
    EnableDocumentCommands();
    showEncoding();
    m_parts.trace.RecordAction({}, NewCode);
}

void FileCommands::mnuLoadFile()
{
    m_parts.navigation.autoHelp(LoadPage);
    if (window.show({.info = m_parts.language.text(LangGroup::File, LoadText)})) {
        loadPath(window.lblFullName.caption(), window.List3.selected());
    }
}

void FileCommands::dropFile(const QString &path)
{
    loadPath(path, UnknownFormat);
}

void FileCommands::loadPath(const QString &path, int format)
{
    LoadRequest request{.path = path, .format = format};
    if (path.endsWith("scd"_L1, Qt::CaseInsensitive)) {
        ScdFile file;
        const FileStatus status = readScdFile(path, file);
        if (!status.ok()) {
            m_parts.messages.ShowMessage({u"File '%1' can't be loaded./n%2"_s, {path}, status.text},
                                         Answer::Ok, u"ok"_s,
                                         m_parts.language.text(LangGroup::Report, 13));
            return;
        }
        takeScdFile(file);
        // The filter was that of the setting file; the subtitle's format is still to be found.
        request = {.path = toNative(file.subtitle)};
    }
    load(request);
    m_parts.trace.RecordAction({}, LoadCode);
}

void FileCommands::load(LoadRequest &request)
{
    using Kind = LoadResult::Kind;
    const Kind kind = m_parts.loader.LoadSubFile(request).kind;
    // A file of too many lines leaves an empty document, of which the tree has to tell too.
    if (kind == Kind::Loaded || (kind == Kind::LimitReached && request.nextRow == 1)) {
        m_parts.diagnose.diagnoseWithoutRepairs();
    }
}

void FileCommands::takeScdFile(const ScdFile &file)
{
    Grid &grid = m_parts.partition.grid;
    QList<GridRow> rows{grid.allRows().constFirst()};
    for (const auto &[name, length] : file.parts) {
        rows.append({QString::number(rows.size()), name, length});
    }
    rows.append(GridRow());
    grid.setAllRows(rows);

    ClipboardPanel &panel = m_parts.clipboard;
    panel.List1.setItems(file.clipboard);
    if (!file.clipboard.isEmpty()) {
        panel.List1.setSelected(0);
        for (Button &button : panel.command4) {
            button.setEnabled(true);
        }
    }
    ListBox &fonts = m_parts.fonts.Combo9[0];
    if (file.font && *file.font >= 0 && *file.font < fonts.count()) {
        fonts.setSelected(*file.font);
    }
}

void FileCommands::mnuAddFile()
{
    const SubtitleDocument &document = m_parts.document;
    m_parts.navigation.autoHelp(AddPage);
    window.List3.setSelected(document.curFormatId);
    window.goTo(document.subFileName);
    if (!window.show({.info = m_parts.language.ownText(u"Add subtitle file"_s)})) {
        return;
    }
    const SubtitleDocument::Act act(m_parts.document);
    LoadRequest request{.path = window.lblFullName.caption(),
                        .format = window.List3.selected(),
                        .nextRow = document.editor.grdSubEdit.rows() - 1};
    load(request);
    m_parts.trace.RecordAction({}, AddCode);
}

void FileCommands::mnuReopen(int entry)
{
    const std::span<const EncodingEntry> encodings = textEncodings();
    if (entry < 0 || static_cast<std::size_t>(entry) >= encodings.size()
        || !m_parts.menu.mnuReopen.isEnabled())
    {
        return;
    }
    const SubtitleDocument &document = m_parts.document;
    LoadRequest request{.path = document.subFileName, .format = document.savedFormatId};
    request.encoding.encoding =
        encodingByName(QString::fromLatin1(encodings[static_cast<std::size_t>(entry)].name));
    load(request);
    showEncoding();
}

bool FileCommands::mnuSave()
{
    const SubtitleDocument &document = m_parts.document;
    if (document.savedPath.isEmpty() || document.savedPath != document.subFileName
        || document.savedFormatId != document.curFormatId)
    {
        return mnuSavesubfile();
    }
    // The path is taken as it stands: a file may hold a format under another one's extension.
    const WriteResult result = m_parts.writer.CreateSubFile({.format = document.curFormatId,
                                                             .lastRow = document.subtitleCount(),
                                                             .showProgress = true,
                                                             .path = document.savedPath,
                                                             .literal = true,
                                                             .askOverwrite = false});
    if (result.kind == WriteResult::Kind::Written) {
        documentWritten(result);
    }
    m_parts.trace.RecordAction({}, SaveCode);
    return isWhole(result);
}

bool FileCommands::mayWriteErrors()
{
    if (m_parts.document.errorCount <= 0) {
        return true;
    }
    const QString count = blankNumberText(m_parts.document.errorCount);
    return m_parts.messages.ShowMessage(
               {u"File contains%1 errors. Do you want to save this file anyway."_s, {count}},
               Answer::Yes, u"yesno"_s, u"File Error"_s)
           == Answer::Yes;
}

bool FileCommands::mnuSavesubfile()
{
    const SubtitleDocument &document = m_parts.document;
    m_parts.navigation.autoHelp(SavePage);
    if (!mayWriteErrors()) {
        return false;
    }
    // A filter that a load left behind may be none that can be saved in.
    if (m_parts.settings.Check4.isOn() || !window.isFormatChosen()) {
        window.List3.setSelected(document.curFormatId);
    }
    if (!document.subFileName.isEmpty()) {
        window.goTo(document.subFileName);
    }
    if (!window.show({.info = m_parts.language.text(LangGroup::File, SaveText),
                      .nameEnabled = true,
                      .mediaName = true,
                      .formatNeeded = true}))
    {
        return false;
    }
    if (!window.isFormatChosen()) {
        m_parts.messages.ShowMessage({u"A subtitle can't be saved under the entry '%1'. Please "
                                      "choose its format."_s,
                                      {window.Label5.caption()}},
                                     Answer::Ok, u"ok"_s, u"Warning"_s);
        return false;
    }
    const WriteResult result = WriteSubtitleFile(window.lblFullName.caption(),
                                                 window.List3.selected(), document.subtitleCount());
    m_parts.trace.RecordAction({}, SaveCode);
    return isWhole(result);
}

WriteResult FileCommands::WriteSubtitleFile(const QString &path, int formatId, int lastRow)
{
    WriteResult result = m_parts.writer.CreateSubFile(
        {.format = formatId, .lastRow = lastRow, .showProgress = true, .path = path});
    // Only a write that succeeded may name the document and end its changes.
    if (result.kind == WriteResult::Kind::Written) {
        nameDocument(result.path, formatId);
        m_parts.navigation.addRecent(result.path);
        documentWritten(result);
    }
    return result;
}

void FileCommands::documentWritten(const WriteResult &result)
{
    SubtitleDocument &document = m_parts.document;
    document.savedPath = result.path;
    document.savedFormatId = document.curFormatId;
    document.markSaved(isWhole(result));
    m_parts.nodeFile.SaveSubControl(result.path);
    m_parts.menu.mnuReopen.setEnabled(true);
    showEncoding();
}

void FileCommands::mnuSaveSettings()
{
    m_parts.navigation.autoHelp(SaveSettingsPage);
    window.List3.setSelected(SettingFile);
    window.txtFilename.setText({});
    if (window.show({.info = m_parts.language.text(LangGroup::File, SaveSettingsText),
                     .nameEnabled = true,
                     .mediaName = true}))
    {
        m_parts.trace.RecordAction({}, SaveSettingsCode);
    }
}

void FileCommands::mnuPrint()
{
    const SubtitleDocument &document = m_parts.document;
    const Grid &grid = document.editor.grdSubEdit;
    QStringList lines;
    for (int row = 1; row <= document.subtitleCount(); ++row) {
        QString line = QString::number(row).rightJustified(5, u'0');
        for (int col = StartColumn; col < ColumnCount; ++col) {
            line += u' ' + trimmed(grid.text(row, col)).toString();
        }
        lines.append(line);
    }
    m_parts.trace.RecordAction({}, PrintCode);
    m_parts.ports.printer.print(nameOf(document.subFileName).toString(), lines);
}

void FileCommands::EnableDocumentCommands()
{
    EditorPage &editor = m_parts.document.editor;
    MainMenu &menu = m_parts.menu;
    for (Control *control : std::initializer_list<Control *>{
             &editor.SSTab2, &editor.SSTab3, &editor.rtfEdit, &editor.cmdInvCalc, &menu.mnuAddFile,
             &menu.mnuSave, &menu.mnuSavesubfile, &menu.mnuPreview, &menu.mnuSearch,
             &menu.mnuReplace, &menu.mnuSearchAgain, &menu.mnuGotoLine, &m_parts.formats.Command39,
             &editor.Label74, &editor.Label75, &editor.btnNode[0]})
    {
        control->setEnabled(true);
    }
    for (Button &button : m_parts.document.player.Command49) {
        button.setEnabled(true);
    }
    m_parts.formats.Combo8[1].setAvailable(true);
    menu.mnuPrint.setEnabled(m_parts.ports.printer.isAvailable());
    // A new document has no file to be read again.
    menu.mnuReopen.setEnabled(m_parts.document.savedFormatId != UnknownFormat);
}

} // namespace kavro
