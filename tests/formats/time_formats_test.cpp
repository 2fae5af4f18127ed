#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

const QString bracketed = u"[TITLE]\nfilm\n[AUTHOR]\nme\n[SOURCE]\n\n[BEGIN]\n* START *\n"_s;

TEST(TimeFormats, ReadRows)
{
    expectRows({
        {SubViewer1, "two subtitles and the end",
         bracketed
             + u"[00:00:01]\na|b\n[00:00:02]\n\n"
               "[00:01:03]\nc\n[00:01:04]\n\n [end] \nx\n"_s,
         "00:00:01,000 00:00:02,000| a| b\n00:01:03,000 00:01:04,000| c"},
        {SubViewer1, "no end and no last empty line", bracketed + u"[00:00:01]\na\n[00:00:02]\n"_s,
         "00:00:01,000 00:00:02,000| a"},
        {SubViewer1, "a title of its own tag, a value that looks like the begin",
         u"[title]\n[author]\n[Author]\n[begin]\n[Begin]\n*\n[00:00:01]\na\n[00:00:02]\n"_s,
         "00:00:01,000 00:00:02,000| a"},
        {SubViewer1, "an empty piece leaves its column empty",
         bracketed + u"[00:00:01]\na||c\n[00:00:02]\n\n[00:00:03]\n\n[00:00:04]\n"_s,
         "00:00:01,000 00:00:02,000| a|| c\n00:00:03,000 00:00:04,000"},
        {SubViewer1, "a fourth piece has no place",
         bracketed + u"[00:00:01]\na|b|c|d\n[00:00:02]\n\n[00:00:03]\nx\n[00:00:04]\n"_s,
         "00:00:01,000 00:00:02,000| a| b| c\n00:00:03,000 00:00:04,000| x", 1},
        {SubViewer1, "cut behind the start", bracketed + u"[00:00:01]\n"_s, "00:00:01,000 ", 1},
        {SubViewer2, "without a header", u"00:00:01.25,00:00:02.50\na\n\n"_s,
         "00:00:01,250 00:00:02,500| a"},
        {SubViewer2, "other separators", u"00-00-01:25 00-00-02:50\na\n\n"_s,
         "00:00:01,250 00:00:02,500| a"},
        {SubViewer2, "a second empty line shifts what follows",
         u"00:00:01.00,00:00:02.00\na\n\n\n00:00:03.00,00:00:04.00\nb\n"_s,
         "00:00:01,000 00:00:02,000| a\n00:00:00,000 00:00:00,000| 00:00:03.00,00:00:04.00"},
        {SubViewer2, "cut behind the times", u"00:00:01.00,00:00:02.00\n"_s,
         "00:00:01,000 00:00:02,000", 1},
        {TmPlayer, "two subtitles", u"00:00:01,5=a|b\n00:00:02,0=\n00:01:03,9=c=d\n00:01:04,0=\n"_s,
         "00:00:01,500 00:00:02,000| a| b\n00:01:03,900 00:01:04,000| c=d"},
        {TmPlayer, "a subtitle without text", u"00:00:01,5=\n00:00:02,0=\n"_s,
         "00:00:01,500 00:00:02,000"},
        {TmPlayer, "a line without the sign is text as a whole", u"00:00:01,5 a\n00:00:02,0=\n"_s,
         "00:00:01,500 00:00:02,000| 00:00:01,5 a"},
    });
}

TEST(SubViewer1, LosesAndGainsWithItsOwnFiles)
{
    FormatsFixture fixture;
    fixture.setRows({{u"1"_s, u"01:23:45,678"_s, u"01:23:56,999"_s, u" a"_s, u" b"_s}});
    const WriteResult result = fixture.save(u"own"_s, SubViewer1);
    fixture.load(result.path);
    EXPECT_EQ(fixture.request.format, SubViewer1);
    // Each time is one character to the left; the end mark in capitals is one more subtitle.
    EXPECT_EQ(fixture.rows(), "01:03:05,000 01:03:06,000| a| b\n"
                              "00:00:00,000 | ******** END SCRIPT ********");
    EXPECT_EQ(fixture.takeMessages(),
              "Error: An error was found while reading the file./Line #2 = '******** END SCRIPT "
              "********'//Do you want to be asked about further errors in this file?");
}

TEST(SubViewer2, TakesFontAndSizeOfTheHeader)
{
    struct Case
    {
        QString header;
        const char *font;
    };
    const Case cases[] = {
        {u"[INFORMATION]\n"_s, "Arial;Western;Regular;16"},
        {u"[COLF]&HFF,[size]25,[font]Tahoma\n"_s, "Tahoma;Western;Regular;25"},
        {u"[font]Tahoma,[size]9\n"_s, "Tahoma;Western;Regular;9"},
        // A zero ends the size as a letter does.
        {u"[size]20\n"_s, "Arial;Western;Regular;2"},
        {u"[size]08\n"_s, "Arial;Western;Regular;"},
        {u"[size]1x\n"_s, "Arial;Western;Regular;1"},
        // In capitals a tag isn't placed, and its value is what stands from character 6 on.
        {u"[COLF]&HFFFFFF,[STYLE]no,[SIZE]29, [Font]Arial\n"_s, "]&HFFFFFF;Western;Regular;"},
        {u"[abc]12345[SIZE]9\n"_s, "Arial;Western;Regular;12"},
        {u"[font]One\n[prg][font]Two\n"_s, "Two;Western;Regular;16"},
    };
    for (const Case &c : cases) {
        const QString text = c.header + u"00:00:01.00,00:00:02.00\na\n\n"_s;
        expectRows({{SubViewer2, c.font, text, "00:00:01,000 00:00:02,000| a", 0, c.font}});
    }
}

} // namespace
} // namespace kavro::test
