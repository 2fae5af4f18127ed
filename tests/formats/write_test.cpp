#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;
using Kind = WriteResult::Kind;

/// Rows of one second each, the first from 0:01 on, with the row's number as text.
QList<GridRow> seconds(int count)
{
    QList<GridRow> rows;
    for (int i = 1; i <= count; ++i) {
        const QString number = QString::number(i);
        const auto time = [](int second) {
            return u"00:00:%1,000"_s.arg(second, 2, 10, QChar(u'0'));
        };
        rows.append({number, time(i), time(i + 1), u' ' + number});
    }
    return rows;
}

TEST(Write, PutsTheExtensionAndLeavesTheDocument)
{
    FormatsFixture fixture;
    fixture.setRows(seconds(2));
    fixture.document.subFileName = fixture.path(u"old.sub"_s);
    fixture.document.setFileChanged(true);
    const WriteResult result = fixture.save(u"film.v2.sub"_s, SubRip);
    EXPECT_EQ(result.kind, Kind::Written);
    EXPECT_EQ(result.path, fixture.path(u"film.v2.srt"_s));
    EXPECT_EQ(result.files, QStringList{result.path});
    EXPECT_EQ(result.rowsWritten, 2);
    EXPECT_EQ(result.firstRowLeft, 0);
    EXPECT_EQ(fixture.document.subFileName, fixture.path(u"old.sub"_s));
    EXPECT_TRUE(fixture.document.fileChanged());
    EXPECT_EQ(fixture.takeMessages(), "");
}

TEST(Write, TakesALiteralPathAsItStands)
{
    FormatsFixture fixture;
    fixture.setRows(seconds(1));
    const QString path = fixture.path(u"film"_s);
    const WriteResult result = fixture.writer.CreateSubFile(
        {.format = TmPlayer, .firstRow = 1, .lastRow = 1, .path = path, .literal = true});
    EXPECT_EQ(result.path, path);
    EXPECT_EQ(FormatsFixture::read(path), "00:00:01,0=1\r\n00:00:02,0=\r\n");
    EXPECT_EQ(fixture.writer
                  .CreateSubFile(
                      {.format = TmPlayer, .lastRow = 1, .path = u"/dev/null"_s, .literal = true})
                  .kind,
              Kind::Written);
}

TEST(Write, AsksBeforeItReplacesAFile)
{
    struct Case
    {
        Answer answer;
        bool ask;
        Kind kind;
    };
    const Case cases[] = {{Answer::No, true, Kind::Cancelled},
                          {Answer::Yes, true, Kind::Written},
                          {Answer::No, false, Kind::Written}};
    for (const Case &c : cases) {
        FormatsFixture fixture;
        fixture.setRows(seconds(1));
        const QString path = fixture.write(u"film.srt"_s, u"old"_s);
        fixture.messageWindow.answer(c.answer);
        const WriteResult result = fixture.writer.CreateSubFile(
            {.format = SubRip, .lastRow = 1, .path = path, .askOverwrite = c.ask});
        EXPECT_EQ(result.kind, c.kind);
        EXPECT_EQ(FormatsFixture::read(path) == "old", c.kind == Kind::Cancelled);
        EXPECT_EQ(fixture.takeMessages(),
                  c.ask ? "File exists: File " + path.toStdString()
                              + " already exists. //Do you want to overwrite this file?"
                        : std::string());
    }
}

