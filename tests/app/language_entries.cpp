#include "tests/app/language_entries.h"

#include "app/tree_nodes.h"
#include "core/language_defaults.h"

namespace kavro::test {

using namespace Qt::StringLiterals;

namespace {

QString setsOf(const LanguageSection &section, const LanguageRow &row)
{
    if (section.target == LanguageTarget::SettingsNodes) {
        return u"node %1"_s.arg(row.index);
    }
    if (section.target == LanguageTarget::VariableHelp) {
        return u"sysVar[%1]"_s.arg(row.index);
    }
    if (section.target == LanguageTarget::Texts) {
        return u"text %1"_s.arg(row.index);
    }
    const bool elsewhere = row.control.contains(u'.');
    if (row.control.isEmpty() || row.control.endsWith(u'.')) {
        return (elsewhere ? row.control.chopped(1) : section.form).toString();
    }
    const QString form = elsewhere ? QString() : section.form.toString() + u'.';
    const QString control = form + row.control.toString();
    return row.tab < 0 ? control : control + u", tab %1"_s.arg(row.tab);
}

} // namespace

QList<LanguageEntry> entriesOf(const LanguageSection &section)
{
    QList<LanguageEntry> entries;
    for (std::size_t i = 0; i < section.groups.size(); ++i) {
        for (const DefaultText &text : defaultTexts()) {
            if (text.group == section.groups[i]) {
                entries.append({static_cast<int>(i) * LanguageTable::items + text.item,
                                u"lang(%1,%2)"_s.arg(static_cast<int>(text.group)).arg(text.item),
                                text.text.toString(), text.tip.toString()});
            }
        }
    }
    if (section.target == LanguageTarget::MainNodes) {
        for (const TreeNode &node : treeNodes()) {
            entries.append({static_cast<int>(entries.size()), u"node \"%1\""_s.arg(node.key),
                            node.caption.toString(), QString()});
        }
    }
    for (const LanguageRow &row : section.rows) {
        entries.append(
            {row.index, setsOf(section, row), row.caption.toString(), row.tip.toString()});
    }
    return entries;
}

} // namespace kavro::test
