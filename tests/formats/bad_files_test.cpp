#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;
using Kind = LoadResult::Kind;

/// The document that stands while a bad file is loaded.
const char *const oldRows = "00:00:09,000 00:00:10,000| old";

struct BadFixture : FormatsFixture
{
    BadFixture()
    {
        load(write(u"old.srt"_s, u"1\n00:00:09,000 --> 00:00:10,000\nold\n"_s));
        host.take();
    }

    /// The load failed with one message that ends with `why`, and nothing else happened.
    void expectUntouched(const LoadResult &result, const QString &path, const std::string &why)
    {
        EXPECT_EQ(result.kind, Kind::Failed);
        EXPECT_EQ(result.error.toStdString(), why);
        EXPECT_EQ(takeMessages(),
                  "Error: File '" + path.toStdString() + "' can't be loaded./" + why);
        EXPECT_EQ(rows(), oldRows);
        EXPECT_EQ(host.take(), "");
        EXPECT_EQ(document.subFileName, this->path(u"old.srt"_s));
        EXPECT_FALSE(document.editorBlocked);
    }
};

TEST(BadFiles, FailWithAMessageOrReadAsFarAsTheyGo)
{
    struct Case
    {
        QString file;
        const char *error; ///< nullptr when it loads
        const char *rows = nullptr;
        int skipped = 0;
    };
    const char *const unknown = "It is no subtitle file of a format that Kavro knows.";
    const Case cases[] = {
        {u"mark-alone.srt"_s, "The file is empty."},
        {u"blank-lines.srt"_s, unknown},
        {u"prose.srt"_s, unknown},
        {u"nul-bytes.srt"_s, "It is no text file, it holds bytes of the value 0."},
        {u"cut-in-times.srt"_s, nullptr, "00:00:01,000 00:00:02,000| One\n || 00:00:0"},
        {u"cut-behind-number.srt"_s, nullptr, "00:00:01,000 00:00:02,000| One\n "},
        {u"carriage-returns-alone.srt"_s, nullptr,
         "00:00:01,000 00:00:02,000| One\n00:00:03,000 00:00:04,000| Two"},
        {u"no-begin.sub"_s, nullptr, "", 1},
        {u"cut-behind-begin.sub"_s, nullptr, "", 1},
        {u"cut-in-times.sub"_s, nullptr, "00:00:01,000 00:00:02,000| a\n00:00:00,000 00:00:00,000",
         1},
        {u"header-alone.sub"_s, nullptr, ""},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.file.toStdString());
        BadFixture fixture;
        const QString path = QStringLiteral(KAVRO_TEST_FILES "/bad/") + c.file;
        const LoadResult result = fixture.load(path);
        if (c.error) {
            fixture.expectUntouched(result, path, c.error);
            continue;
        }
        EXPECT_EQ(result.kind, Kind::Loaded);
        EXPECT_EQ(fixture.rows(), c.rows);
        EXPECT_EQ(result.skippedLines, c.skipped);
        EXPECT_EQ(fixture.messageWindow.shown.size(), c.skipped);
    }
}

TEST(BadFiles, ThatCannotBeOpened)
{
    BadFixture fixture;
    const QString missing = fixture.path(u"missing.srt"_s);
    fixture.expectUntouched(fixture.load(missing), missing, "The file doesn't exist.");
    fixture.expectUntouched(fixture.load(missing, SubRip), missing, "The file doesn't exist.");

    QDir().mkpath(fixture.path(u"folder.srt"_s));
    const QString folder = fixture.path(u"folder.srt"_s);
    fixture.expectUntouched(fixture.load(folder), folder, "It is a folder, not a file.");

    const QString foreign = fixture.write(u"a.scd"_s, u"1\n"_s);
    fixture.expectUntouched(fixture.load(foreign, 17), foreign, "It isn't loaded as a subtitle.");

    LoadRequest silent{.path = missing, .showMessages = false};
    EXPECT_EQ(fixture.loader.LoadSubFile(silent).error, u"The file doesn't exist."_s);
    EXPECT_EQ(fixture.takeMessages(), "");
}

TEST(BadFiles, ThatAreHuge)
{
    BadFixture fixture;
    const QString zeros = fixture.path(u"zeros.srt"_s);
    QFile file(zeros);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64{2} << 30)); // a hole
    file.close();
    fixture.expectUntouched(fixture.load(zeros), zeros,
                            "It is no text file, it holds bytes of the value 0.");

    // One that the search for the format meets, and one behind it.
    const QByteArray first = "1\n00:00:01,000 --> 00:00:02,000\n";
    for (const QByteArray &line :
         {QByteArray(16 << 20, 'x'), "\n" + QByteArray((1 << 20) + 1, 'x')}) {
        const QString path = fixture.writeBytes(u"line.srt"_s, first + line);
        fixture.expectUntouched(fixture.load(path), path,
                                "It has a line that is longer than 1 MiB.");
    }
}

} // namespace
} // namespace kavro::test
