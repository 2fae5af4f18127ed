#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

const QString bracketed = u"[TITLE]\nfilm\n[AUTHOR]\nme\n[SOURCE]\n\n[BEGIN]\n* START *\n"_s;

TEST(SubViewer1, ReadsTimesInBrackets)
{
    expectRows(
        SubViewer1,
        {
            {"two subtitles and the end",
             bracketed
                 + u"[00:00:01]\na|b\n[00:00:02]\n\n"
                   "[00:01:03]\nc\n[00:01:04]\n\n [end] \nx\n"_s,
             "00:00:01,000 00:00:02,000| a| b\n00:01:03,000 00:01:04,000| c"},
            {"no end and no last empty line", bracketed + u"[00:00:01]\na\n[00:00:02]\n"_s,
             "00:00:01,000 00:00:02,000| a"},
            {"a title of its own tag, a value that looks like the begin",
             u"[title]\n[author]\n[Author]\n[begin]\n[Begin]\n*\n[00:00:01]\na\n[00:00:02]\n"_s,
             "00:00:01,000 00:00:02,000| a"},
            {"an empty piece leaves its column empty",
             bracketed + u"[00:00:01]\na||c\n[00:00:02]\n\n[00:00:03]\n\n[00:00:04]\n"_s,
             "00:00:01,000 00:00:02,000| a|| c\n00:00:03,000 00:00:04,000"},
            {"a fourth piece has no place",
             bracketed + u"[00:00:01]\na|b|c|d\n[00:00:02]\n\n[00:00:03]\nx\n[00:00:04]\n"_s,
             "00:00:01,000 00:00:02,000| a| b| c\n00:00:03,000 00:00:04,000| x", 1},
            {"cut behind the text", bracketed + u"[00:00:01]\na\n"_s, "00:00:01,000 | a", 1},
            {"cut behind the start", bracketed + u"[00:00:01]\n"_s, "00:00:01,000 ", 1},
            {"a header without begin", u"[TITLE]\nfilm\n[AUTHOR]\nme\n"_s, "", 1},
            {"a header cut in a value", u"[TITLE]\n"_s, "", 1},
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

TEST(SubViewer2, ReadsTimesToTheHundredth)
{
    expectRows(
        SubViewer2,
        {
            {"with a header",
             u"[INFORMATION]\n[SUBTITLE]\n00:00:01.25,00:00:02.50\na[br]b\n\n"
             "00:00:03.00,00:00:04.99\nc\n\n"_s,
             "00:00:01,250 00:00:02,500| a| b\n00:00:03,000 00:00:04,990| c"},
            {"our own empty line behind the header",
             u"[INFORMATION]\n\n00:00:01.25,00:00:02.50\na\n\n"_s, "00:00:01,250 00:00:02,500| a"},
            {"without a header", u"00:00:01.25,00:00:02.50\na\n\n"_s,
             "00:00:01,250 00:00:02,500| a"},
            {"other separators", u"00-00-01:25 00-00-02:50\na\n\n"_s,
             "00:00:01,250 00:00:02,500| a"},
            {"a second empty line shifts what follows",
             u"00:00:01.00,00:00:02.00\na\n\n\n00:00:03.00,00:00:04.00\nb\n"_s,
             "00:00:01,000 00:00:02,000| a\n00:00:00,000 00:00:00,000| 00:00:03.00,00:00:04.00"},
            {"no last empty line", u"00:00:01.00,00:00:02.00\na\n"_s,
             "00:00:01,000 00:00:02,000| a", 1},
            {"cut behind the times", u"00:00:01.00,00:00:02.00\n"_s, "00:00:01,000 00:00:02,000",
             1},
        });
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
        SCOPED_TRACE(c.header.toStdString());
        FormatsFixture fixture;
        fixture.load(fixture.write(u"a"_s, c.header + u"00:00:01.00,00:00:02.00\na\n\n"_s),
                     SubViewer2);
        EXPECT_EQ(fixture.document.fontEntry(1).toStdString(), c.font);
    }
}

TEST(SubViewer2, ReadsItsOwnFilesWhole)
{
    FormatsFixture fixture;
    fixture.setRows({{u"1"_s, u"00:00:01,239"_s, u"00:00:02,999"_s, u" a"_s, u" b"_s, u" c"_s},
                     {u"2"_s, u"00:00:03,000"_s, u"00:00:04,000"_s, u" d"_s}});
    fixture.fonts.Combo9[0].setSelected(1);
    const WriteResult result = fixture.save(u"own"_s, SubViewer2);
    EXPECT_TRUE(FormatsFixture::read(result.path)
                    .ends_with(crlf(
                        "[SUBTITLE]\n[COLF]&HFFFFFF,[STYLE]no,[SIZE]29, [Font]Verdana\n\n"
                        "00:00:01.23,00:00:02.99\na[br]b[br]c\n\n00:00:03.00,00:00:04.00\nd\n\n")));
    fixture.load(result.path);
    EXPECT_EQ(fixture.request.format, SubViewer2);
    EXPECT_EQ(fixture.rows(), "00:00:01,230 00:00:02,990| a| b| c\n00:00:03,000 00:00:04,000| d");
    EXPECT_EQ(fixture.takeMessages(), "");
}

TEST(TmPlayer, ReadsPairsOfLines)
{
    expectRows(
        TmPlayer,
        {
            {"two subtitles", u"00:00:01,5=a|b\n00:00:02,0=\n00:01:03,9=c=d\n00:01:04,0=\n"_s,
             "00:00:01,500 00:00:02,000| a| b\n00:01:03,900 00:01:04,000| c=d"},
            {"a subtitle without text", u"00:00:01,5=\n00:00:02,0=\n"_s,
             "00:00:01,500 00:00:02,000"},
            {"a line without the sign is text as a whole", u"00:00:01,5 a\n00:00:02,0=\n"_s,
             "00:00:01,500 00:00:02,000| 00:00:01,5 a"},
            {"a lone last line", u"00:00:01,5=a\n00:00:02,0=\n00:00:03,0=b"_s,
             "00:00:01,500 00:00:02,000| a\n00:00:03,000 | b", 1},
        });
}

TEST(TmPlayer, CutsTimesBehindTheTenth)
{
    FormatsFixture fixture;
    fixture.setRows({{u"1"_s, u"00:00:59,999"_s, u"00:01:00,049"_s, u" a"_s, u" b"_s},
                     {u"2"_s, u"00:01:01,000"_s, u"00:01:02,000"_s}});
    EXPECT_EQ(fixture.written(TmPlayer),
              crlf("00:00:59,9=a|b\n00:01:00,0=\n00:01:01,0=\n00:01:02,0=\n"));
}

} // namespace
} // namespace kavro::test