TEST(Write, TellsTheRowsBehindOneThatEndsTheFile)
{
    struct Case
    {
        const char *name;
        QString end;
        int firstLeft;
    };
    const Case cases[] = {
        {"the end of time", u"99:59:59,999"_s, 3},
        {"behind it", u"99:75:00,000"_s, 3},
        {"no time", u"soon"_s, 3},
        {"one millisecond before", u"99:59:59,998"_s, 0},
        {"empty", QString(), 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        FormatsFixture fixture;
        fixture.setRows(seconds(5));
        fixture.editor.grdSubEdit.setText(3, EndColumn, c.end);
        const WriteResult result = fixture.save(u"film"_s, SubRip);
        EXPECT_EQ(result.kind, Kind::Written);
        EXPECT_EQ(result.firstRowLeft, c.firstLeft);
        EXPECT_EQ(result.rowsLeft, c.firstLeft > 0 ? 3 : 0);
        EXPECT_EQ(result.rowsWritten, c.firstLeft > 0 ? 2 : 5);
        const std::string message = fixture.takeMessages();
        EXPECT_EQ(message.find("row 3") != std::string::npos, c.firstLeft > 0) << message;
        EXPECT_EQ(message.find("written: 3.") != std::string::npos, c.firstLeft > 0) << message;
    }
}

TEST(Write, AsksAboutNegativeTimes)
{
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        FormatsFixture fixture;
        fixture.setRows(seconds(3));
        fixture.editor.grdSubEdit.setText(2, StartColumn, u"-1:59:59,000"_s);
        fixture.messageWindow.answer(answer);
        const WriteResult result = fixture.save(u"film"_s, SubRip);
        EXPECT_EQ(result.rowsWritten, answer == Answer::Yes ? 3 : 1);
        EXPECT_EQ(result.firstRowLeft, answer == Answer::Yes ? 0 : 2);
        EXPECT_EQ(fixture.messageWindow.shown[0].text.toStdString(),
                  crlf("Error creating " + result.path.toStdString()
                       + ". Negative time calculated during Partitioning.\n"
                         "Please do not partition in subtitle display time. Continue?"));
        const bool written =
            FormatsFixture::read(result.path).find("-1:59:59,000 --> ") != std::string::npos;
        EXPECT_EQ(written, answer == Answer::Yes);
    }
}

TEST(Write, CutsTheDocumentIntoParts)
{
    FormatsFixture fixture;
    fixture.setRows(seconds(6));
    fixture.document.subFileName = fixture.path(u"film.sub"_s);
    fixture.document.savedPath = fixture.document.subFileName;
    // Row 2 ends where part 1 ends; row 4 ends in part 3, where the rows behind it stay.
    fixture.partition.grid.setAllRows({{},
                                       {u"1"_s, u"one.a"_s, u"00:00:03,000"_s},
                                       {u"2"_s, u"none"_s, u"00:00:00,000"_s},
                                       {u"3"_s, u"three"_s, u"00:00:03,000"_s},
                                       {}});
    fixture.messageWindow.answer(Answer::Yes);
    const WriteResult result =
        fixture.writer.CreateSubFile({.partition = true, .format = TmPlayer, .lastRow = 6});
    EXPECT_EQ(result.kind, Kind::Written);
    EXPECT_EQ(result.files, (QStringList{fixture.path(u"one.txt"_s), fixture.path(u"none.txt"_s),
                                         fixture.path(u"three.txt"_s)}));
    EXPECT_EQ(FormatsFixture::read(result.files[0]), crlf("00:00:01,0=1\n00:00:02,0=\n"));
    EXPECT_EQ(FormatsFixture::read(result.files[1]), "");
    // Row 2 begins before the part and ends in it.
    EXPECT_EQ(FormatsFixture::read(result.files[2]),
              crlf("-1:59:59,0=2\n00:00:00,0=\n00:00:00,0=3\n00:00:01,0=\n"
                   "00:00:01,0=4\n00:00:02,0=\n"));
    EXPECT_EQ(result.firstRowLeft, 0);
    EXPECT_EQ(fixture.messageWindow.shown.size(), 1);
    EXPECT_EQ(fixture.partition.List2.items(),
              (QStringList{u"one.txt"_s, u"none.txt"_s, u"three.txt"_s}));
    EXPECT_EQ(fixture.document.subFileName, result.files[2]);
    EXPECT_EQ(fixture.document.savedPath, QString());
}

