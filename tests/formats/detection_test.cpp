#include "formats/detection.h"

#include "core/line_reader.h"
#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

#include <utility>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(Detection, FindsTheFormatOfALine)
{
    const std::pair<QStringView, FormatId> cases[] = {
        {u"{HEAD", DvdSubtitle},
        {u"  {head  ", DvdSubtitle},
        {u"{head}", UnknownFormat},
        {u"#T100", JacoSub},
        {u"{00:00:01}{00:00:02}text", PowerDivX},
        {u"{12345678}{12345690}eight digits look like a time", PowerDivX},
        {u"{1234567}{1234569}seven do not", MicroDvd},
        {u"{İ234567}{9}a capital with a longer small form", MicroDvd},
        {u"{0}{25}text", MicroDvd},
        {u"{y:i} no second brace pair", UnknownFormat},
        {u"     25,      50, \"text\"", Phoenix},
        {u"<Window", RealTime},
        {u"<Window width=\"640\">", UnknownFormat},
        {u"<SAMI>", Sami},
        {u"0001  00:00:01:00  00:00:02:00  text", SonicDvd},
        {u"1", SubRip},
        {u"01", UnknownFormat},
        {u"1.", UnknownFormat},
        {u"Dialogue: Marked=0,0:00:01.00,0:00:02.00,", SubStationAlpha},
        {u"[TITLE]", SubViewer1},
        {u"[TITLE]film", UnknownFormat},
        {u"[INFORMATION]", SubViewer2},
        {u"[Information] of a film", SubViewer2},
        {u"00:00:01,5=text", TmPlayer},
        {u"00:00:01:5=text", UnknownFormat},
        {u"0:00:01.00,0:00:02.00,NTP text", TurboTitler},
        {u"{* VIPLAY SUBTITLE FILE *}", ViPlay},
        {u"% Zero G 1.0", ZeroG},
        {u"", UnknownFormat},
        {u"[", UnknownFormat},
        // The first rule that holds decides.
        {u"# {1}{2}text", JacoSub},
        {u"#1, \"text\"", JacoSub},
        {u"{00:00:01}{00:00:02}a, \"b\"", PowerDivX},
        {u"{1}{2}a, \"b\"", MicroDvd},
        {u"0001, \"text\"", Phoenix},
        {u"00:00:01,5=he said, \"yes\"", Phoenix},
    };
    for (const auto &[line, format] : cases)
        EXPECT_EQ(formatOfLine(line), format) << qPrintable(line.toString());
}

TEST(Detection, LooksAtTheWholeFileOnlyWhenNothingIsKnown)
{
    struct Case
    {
        QStringView text;
        int believed;
        int format;
        QStringView lastLine;
    };
    const Case cases[] = {
        {u"\nprose\n{1}{2}text\n1\n", UnknownFormat, MicroDvd, u"{1}{2}text"},
        {u"01\n00:00:01,000 --> 00:00:02,000\nx\n\n00:00:01,5=x\n", UnknownFormat, TmPlayer,
         u"00:00:01,5=x"},
        {u"prose\n", UnknownFormat, UnknownFormat, u""},
        {u"{1}{2}text\n", SubViewer2, MicroDvd, u"{1}{2}text"},
        {u"\n{1}{2}text\n", SubViewer2, SubViewer2, u""},
        {u"\n[INFORMATION]\n", MicroDvd, MicroDvd, u""},
    };
    const DocumentFixture fixture;
    for (const Case &c : cases) {
        LineReader lines;
        lines.open(fixture.write(u"file"_s, c.text.toString()));
        const Detection found = detectFormat(lines, c.believed);
        EXPECT_EQ(found.format, c.format) << c.text.toString().toStdString();
        EXPECT_EQ(found.lastLine, c.lastLine) << c.text.toString().toStdString();
    }
}

} // namespace
} // namespace kavro::test
