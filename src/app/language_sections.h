#pragma once

#include "core/language.h"

#include <QStringView>

#include <span>

namespace kavro {

/// One entry of a section: the control that it sets, and the English texts that stand there until
/// a pack replaces them. A control that doesn't exist is passed over.
struct LanguageRow
{
    int index = 0;
    /// "Check3(7)" on the section's form, "frmTip.cmdOk" on another; without a name, as in
    /// "frmTip." or an empty text, the form's own caption.
    QStringView control;
    QStringView caption; ///< null where what the control shows isn't the pack's: a state, a value
    QStringView tip = {};
    int tab = -1; ///< the tab, where the control is a set of tabs
};

/// What the entries of a section set behind those of its groups.
enum class LanguageTarget {
    Controls,      ///< what `rows` tell
    MainNodes,     ///< captions of the main tree, in the order of `treeNodes`
    SettingsNodes, ///< captions of the Settings tree; `rows` hold the English ones
    Texts,         ///< texts that belong to no control, by the English ones in `rows`
    VariableHelp,  ///< descriptions of the system variables; `rows` hold the English ones
};

/// A section of a language pack.
///
/// Entries 0 to 50 set the items of its first group of the language table, the next 51 those of
/// the second; its other entries follow behind them.
struct LanguageSection
{
    QStringView name;                       ///< as it stands in the brackets
    QStringView form;                       ///< form of its controls
    std::span<const LanguageRow> rows = {}; ///< by rising index
    std::span<const LangGroup> groups = {};
    LanguageTarget target = LanguageTarget::Controls;
};

/// All sections in the order in which a pack lists them.
std::span<const LanguageSection> languageSections();

/// The section with that name, exactly; nullptr for none.
const LanguageSection *languageSection(QStringView name);

constexpr int settingsNodeCount = 7;
constexpr int variableCount = 201;

// The runs that the table is put together from, one a source.
std::span<const LanguageSection> mainSections();
std::span<const LanguageSection> editorSections();
std::span<const LanguageSection> toolSections();
std::span<const LanguageSection> settingsSections();
std::span<const LanguageSection> dialogSections();
std::span<const LanguageSection> windowSections();
std::span<const LanguageSection> messageSections();
std::span<const LanguageSection> reportSections();
std::span<const LanguageRow> variableHelpRows();

} // namespace kavro
