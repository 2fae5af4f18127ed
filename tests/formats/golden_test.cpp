#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// What writers may meet: styles, three lines, empty columns, long hours, odd times.
void fillDocument(FormatsFixture &fixture)
{
    fixture.setRows({
        {u"1"_s, u"00:00:01,999"_s, u"00:00:03,456"_s, u" First line"_s, u" second line"_s,
         u" third line"_s},
        {u"2"_s, u"00:00:10,005"_s, u"00:00:11,995"_s, u" Bold é"_s},
        {u"3"_s, u"00:59:59,960"_s, u"01:00:00,040"_s, u" Italic, with a comma"_s, u" and more"_s},
        {u"4"_s, u"09:59:59,500"_s, u"12:34:56,789"_s, u" \"Both\" | = {x} <y>"_s, u" 2"_s},
        {u"5"_s, u"12:34:57,000"_s, u"12:34:58,000"_s, u" a"_s, QString(), u" behind a gap"_s},
        {u"6"_s, u"12:35:00,000"_s, u"12:35:01,000"_s},
        {u"7"_s, u"1:2"_s, QString(), u" odd times"_s},
        {u"8"_s, u" 12:36:00,000 "_s, u"12:36:90,000"_s, QString(), u" second "_s, u" third"_s},
    });
    fixture.fonts.Combo9[0].setSelected(1);
    const QStringList styles{u"Regular"_s, u"Bold"_s, u"Italic"_s, u"Bold Italic"_s};
    for (int row = 1; row <= 4; ++row) {
        const QString entry = fixture.document.makeFontEntry({}, styles[row - 1], u"16"_s);
        fixture.editor.lstFont.setItem(row, entry);
    }
}

QString goldenPath(const FormatInfo &info)
{
    const QString name = info.name.toString().toLower().replace(u' ', u'-');
    return QStringLiteral(KAVRO_TEST_FILES "/golden/") + name + info.extension.toString();
}

// scripts/renew-golden writes the files anew; look at the difference before it is kept.
TEST(Golden, EveryWriterMakesItsFile)
{
    for (const FormatInfo &info : formatTable()) {
        SCOPED_TRACE(info.name.toString().toStdString());
        FormatsFixture fixture;
        fillDocument(fixture);
        const std::string written = fixture.written(info.id);
        if (qEnvironmentVariableIsSet("KAVRO_RENEW_GOLDEN")) {
            QFile file(goldenPath(info));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(QByteArray::fromStdString(written));
        }
        EXPECT_EQ(written, FormatsFixture::read(goldenPath(info)));
    }
}

// The page for people who choose a format shows what is written; of JACOSub's header it leaves
// lines out.
TEST(Golden, TheDocumentedExamplesAreWritten)
{
    const std::string page =
        FormatsFixture::read(QStringLiteral(KAVRO_SOURCE_DIR "/docs/formats.md"));
    for (const FormatInfo &info : formatTable()) {
        SCOPED_TRACE(info.name.toString().toStdString());
        FormatsFixture fixture;
        fixture.setRows(
            {{u"1"_s, u"00:00:01,480"_s, u"00:00:03,525"_s, u" Hello."_s, u" Who is there?"_s}});
        std::string written = fixture.written(info.id);
        std::erase(written, '\r');
        if (info.id == JacoSub)
            written = written.substr(written.find("0:00"));
        EXPECT_NE(page.find("```\n" + written + "```"), std::string::npos) << written;
    }
}

} // namespace
} // namespace kavro::test
