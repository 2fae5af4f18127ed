#include "app/settings_files.h"

#include "app/navigation.h"
#include "controls/list_box.h"
#include "core/document.h"
#include "core/folders.h"
#include "core/frame_rate_page.h"
#include "core/line_reader.h"
#include "core/ports.h"
#include "core/safe_file.h"
#include "core/settings_page.h"
#include "core/text.h"

#include <QFileInfo>

#include <filesystem>
#include <optional>
#include <system_error>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView scriptFile = u"script.sdf";

/// A number as these files hold it.
QString numberLine(double number)
{
    return blankNumberText(number) + u' ';
}

template <class Boxes>
void appendBoxes(QStringList &lines, const Boxes &boxes)
{
    for (const CheckBox &box : boxes) {
        lines.append(numberLine(box.value()));
    }
}

/// A number line of at most `highest`; none at the end of the file and for any other number.
std::optional<int> readNumber(LineReader &reader, int highest)
{
    if (reader.atEnd()) {
        return std::nullopt;
    }
    const int number = intVal(reader.readLine());
    return number >= 0 && number <= highest ? std::optional(number) : std::nullopt;
}

bool readBox(LineReader &reader, CheckBox &box)
{
    const std::optional<int> value = readNumber(reader, 1);
    if (value) {
        box.setOn(*value == 1);
    }
    return value.has_value();
}

/// Only a file that is known to be gone is: one that can't be looked at may well be there.
bool isGone(const QString &path)
{
    std::error_code fault;
    const auto status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), fault);
    return status.type() == std::filesystem::file_type::not_found;
}

template <class Boxes>
bool readBoxes(LineReader &reader, Boxes &boxes)
{
    for (CheckBox &box : boxes) {
        if (!readBox(reader, box)) {
            return false;
        }
    }
    return true;
}

} // namespace

SettingsFiles::SettingsFiles(const Parts &parts) : m_parts(parts) {}

void SettingsFiles::LoadSettingsFile()
{
    // The recent files stand behind the options: where those break off, they aren't read.
    if (readOptions()) {
        readRecent();
    }
    readScript();
}

bool SettingsFiles::readOptions()
{
    SettingsPage &settings = m_parts.settings;
    LineReader reader;
    if (!reader.open(m_parts.folders.path(Folder::Settings, u"set.sdf")).ok()
        || !readBoxes(reader, settings.Check7))
    {
        return false;
    }
    const std::optional<int> rate = readNumber(reader, settings.Combo2.count() - 1);
    if (!rate) {
        return false;
    }
    settings.Combo2.setSelected(*rate);
    m_parts.frameRates.optFrameRate[*rate].setOn();
    // Also where that rate was in force already.
    for (DropList &list : m_parts.frameRates.Combo14) {
        list.setSelected(*rate);
    }
    if (!readBoxes(reader, settings.Check5) || !readBoxes(reader, settings.Check6)
        || !readBoxes(reader, settings.Check1) || !readBox(reader, settings.Check2)
        || reader.atEnd())
    {
        return false;
    }
    settings.languageFile = reader.readLine().toString();
    return readBox(reader, settings.Check3) && readBox(reader, settings.Check4);
}

void SettingsFiles::readScript()
{
    DropList &cmbScript = m_parts.settings.cmbScript;
    LineReader reader;
    reader.open(m_parts.folders.path(Folder::Settings, scriptFile));
    const QString script = reader.readLine().toString();
    if (script.isEmpty() || !m_parts.settings.Check6[0].isOn()) {
        return;
    }
    if (!cmbScript.items().contains(script)) {
        cmbScript.addItem(script);
    }
    cmbScript.setSelected(static_cast<int>(cmbScript.items().indexOf(script)));
}

