#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

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
        // A mark in the line costs its first three and last four characters, wherever it stands.
        {u"astisub-styled.srt"_s, 0, SubRip, 10, "00:00:17,985", "00:13:00,000",
         " nt color=\"#00ff00\"><b>[instrumental music]</b></f"},
        {u"mantas-srt.srt"_s, 0, SubRip, 2, "00:02:17,400", "01:02:22,500",
         " Senator, we're making"},
        {u"mantas-utf16.srt"_s, 0, SubRip, 1, "00:00:00,000", "00:00:01,000",
         " ترجمه و تنظيم زيرنويس"},
        {u"subsrt-sample.srt"_s, 0, SubRip, 5, "00:00:00,599", "00:00:21,480",
         " >> ALICE: Hi, my name is Alice Miller and this is John Brown"},
        // Both end without the empty line that the format has behind each subtitle.
        {u"mantas-subviewer.sub"_s, SubViewer2, SubViewer2, 2, "00:02:17,400", "01:02:22,500",
         " Senator, we're making", 1},
        {u"mantas-subviewer-headers.sub"_s, 0, SubViewer2, 2, "00:02:17,440", "01:02:22,500",
         " Senator, we're making", 1},
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
        EXPECT_EQ(fixture.cell(c.rows, EndColumn).toStdString(), c.lastEnd);
        EXPECT_EQ(fixture.cell(1, FirstTextColumn).toStdString(), c.firstText);
    }
}

} // namespace
} // namespace kavro::test
