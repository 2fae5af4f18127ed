#include "core/language.h"

#include "core/language_defaults.h"

namespace kavro {

namespace {

const QString noText;

template <class Table>
auto *entry(Table &table, LangGroup group, int item)
{
    using Text = decltype(&table[0][0]);
    const auto row = static_cast<std::size_t>(group);
    const auto column = static_cast<std::size_t>(item);
    return item >= 0 && row < table.size() && column < table[row].size() ? &table[row][column]
                                                                         : Text(nullptr);
}

} // namespace

void LanguageTable::SetDefaultTexts()
{
    m_texts = {};
    m_tips = {};
    for (const DefaultText &row : defaultTexts()) {
        setText(row.group, row.item, row.text.toString());
        setTip(row.group, row.item, row.tip.toString());
    }
}

const QString &LanguageTable::text(LangGroup group, int item) const
{
    const QString *found = entry(m_texts, group, item);
    return found != nullptr ? *found : noText;
}

const QString &LanguageTable::tip(LangGroup group, int item) const
{
    const QString *found = entry(m_tips, group, item);
    return found != nullptr ? *found : noText;
}

void LanguageTable::setText(LangGroup group, int item, const QString &text)
{
    if (QString *found = entry(m_texts, group, item)) {
        *found = text;
    }
}

void LanguageTable::setTip(LangGroup group, int item, const QString &tip)
{
    if (QString *found = entry(m_tips, group, item)) {
        *found = tip;
    }
}

QString LanguageTable::ownText(const QString &english) const
{
    return ownTexts.value(english, english);
}

} // namespace kavro