FileStatus SettingsFiles::writeOptions()
{
    const SettingsPage &settings = m_parts.settings;
    QStringList lines;
    appendBoxes(lines, settings.Check7);
    lines.append(numberLine(settings.Combo2.selected()));
    appendBoxes(lines, settings.Check5);
    appendBoxes(lines, settings.Check6);
    appendBoxes(lines, settings.Check1);
    lines.append(numberLine(settings.Check2.value()));
    lines.append(settings.languageFile);
    lines.append(numberLine(settings.Check3.value()));
    lines.append(numberLine(settings.Check4.value()));
    const FileStatus status = writeLines(Folder::Settings, u"set.sdf", lines);
    // The 22 lines have no place for it.
    return status.ok()
               ? writeLines(Folder::Settings, scriptFile, {settings.cmbScript.selectedText()})
               : status;
}

void SettingsFiles::readRecent()
{
    m_recentAsRead.clear();
    LineReader reader;
    reader.open(m_parts.folders.path(Folder::System, u"recent.sdf"));
    while (!reader.atEnd()) {
        const QString line = reader.readLine().toString();
        if (line.isEmpty()) {
            continue;
        }
        m_recentAsRead.append(line);
        const QString path = toNative(line);
        if (!m_parts.settings.Check7[SettingsPage::CheckExists].isOn() || !isGone(path)) {
            m_parts.navigation.Combo13.addItem(path);
        }
    }
}

void SettingsFiles::readSearches()
{
    LineReader reader;
    reader.open(m_parts.folders.path(Folder::System, u"sr.sdf"));
    while (!reader.atEnd()) {
        m_searchesAsRead.append(reader.readLine().toString());
    }
    QStringList searches = m_searchesAsRead;
    searches.removeAll({});
    m_parts.searches.setItems(searches);
}

SettingsFiles::LastFiles SettingsFiles::lastFiles() const
{
    LineReader reader;
    reader.open(m_parts.folders.path(Folder::System, u"last.sdf"));
    LastFiles files;
    files.subtitle = toNative(reader.readLine());
    files.movie = toNative(reader.readLine());
    return files;
}

// An exit has nobody left to tell a fault to; the old files are whole then.
void SettingsFiles::writeAtExit()
{
    keep(u"wizard.sdf");
    keep(u"Macro.sdf");
    writeSearches();
    writeRecent();
    writeLast();
    writePosition();
}

void SettingsFiles::writeRecent()
{
    constexpr qsizetype kept = 5;
    // A confirmed Settings window has read the stored list once more.
    QStringList recent = m_parts.navigation.Combo13.items();
    recent.removeDuplicates();
    const QStringList lines = recent.sliced(std::max<qsizetype>(recent.size() - kept, 0));
    // Another program may have written its own list since; only a change may replace that.
    if (lines != m_recentAsRead || isMissing(u"recent.sdf")) {
        writeLines(Folder::System, u"recent.sdf", lines);
    }
}

void SettingsFiles::writeSearches()
{
    QStringList searches = m_parts.searches.items();
    searches.removeAll({});
    if (searches != m_searchesAsRead || isMissing(u"sr.sdf")) {
        writeLines(Folder::System, u"sr.sdf", searches);
    }
}

void SettingsFiles::writeLast()
{
    writeLines(Folder::System, u"last.sdf",
               {m_parts.document.subFileName, m_parts.ports.player.fileName()});
}

void SettingsFiles::writePosition()
{
    const ScreenPos &pos = m_parts.navigation.screenPos;
    QStringList lines;
    for (const double side : {pos.left, pos.top, pos.width, pos.height}) {
        lines.append(numberLine(side));
    }
    writeLines(Folder::System, u"pos.sdf", lines);
}

void SettingsFiles::keep(QStringView name)
{
    if (isMissing(name)) {
        writeLines(Folder::System, name, {});
    }
}

bool SettingsFiles::isMissing(QStringView name) const
{
    return !QFileInfo::exists(m_parts.folders.path(Folder::System, name));
}

FileStatus SettingsFiles::writeLines(Folder folder, QStringView name, const QStringList &lines)
{
    const QString path = m_parts.folders.writablePath(folder, name);
    const FileStatus room = m_parts.folders.makeRoomFor(path);
    if (!room.ok()) {
        return room;
    }
    FileWriter writer(m_parts.store);
    writer.open(path);
    for (const QString &line : lines) {
        writer.writeLine(line);
    }
    return writer.commit();
}

} // namespace kavro