TEST(Write, PutsPreviewsIntoTheTemporaryFolder)
{
    FormatsFixture fixture;
    fixture.setRows(seconds(3));
    fixture.document.subFileName = fixture.path(u"film.sub"_s);
    fixture.document.encoding = {.name = "ISO-8859-1"};
    fixture.editor.grdSubEdit.setText(1, FirstTextColumn, u" Ж"_s);
    fixture.partition.grid.setAllRows(
        {{}, {u"1"_s, u"one"_s, u"00:00:03,000"_s}, {u"2"_s, u"two"_s, u"00:01:00,000"_s}, {}});
    const WriteResult parts = fixture.writer.CreateSubFile(
        {.preview = true, .partition = true, .format = TmPlayer, .lastRow = 3});
    EXPECT_EQ(parts.files, (QStringList{fixture.folders.path(Folder::Temporary, u"Splitprv.001"),
                                        fixture.folders.path(Folder::Temporary, u"Splitprv.002")}));
    EXPECT_EQ(FormatsFixture::read(parts.files[0]), "00:00:01,0=Ж\r\n00:00:02,0=\r\n");
    EXPECT_EQ(fixture.document.subFileName, fixture.path(u"film.sub"_s));
    EXPECT_TRUE(fixture.messageWindow.shown[0].text.contains(u" calculating Preview file. "_s));
}

TEST(Write, OffersUtf8ForWhatTheEncodingHasNot)
{
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        FormatsFixture fixture;
        fixture.setRows(seconds(1));
        fixture.editor.grdSubEdit.setText(1, FirstTextColumn, u" Ж"_s);
        fixture.document.encoding = {.name = "ISO-8859-1"};
        const QString path = fixture.write(u"film.srt"_s, u"old"_s);
        fixture.messageWindow.answer(Answer::Yes);
        fixture.messageWindow.answer(answer);
        const WriteResult result = fixture.save(u"film"_s, SubRip);
        EXPECT_EQ(result.kind, answer == Answer::Yes ? Kind::Written : Kind::Cancelled);
        EXPECT_EQ(fixture.document.encoding.name, answer == Answer::Yes ? "UTF-8" : "ISO-8859-1");
        EXPECT_EQ(FormatsFixture::read(path) == "old", answer == Answer::No);
        EXPECT_EQ(fixture.messageWindow.shown.size(), 2);
    }
}

TEST(Write, ReplacesHalvesOfCharacters)
{
    FormatsFixture fixture;
    fixture.setRows(seconds(1));
    fixture.editor.grdSubEdit.setText(1, FirstTextColumn, u" a"_s + QChar(0xD83D));
    EXPECT_EQ(fixture.written(TmPlayer), "00:00:01,0=a?\r\n00:00:02,0=\r\n");
    EXPECT_EQ(fixture.takeMessages(), "");
}

TEST(Write, FailsWithAMessage)
{
    FormatsFixture fixture;
    fixture.setRows(seconds(1));
    const WriteResult folder = fixture.save(u"no/such/film"_s, SubRip);
    EXPECT_EQ(folder.kind, Kind::Failed);
    EXPECT_EQ(fixture.takeMessages(),
              "Error: Error writing file (" + folder.error.toStdString() + ").");

    const QString path = fixture.write(u"film.srt"_s, u"old"_s);
    fixture.store.setFreeBytes(5);
    fixture.messageWindow.answer(Answer::Yes);
    const WriteResult full = fixture.save(u"film"_s, SubRip);
    EXPECT_EQ(full.kind, Kind::Failed);
    EXPECT_EQ(FormatsFixture::read(path), "old");
    EXPECT_TRUE(full.files.isEmpty());

    fixture.takeMessages();
    for (const int format : {0, 17}) {
        EXPECT_EQ(fixture.save(u"film"_s, format).kind, Kind::Failed);
        EXPECT_EQ(fixture.takeMessages(),
                  "Error: Error writing file (no subtitle format was chosen).");
    }
}

} // namespace
} // namespace kavro::test
