#include "app/language_sections.h"
#include "tests/app/language_entries.h"

#include <QFile>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

QString quoted(const QString &text)
{
    return text.isEmpty() ? QString() : u'`' + text + u'`';
}

QString tables()
{
    QString text;
    for (const LanguageSection &section : languageSections()) {
        text += u"\n### [%1]\n\n"_s.arg(section.name);
        text += u"| entry | sets | text | tool tip |\n|---|---|---|---|\n"_s;
        for (const LanguageEntry &entry : entriesOf(section)) {
            text += u"| %1 | %2 | %3 | %4 |\n"_s.arg(QString::number(entry.index), entry.sets,
                                                     quoted(entry.caption), quoted(entry.tip));
        }
    }
    return text;
}

TEST(LanguageDocs, ListTheSectionsOfTheProgram)
{
    QFile page(QStringLiteral(KAVRO_SOURCE_DIR) + u"/docs/language-packs.md"_s);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    page.close();
    const qsizetype end = text.indexOf(u"\n### ["_s);
    const QString wanted = text.first(end < 0 ? text.size() : end) + tables();
    if (qEnvironmentVariableIsSet("KAVRO_WRITE_DOCS")) {
        ASSERT_TRUE(page.open(QIODevice::WriteOnly));
        page.write(wanted.toUtf8());
    } else {
        EXPECT_TRUE(text == wanted) << "docs/language-packs.md tells how to write it anew";
    }
}

} // namespace
} // namespace kavro::test
