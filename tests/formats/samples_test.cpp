#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

// Files that nobody here made lie beside the tree where it was checked out for work. What the
// readers make of each was compared with the file by eye.
TEST(Samples, ReadAsTheyDid)
{
    const QString folder = QStringLiteral(KAVRO_SOURCE_DIR "/../shared/samples/");
    if (!QDir(folder).exists()) {
        std::cout << "left out: no folder of samples beside the tree\n";
        GTEST_SKIP();
    }
    struct Case
    {
        QString file;
        int asked;
        int format;
        int rows;
        const char *firstStart;
        const char *lastEnd;
        const char *firstText;
        int skipped = 0;
    };
    const Case cases[] = {
        // Two digits of milliseconds, or none, read as 0.
        {u"astisub-example.srt"_s, 0, SubRip, 6, "00:01:39,000", "00:02:33,000",
         " (deep rumbling)"},
        {u"astisub-example.ssa"_s, 0, SubStationAlpha, 6, "00:01:39,000", "00:02:33,440",
         " {\\pos(400,570)}(deep rumbling)"},
        // A mark in the line costs its first three and last four characters, wherever it stands.
        {u"astisub-styled.srt"_s, 0, SubRip, 10, "00:00:17,985", "00:13:00,000",
         " nt color=\"#00ff00\"><b>[instrumental music]</b></f"},
        {u"mantas-microdvd.sub"_s, 0, MicroDvd, 2, "00:02:11,760", "00:59:49,200",
         " Senator, we're making"},
        {u"mantas-microdvd-styles.sub"_s, 0, MicroDvd, 2, "00:02:11,760", "00:59:49,200",
         " Senator, we're making"},
        // Quotes round the numbers, and texts on lines of their own, put the four lines of a
        // subtitle out of step; the file ends inside the last one.
        {u"mantas-smi-formatted.smi"_s, 0, Sami, 4, "00:00:00,000", "", " clock ticking )", 1},
        // The text stands on the line of its start, so the next start is taken for it, and the
        // third one for the end.
        {u"mantas-smi.smi"_s, 0, Sami, 1, "00:02:17,400", "01:02:20,500",
         " YNC Start=140400><P Class=ENUSCC>&nbsp;</P></SYNC>"},
        {u"mantas-srt.srt"_s, 0, SubRip, 2, "00:02:17,400", "01:02:22,500",
         " Senator, we're making"},
        // Both end without the empty line that the format has behind each subtitle.
        {u"mantas-subviewer.sub"_s, SubViewer2, SubViewer2, 2, "00:02:17,400", "01:02:22,500",
         " Senator, we're making", 1},
        {u"mantas-subviewer-headers.sub"_s, 0, SubViewer2, 2, "00:02:17,440", "01:02:22,500",
         " Senator, we're making", 1},
        {u"mantas-utf16.srt"_s, 0, SubRip, 1, "00:00:00,000", "00:00:01,000",
         " ترجمه و تنظيم زيرنويس"},
        // A text without "<P>" begins at its third character. The end of the body is the line that
        // isn't looked at, and what stands behind it is one more start.
        {u"samits-color-fix.smi"_s, 0, Sami, 2, "00:00:00,000", "",
         " ont color=#ff9900O><font face=\"HY바다L\">1st Season</font>", 1},
        {u"subforge-microdvd.sub"_s, 0, MicroDvd, 8, "00:00:00,000", "00:01:20,000",
         " First subtitle"},
        // Every line behind the header is a subtitle, the texts on lines of their own too.
        {u"subforge-realtext.rt"_s, 0, RealTime, 7, "00:00:00,000", "00:00:00,000",
         " gin=\"00:00:01.00\"/>"},
        {u"subforge-sami.smi"_s, 0, Sami, 1, "00:00:01,000", "00:00:05,000",
         " YNC Start=3000><P Class=ENCC>&nbsp;</P>"},
        // A layer's number in place of "Marked=0": no time stands at its place.
        {u"subforge-ssa.ssa"_s, 0, SubStationAlpha, 3, "00:00:00,000", "00:00:00,000",
         " Hello world"},
        // Texts on lines of their own; every second subtitle begins with a line of text.
        {u"subsrt-sample.smi"_s, 0, Sami, 5, "00:03:05,113", "00:00:00,000", " 0년 전,", 1},
        {u"subsrt-sample.srt"_s, 0, SubRip, 5, "00:00:00,599", "00:00:21,480",
         " >> ALICE: Hi, my name is Alice Miller and this is John Brown"},
        // Its one line of dialogue counts but begins with a blank, and is passed over.
        {u"subsrt-sample.ssa"_s, 0, SubStationAlpha, 0, "", "", ""},
        {u"subsrt-sample.sub"_s, 0, MicroDvd, 5, "00:09:59,000", "05:58:00,000",
         " Hi, my name is Alice Miller and this is John Brown"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.file.toStdString());
        FormatsFixture fixture;
        const LoadResult result = fixture.load(folder + c.file, c.asked);
        EXPECT_EQ(result.kind, LoadResult::Kind::Loaded);
        EXPECT_EQ(result.skippedLines, c.skipped);
        EXPECT_EQ(fixture.request.format, c.format);
        EXPECT_EQ(fixture.document.subtitleCount(), c.rows);
        EXPECT_EQ(fixture.cell(1, StartColumn).toStdString(), c.firstStart);
        EXPECT_EQ(fixture.cell(std::max(c.rows, 1), EndColumn).toStdString(), c.lastEnd);
        EXPECT_EQ(fixture.cell(1, FirstTextColumn).toStdString(), c.firstText);
    }

    // Without its header nothing is typical of the format: it has to be picked.
    FormatsFixture fixture;
    EXPECT_EQ(fixture.load(folder + u"mantas-subviewer.sub"_s).kind, LoadResult::Kind::Failed);
}

} // namespace
} // namespace kavro::test
