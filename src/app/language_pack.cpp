#include "app/language_pack.h"

#include "app/version.h"
#include "controls/form.h"
#include "controls/tab_strip.h"
#include "core/folders.h"
#include "core/lang_line.h"
#include "core/line_reader.h"
#include "core/messages.h"
#include "core/settings_page.h"
#include "core/text.h"

#include <algorithm>
#include <optional>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// What stands behind the first `mark`; empty without one.
QString behind(const QString &text, QStringView mark)
{
    const qsizetype at = text.indexOf(mark);
    return at < 0 ? QString() : text.sliced(at + mark.size());
}

/// Sets an element of a store; nothing outside it.
void setElement(std::span<QString> store, int index, const QString &text)
{
    if (index >= 0 && static_cast<std::size_t>(index) < store.size()) {
        store[static_cast<std::size_t>(index)] = text;
    }
}

} // namespace

/// A pack line by line, unscrambled and without blanks at the ends.
class LanguagePack::Lines
{
public:
    explicit Lines(const QString &path) { m_reader.open(path); }

    /// Nothing at the end of the file and behind a fault.
    std::optional<QString> next()
    {
        if (m_damaged || m_reader.atEnd()) {
            return std::nullopt;
        }
        std::optional<QString> line = DecodeLangLine(m_reader.readLine(), languageKey);
        m_damaged = !line;
        return line ? std::optional(trimmed(*line).toString()) : std::nullopt;
    }

    [[nodiscard]] bool ok() const { return !m_damaged && m_reader.status().ok(); }

private:
    LineReader m_reader;
    bool m_damaged = false;
};

LanguagePack::LanguagePack(const Parts &parts) : m_parts(parts) {}

void LanguagePack::setDesignCaptions()
{
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageRow &row : section.rows) {
            apply(section, row.index, {row.caption.toString(), row.tip.toString()});
        }
    }
}

void LanguagePack::LoadLanguage()
{
    const QString file = toNative(m_parts.settings.languageFile);
    if (file.isEmpty()) {
        return;
    }
    Lines lines(file);
    if (!readPack(lines)) {
        const LanguageTable &language = m_parts.language;
        m_parts.messages.ShowMessage(language.text(LangGroup::Common, 40), Answer::Ok, u"ok"_s,
                                     language.text(LangGroup::Common, 41));
    }
}

/// False for a fault; what was read until then stays.
bool LanguagePack::readPack(Lines &lines)
{
    const std::optional<QString> first = lines.next();
    if (!first) {
        return false;
    }
    const QString version = behind(*first, u":=");
    if (version == versionNumber()) {
        return readHeader(lines) && readBody(lines);
    }
    m_parts.messages.ShowMessage({u"Wrong language pack version. You are trying to load version "
                                  "%1./nPack will not be loaded."_s,
                                  {version}},
                                 Answer::Ok, u"ok"_s, m_parts.language.text(LangGroup::Report, 13));
    return true;
}

bool LanguagePack::readHeader(Lines &lines)
{
    LanguageTable &language = m_parts.language;
    for (QString *value :
         {&language.languageName, &language.languageAuthor, &language.languageFolder}) {
        const std::optional<QString> line = lines.next();
        if (!line) {
            return false;
        }
        *value = behind(*line, u":=");
    }
    return lines.next().has_value();
}

bool LanguagePack::readBody(Lines &lines)
{
    const LanguageSection *section = nullptr;
    while (const std::optional<QString> line = lines.next()) {
        if (*line == u"[End Pack]") {
            return true;
        }
        if (line->startsWith(u'[') && line->endsWith(u']')) {
            // A section that nobody knows leaves the one before it in force.
            const auto *found = languageSection(QStringView(*line).sliced(1).chopped(1));
            section = found ? found : section;
        } else if (section && !line->isEmpty() && !line->startsWith(u"//")) {
            applyEntry(*section, *line);
        }
    }
    return lines.ok();
}

