#include "app/settings_files.h"

#include "app/navigation.h"
#include "core/document.h"
#include "core/folders.h"
#include "core/frame_rate_page.h"
#include "core/line_reader.h"
#include "core/ports.h"
#include "core/safe_file.h"
#include "core/settings_page.h"
#include "core/text.h"

#include <QFileInfo>

#include <optional>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

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
    if (!readBoxes(reader, settings.Check5) || !readBoxes(reader, settings.Check6)
        || !readBoxes(reader, settings.Check1) || !readBox(reader, settings.Check2)
        || reader.atEnd())
    {
        return false;
    }
    settings.languageFile = reader.readLine().toString();
    return readBox(reader, settings.Check3) && readBox(reader, settings.Check4);
}

void SettingsFiles::readRecent()
{
    LineReader reader;
    reader.open(m_parts.folders.path(Folder::System, u"recent.sdf"));
    while (!reader.atEnd()) {
        const QString line = reader.readLine().toString();
        if (line.isEmpty()) {
            continue;
        }
        m_recentAsRead.append(line);
        const QString path = toNative(line);
        if (!m_parts.settings.Check7[SettingsPage::CheckExists].isOn() || QFileInfo::exists(path)) {
            m_parts.navigation.Combo13.addItem(path);
        }
    }
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

void SettingsFiles::writeAtExit()
{
    keep(u"wizard.sdf");
    keep(u"Macro.sdf");
    keep(u"sr.sdf");
    writeRecent();
    writeLast();
    writePosition();
}

void SettingsFiles::writeRecent()
{
    constexpr qsizetype kept = 5;
    const QStringList &recent = m_parts.navigation.Combo13.items();
    const QStringList lines = recent.sliced(std::max<qsizetype>(recent.size() - kept, 0));
    // Another program may have written its own list since; only a change may replace that.
    if (lines != m_recentAsRead || isMissing(u"recent.sdf")) {
        writeLines(u"recent.sdf", lines);
    }
}

void SettingsFiles::writeLast()
{
    writeLines(u"last.sdf", {m_parts.document.subFileName, m_parts.ports.player.fileName()});
}

void SettingsFiles::writePosition()
{
    const ScreenPos &pos = m_parts.navigation.screenPos;
    QStringList lines;
    for (const double side : {pos.left, pos.top, pos.width, pos.height}) {
        lines.append(blankNumberText(side) + u' ');
    }
    writeLines(u"pos.sdf", lines);
}

void SettingsFiles::keep(QStringView name)
{
    if (isMissing(name)) {
        writeLines(name, {});
    }
}

bool SettingsFiles::isMissing(QStringView name) const
{
    return !QFileInfo::exists(m_parts.folders.path(Folder::System, name));
}

void SettingsFiles::writeLines(QStringView name, const QStringList &lines)
{
    const QString path = m_parts.folders.writablePath(Folder::System, name);
    if (!m_parts.folders.makeRoomFor(path).ok()) {
        return;
    }
    FileWriter writer(m_parts.store);
    writer.open(path);
    for (const QString &line : lines) {
        writer.writeLine(line);
    }
    // An exit has nobody left to tell a fault to; the old file is whole then.
    writer.commit();
}

} // namespace kavro
