#pragma once

#include "app/language_sections.h"

#include <QString>
#include <QStringView>

#include <array>
#include <functional>
#include <span>

namespace kavro {

class Folders;
class Form;
class Messages;
struct SettingsPage;

/// The captions and tool tips of all windows: English from the table of sections, then those of
/// the language pack that the settings name.
class LanguagePack
{
public:
    /// All are borrowed and outlive the pack.
    struct Parts
    {
        LanguageTable &language;
        std::span<QString> nodeCaption; ///< of the main tree
        SettingsPage &settings;
        Messages &messages;
        const Folders &folders;
        std::function<Form *(QStringView name)> form; ///< nullptr for one that isn't there
    };

    explicit LanguagePack(const Parts &parts);

    /// Gives every control of the table its English caption and tool tip.
    void setDesignCaptions();

    /// Applies `languageFile`; nothing when that is empty. A pack of another version is refused
    /// with a message; one that breaks off with a fault keeps what was read, with a message too.
    /// Texts that are made from the language table are to be made behind this.
    void LoadLanguage();

    /// Lists the packs of the folder in `List1` and `List2` of the settings.
    void ScanLanguageFiles();

    std::array<QString, settingsNodeCount> settingsNodeCaption; ///< of the Settings tree
    std::array<QString, variableCount> sysVarHelp; ///< of each system variable, by its number

private:
    /// The two texts of an entry.
    struct Texts
    {
        QString caption;
        QString tip;
    };

    class Lines;

    bool readPack(Lines &lines);
    bool readHeader(Lines &lines);
    bool readBody(Lines &lines);
    void applyEntry(const LanguageSection &section, QStringView line);
    void apply(const LanguageSection &section, int index, const Texts &texts);
    void setRow(const LanguageSection &section, const LanguageRow &row, const Texts &texts);

    Parts m_parts;
};

} // namespace kavro
