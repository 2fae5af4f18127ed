#include "app/language_sections.h"

#include <algorithm>
#include <vector>

namespace kavro {

std::span<const LanguageSection> languageSections()
{
    static const std::vector<LanguageSection> all = [] {
        std::vector<LanguageSection> sections;
        for (const auto &run :
             {mainSections(), editorSections(), toolSections(), settingsSections(),
              dialogSections(), windowSections(), messageSections(), reportSections()})
        {
            sections.insert(sections.end(), run.begin(), run.end());
        }
        return sections;
    }();
    return all;
}

const LanguageSection *languageSection(QStringView name)
{
    const std::span<const LanguageSection> sections = languageSections();
    const auto found = std::ranges::find(sections, name, &LanguageSection::name);
    return found != sections.end() ? &*found : nullptr;
}

} // namespace kavro
