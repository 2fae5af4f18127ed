// The manual page and the help of the program tell the same.

#include "tests/cli/cli_fixture.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class ManPage : public CliTest
{
protected:
    ManPage()
    {
        QFile file(QStringLiteral(KAVRO_SOURCE_DIR) + u"/man/kavro-cli.1"_s);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        page = QString::fromUtf8(file.readAll()).replace(u"\\-"_s, u"-"_s);
    }

    QStringList found(const QString &pattern, const QString &text) const
    {
        QStringList names;
        const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
        for (auto match = expression.globalMatch(text); match.hasNext();)
            names.append(match.next().captured(1));
        names.removeDuplicates();
        names.sort();
        return names;
    }

    QString page;
};

TEST_F(ManPage, NamesTheVerbsAndTheirOptions)
{
    const QString help = QString::fromStdString(run({u"--help"_s}).out);
    const QStringList verbs = found(u"^  ([a-z]+) "_s, help);
    EXPECT_GE(verbs.size(), 4);
    const qsizetype at = page.indexOf(u".SH VERBS"_s);
    const QString described = page.sliced(at, page.indexOf(u".SH OPTIONS"_s) - at);
    EXPECT_EQ(found(u"^\\.TP\\n\\.B ([a-z]+)$"_s, described), verbs);

    QStringList options;
    for (const QString &verb : verbs)
        options += found(u"^  (?:-[a-z], )?(--?[a-z][a-z-]*)"_s,
                         QString::fromStdString(run({verb, u"--help"_s}).out));
    options.removeDuplicates();
    for (const QString &option : std::as_const(options))
        EXPECT_TRUE(page.contains(option + u' ') || page.contains(option + u'\n'))
            << qPrintable(option);
    EXPECT_GE(options.size(), 10);
}

} // namespace
} // namespace kavro::test
