#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(ScriptFormats, ReadRows)
{
    const QString dialogue =
        u"Dialogue: Marked=0,0:00:01.25,0:00:02.50,Default,,0000,0000,0000,,"_s;
    const QString timeTag = u"<Time begin=\"0:00:01.25\" end=\"0:00:02.50\" />"_s;
    expectRows({
        {SubStationAlpha, "a header, a comma in the text, and lines that are no dialogue",
         u"[Script Info]\n[Events]\n"_s + dialogue + u"a, b\\nc\n; no\n\n"_s + dialogue
             + u"d\\Ne\n"_s,
         "00:00:01,250 00:00:02,500| a, b| c\n00:00:01,250 00:00:02,500| d\\Ne"},
        {SubStationAlpha, "a layer in place of the word shifts the times",
         u"Dialogue: 0,0:00:01.25,0:00:02.50,Default,,0,0,0,,a\n"_s,
         "00:05:00,000 00:00:00,000| a"},
        {SubStationAlpha, "fewer commas", u"dialogue: Marked=0,0:00:01.25,0:00:02.50,a\n"_s,
         "00:00:01,250 00:00:02,500| a"},
        {RealTime, "a header and the end",
         u"<Window\n>\n"_s + timeTag + u"<clear/> a<br>b\n</B>\n</center>\n"_s,
         "00:00:01,250 00:00:02,500| a| b"},
        {RealTime, "without the tag the text is what stands from character 9 on",
         timeTag.toLower() + u"x\n"_s,
         "00:00:01,250 00:00:02,500| gin=\"0:00:01.25\" end=\"0:00:02.50\" />x"},
        {Sami, "two subtitles and the end",
         u"<SAMI>\n<BODY>\n<SYNC START=1500>\n<P>a<br>b\n<SYNC START=2500>\n<P>&nbsp;\n"
         "<SYNC START=3000>\n<i><p>c\n<SYNC START=4000>\n<P>&nbsp;\n</Body>\n</SAMI>\n"_s,
         "00:00:01,500 00:00:02,500| a| b\n00:00:03,000 00:00:04,000| c"},
        {Sami, "a class in the tag leaves the text from character 3 on",
         u"<SYNC START=1500>\n<P Class=X>a\n<SYNC START=2500>\n<P>\n"_s,
         "00:00:01,500 00:00:02,500| Class=X>a"},
        {Sami, "the last character of a sync line is cut whatever it is",
         u"<SYNC START=1500\n<P>a\n<SYNC START=2500 >\n<P>\n"_s, "00:00:00,150 00:00:02,500| a"},
        {Sami, "cut behind the end", u"<SYNC START=1500>\n<P>a\n<SYNC START=2500>\n"_s,
         "00:00:01,500 00:00:02,500| a", 1},
        {JacoSub, "a directive without its sign ends the header",
         u"#T100\nSHIFT 0\n0:00:01.25 0:00:02.50 {ntp} a\n"_s,
         "00:00:00,000 00:00:00,000| HIFT 0\n00:00:01,250 00:00:02,500| a"},
        {JacoSub, "a fourth line has no place and no style",
         u"0:00:01.25 0:00:02.50 {NTP} a\\nb\\nc\\n\\Bd\n"_s, "00:00:01,250 00:00:02,500| a| b| c",
         1},
        {TurboTitler, "two subtitles, the tag in the text too",
         u"0:00:01.25,0:00:02.50,NTP a|b,ntp c\n0:00:03.00,0:00:04.00,ntp d\n"_s,
         "00:00:01,250 00:00:02,500| a| b,ntp c\n00:00:03,000 00:00:04,000| d"},
        {TurboTitler, "without the tag the text is what stands from character 5 on",
         u"0:00:01.25,0:00:02.50\n"_s, "00:00:01,250 00:00:02,500| :01.25,0:00:02.50"},
        {ViPlay, "the first line is dropped whatever it says",
         u"x\n00:00:01,255-00:00:02,500=a=b|c\n"_s, "00:00:01,255 00:00:02,500| a=b| c"},
        {ViPlay, "without the sign all is text", u"x\n00:00:01,255-00:00:02,500\n"_s,
         "00:00:01,255 00:00:02,500| 00:00:01,255-00:00:02,500"},
        {ViPlay, "an empty line is a subtitle", u"x\n\n"_s, "00:00:00,000 00:00:00,000"},
        {ZeroG, "two subtitles",
         u"% Zero G 1.0\n\nE 1 0:00:01.25 0:00:02.50 Default NTP a\\nb\n"
         "E 1 0:00:03.00 0:00:04.00 Default ntp c ntp d\n"_s,
         "00:00:01,250 00:00:02,500| a| b\n00:00:03,000 00:00:04,000| c ntp d"},
        {ZeroG, "two lines are dropped whatever they say",
         u"E 1 0:00:01.25 0:00:02.50 Default NTP a\n"_s, ""},
    });
}

TEST(Sami, TakesTheSizeOfTheLastHeaderLine)
{
    struct Case
    {
        QString header;
        const char *entry;
    };
    const Case cases[] = {
        {u"<SAMI>\n"_s, "Arial;Western;Regular;16"},
        {u"P {font-size: 29pt;}\nQ {font-size: 18pt;}\n"_s, "Arial;Western;Regular;18"},
        {u"P {font-size: 10pt;}\n"_s, "Arial;Western;Regular;1"},
        {u"P {font-size: 9pt;}\n"_s, "Arial;Western;Regular;9"},
        // In capitals the tag isn't placed, and its value is what stands from character 11 on.
        {u"P {FONT-SIZE: 29pt;}\n"_s, "Arial;Western;Regular;"},
    };
    for (const Case &c : cases) {
        const QString text = c.header + u"<SYNC START=1>\n<P>a\n<SYNC START=2>\n<P>\n"_s;
        expectRows({{Sami, c.entry, text, "00:00:00,001 00:00:00,002| a", 0, c.entry}});
    }
}

TEST(JacoSub, ReadsMarksOfStyleLineByLine)
{
    struct Case
    {
        QString text;
        const char *rows;
        const char *style;
    };
    const Case cases[] = {
        {u"a\\nb"_s, "| a| b", "Regular"},
        {u"\\Ba\\nb\\b"_s, "| a| b", "Bold"},
        {u"\\Ia\\nb\\nc\\i"_s, "| a| b| c", "Italic"},
        {u"\\Ba\\b"_s, "| a", "Bold"},
        // No more than four characters go, so the closing marks of two styles stay.
        {u"\\I\\Ba\\b\\i"_s, "| a\\b\\i", "Bold Italic"},
        {u"\\I\\Ba\\nb\\b\\i"_s, "| a| b\\b", "Bold Italic"},
        // The word of a line goes on to the next one.
        {u"a\\n\\Ib\\i"_s, "| a| b", "Regular Italic"},
        {u"a {x} b"_s, "| a {x} b", "Regular"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        FormatsFixture fixture;
        fixture.fonts.Combo9[0].setSelected(1);
        fixture.load(
            fixture.write(u"a"_s, u"#T100\n\n#1\n0:00:01.25 0:00:02.50 {NTP} "_s + c.text + u'\n'),
            JacoSub);
        EXPECT_EQ(fixture.rows(), std::string("00:00:01,250 00:00:02,500") + c.rows);
        EXPECT_EQ(fixture.document.fontEntry(1).toStdString(),
                  std::string("Verdana;Western;") + c.style + ";");
        EXPECT_EQ(fixture.document.curFontName, u"Verdana"_s);
    }
}

} // namespace
} // namespace kavro::test
