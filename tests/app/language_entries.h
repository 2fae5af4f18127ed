#pragma once

#include "app/language_sections.h"

#include <QList>
#include <QString>

namespace kavro::test {

/// What an entry of a pack sets, with the English texts that it replaces. An empty caption or tool
/// tip is one that nobody sees.
struct LanguageEntry
{
    int index = 0;
    QString sets;
    QString caption;
    QString tip;
};

/// All entries of a section that have an English text, by rising index.
QList<LanguageEntry> entriesOf(const LanguageSection &section);

} // namespace kavro::test