// The places of "," and "^" decide, whatever stands there: without a "," the text begins with the
// line, without a "^" it goes to the line's end.
void LanguagePack::applyEntry(const LanguageSection &section, QStringView line)
{
    const qsizetype comma = line.indexOf(u',');
    const QStringView number = comma < 0 ? line : line.first(comma);
    const QStringView texts = line.sliced(comma + 1);
    const qsizetype caret = texts.indexOf(u'^');
    if (caret < 0) {
        apply(section, intVal(number), {texts.toString(), {}});
    } else {
        apply(section, intVal(number),
              {texts.first(caret).toString(), texts.sliced(caret + 1).toString()});
    }
}

void LanguagePack::apply(const LanguageSection &section, int index, const Texts &texts)
{
    if (index < 0) {
        return;
    }
    const auto group = static_cast<std::size_t>(index / LanguageTable::items);
    if (group < section.groups.size()) {
        const int item = index % LanguageTable::items;
        m_parts.language.setText(section.groups[group], item, texts.caption);
        m_parts.language.setTip(section.groups[group], item, texts.tip);
        return;
    }
    switch (section.target) {
    case LanguageTarget::MainNodes: setElement(m_parts.nodeCaption, index, texts.caption); break;
    case LanguageTarget::SettingsNodes:
        setElement(settingsNodeCaption, index, texts.caption);
        break;
    case LanguageTarget::VariableHelp: setElement(sysVarHelp, index, texts.caption); break;
    case LanguageTarget::Controls:
    case LanguageTarget::Texts: {
        const auto row = std::ranges::find(section.rows, index, &LanguageRow::index);
        if (row == section.rows.end()) {
            return;
        }
        if (section.target == LanguageTarget::Controls) {
            setRow(section, *row, texts);
        } else if (!texts.caption.isEmpty()) {
            m_parts.language.ownTexts.insert(row->caption.toString(), texts.caption);
        }
    }
    }
}

void LanguagePack::setRow(const LanguageSection &section, const LanguageRow &row,
                          const Texts &texts)
{
    const qsizetype dot = row.control.indexOf(u'.');
    Form *form = m_parts.form(dot < 0 ? section.form : row.control.first(dot));
    if (!form) {
        return;
    }
    const QStringView name = row.control.sliced(dot + 1);
    if (name.isEmpty()) {
        form->setCaption(texts.caption);
        return;
    }
    Control *control = form->control(name);
    if (auto *tabs = qobject_cast<TabStrip *>(control)) {
        tabs->setTabCaption(row.tab, texts.caption);
        tabs->setTabToolTip(row.tab, texts.tip);
    } else if (control) {
        auto *captioned = qobject_cast<CaptionControl *>(control);
        if (captioned && !row.caption.isNull()) {
            captioned->setCaption(texts.caption);
        }
        control->setToolTip(texts.tip);
    }
}

void LanguagePack::ScanLanguageFiles()
{
    ListBox &names = m_parts.settings.List1;
    ListBox &paths = m_parts.settings.List2;
    names.clear();
    paths.clear();
    const QString current = toNative(m_parts.settings.languageFile);
    const QStringList files = m_parts.folders.files(Folder::Language, u"*.lng");
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString path = m_parts.folders.path(Folder::Language, files[i]);
        Lines lines(path);
        std::array<QString, 3> values;
        for (QString &value : values) {
            value = behind(lines.next().value_or(QString()), u"=");
        }
        const auto &[version, name, author] = values;
        // Any 4.0 pack is listed, while a load wants the program's whole version.
        if (!version.startsWith(u"4.0")) {
            continue;
        }
        const QString title = name + m_parts.language.ownText(u" by: "_s) + author;
        if (!names.items().contains(title, Qt::CaseInsensitive)) {
            names.addItem(title);
            paths.addItem(path);
        }
        if (path == current) {
            // The number of the file, which counts those that are not listed too.
            names.setSelected(static_cast<int>(i));
        }
    }
}

} // namespace kavro
