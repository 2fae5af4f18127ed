#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;
using Kind = LoadResult::Kind;

const QString subRip = u"1\n00:00:01,000 --> 00:00:02,500\nOne\n\n"
                       "2\n00:00:03,000 --> 00:00:04,000\nTwo\nlines\n"_s;
const QString tmPlayer = u"00:00:01,5=a\n00:00:02,0=\n"_s;
const QString subViewer2 = u"[INFORMATION]\n00:00:01.00,00:00:02.00\na\n\n"_s;

TEST(Load, FindsTheFormat)
{
    struct Case
    {
        const char *name;
        QString file;
        QString text;
        int asked;
        int format;
        const char *message = "";
        bool linesDecide = false;
    };
    const Case cases[] = {
        {"the extension settles it", u"a.srt"_s, u"\nprose\n"_s + subRip, 0, SubRip},
        {"the lines of a .txt", u"a.txt"_s, tmPlayer, 0, TmPlayer},
        {"the lines of a .sub", u"a.sub"_s, subViewer2, 0, SubViewer2},
        {"the lines of a foreign extension", u"a.xyz"_s, subRip, 0, SubRip},
        {"a picked format stays with a blank first line", u"a.sub"_s, u"\n"_s + tmPlayer,
         SubViewer2, SubViewer2},
        {"a picked format gives way to the first line", u"a.sub"_s, tmPlayer, SubViewer2, TmPlayer,
         "Wrong format.: Loading 'TMPlayer' instead of 'SubViewer 2.0' format."},
        {"a picked format that no other shares is taken as it is", u"a.srt"_s, tmPlayer, SubRip,
         SubRip},
        {"lines under an extension that owns none of them", u"a.srt"_s, tmPlayer, 0, TmPlayer,
         "Wrong format.: Loading 'TMPlayer' instead of 'SubRip' format."},
        {"lines that are told to decide", u"a.srt"_s, subViewer2, SubRip, SubViewer2, "", true},
        {"numbers without times are SubRip in the end", u"a.srt"_s, u"1\n"_s, 0, SubRip},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        FormatsFixture fixture;
        LoadRequest request{
            .path = fixture.write(c.file, c.text), .format = c.asked, .linesDecide = c.linesDecide};
        EXPECT_EQ(fixture.loader.LoadSubFile(request).kind, Kind::Loaded);
        EXPECT_EQ(request.format, c.format);
        EXPECT_EQ(fixture.document.curFormatId, c.format);
        EXPECT_EQ(fixture.takeMessages(), c.message);
    }
}

TEST(Load, DetectsWithoutTouchingTheDocument)
{
    FormatsFixture fixture;
    fixture.document.setFileChanged(true);
    LoadRequest request{.path = fixture.write(u"a.sub"_s, subViewer2), .detectOnly = true};
    EXPECT_EQ(fixture.loader.LoadSubFile(request).kind, Kind::Detected);
    EXPECT_EQ(request.format, SubViewer2);
    EXPECT_EQ(fixture.rows(), "");
    EXPECT_EQ(fixture.host.take(), "");
    EXPECT_EQ(fixture.takeMessages(), "");
}

TEST(Load, ReplacesTheDocument)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"old.srt"_s, subRip));
    fixture.document.setRowErrorText(1, u"finding"_s);
    fixture.document.errorCount = 3;
    fixture.editor.grdSubEdit.setCellColor(2, 3, Color::fromBgr(0xFF));
    fixture.editor.grdSubEdit.setCurrent(2, 1);
    fixture.player.timPlayer.setOn(true);
    fixture.host.take();

    const QString path = fixture.write(u"new.sub"_s, subViewer2);
    fixture.load(path);
    EXPECT_EQ(fixture.rows(), "00:00:01,000 00:00:02,000| a");
    EXPECT_EQ(fixture.host.take(), "name 12, recent new.sub, enable, loaded");
    EXPECT_EQ(fixture.request.nextRow, 2);
    EXPECT_FALSE(fixture.player.timPlayer.isOn());
    EXPECT_EQ(fixture.document.savedPath, path);
    EXPECT_EQ(fixture.document.savedFormatId, SubViewer2);
    EXPECT_FALSE(fixture.document.fileChanged());
    EXPECT_EQ(fixture.document.rowErrorText(1), QString());
    EXPECT_EQ(fixture.document.errorCount, 0);
    EXPECT_EQ(fixture.editor.lstFont.items(),
              (QStringList{QString(), u"Arial;Western;Regular;16"_s}));
    // The one node is painted, and no other colour is left.
    EXPECT_EQ(fixture.cell(1, NumberColumn), u" { 1 }"_s);
    EXPECT_EQ(fixture.editor.grdSubEdit.coloredCells(),
              (QList<QPair<int, int>>{{1, StartColumn}, {1, EndColumn}}));
    EXPECT_EQ(fixture.editor.grdSubEdit.row(), 1);
    EXPECT_EQ(fixture.editor.grdSubEdit.col(), FirstTextColumn);
    EXPECT_FALSE(fixture.document.editorBlocked);
    EXPECT_EQ(fixture.document.curRow, 1);
}

TEST(Load, AddsBehindTheDocument)
{
    FormatsFixture fixture;
    const QString first = fixture.write(u"a.srt"_s, subRip);
    fixture.load(first);
    fixture.document.setRowErrorText(1, u"finding"_s);
    fixture.host.take();

    EXPECT_EQ(fixture.add(fixture.write(u"b.sub"_s, subViewer2)).kind, Kind::Loaded);
    EXPECT_EQ(fixture.rows(), "00:00:01,000 00:00:02,500| One\n"
                              "00:00:03,000 00:00:04,000| Two| lines\n"
                              "00:00:05,000 00:00:06,000| a");
    EXPECT_EQ(fixture.host.take(), "recent b.sub, enable, loaded");
    EXPECT_EQ(fixture.request.nextRow, 4);
    EXPECT_TRUE(fixture.document.fileChanged());
    EXPECT_EQ(fixture.document.subFileName, first);
    EXPECT_EQ(fixture.document.rowErrorText(1), u"finding"_s);
    EXPECT_EQ(fixture.editor.lstFont.count(), 4);
    // The document stands in the added file's format, and so no more in its own file.
    EXPECT_EQ(fixture.document.curFormatId, SubViewer2);
    EXPECT_EQ(fixture.document.savedPath, QString());

    ASSERT_EQ(fixture.document.nodeCount, 2);
    EXPECT_EQ(fixture.document.nodes[1].name, u"Part_1"_s);
    EXPECT_EQ(fixture.document.nodes[2].name, u"Part_2"_s);
    EXPECT_EQ(fixture.document.nodes[2].firstRow, 3);
    EXPECT_EQ(fixture.document.nodes[2].lastRow, 3);
    EXPECT_EQ(fixture.document.nodes[0].lastRow, 3);
    EXPECT_EQ(fixture.cell(3, NumberColumn), u" { 3 }"_s);
}

TEST(Load, CountsAnAddedNodeAsItsFormatCounts)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"a.srt"_s, subRip));
    const QString path = fixture.document.savedPath;
    fixture.add(fixture.write(u"b.txt"_s, tmPlayer + tmPlayer));
    EXPECT_EQ(fixture.document.nodes[2].firstRow, 3);
    EXPECT_EQ(fixture.document.nodes[2].lastRow, 6); // two lines a subtitle
    EXPECT_EQ(fixture.document.nodes[0].lastRow, 6);
    fixture.messageWindow.answer(Answer::No);
    fixture.load(path);
    fixture.add(path);
    EXPECT_EQ(fixture.document.savedPath, path) << "an added file of the same format";
}

TEST(Load, RefusesTheHundredthNode)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"a.srt"_s, subRip));
    fixture.document.nodeCount = SubtitleDocument::maxNodes;
    EXPECT_EQ(fixture.add(u"/nowhere/b.srt"_s).kind, Kind::Failed);
    EXPECT_EQ(fixture.takeMessages(),
              "File.Add Error: The file can't be added: a document holds 99 nodes at most.");
}

TEST(Load, AsksAboutChanges)
{
    struct Case
    {
        Answer answer;
        bool saves;
        Kind kind;
        const char *calls;
    };
    const Case cases[] = {
        {Answer::Cancel, true, Kind::Cancelled, ""},
        {Answer::No, true, Kind::Loaded, "name 9, recent b.srt, enable, loaded"},
        {Answer::Yes, true, Kind::Loaded, "save, name 9, recent b.srt, enable, loaded"},
        {Answer::Yes, false, Kind::Cancelled, "save"},
    };
    for (const Case &c : cases) {
        FormatsFixture fixture;
        fixture.document.subFileName = u"/nights/a.srt"_s;
        fixture.document.setFileChanged(true);
        fixture.host.saves = c.saves;
        fixture.messageWindow.answer(c.answer);
        const QString path = fixture.write(u"b.srt"_s, subRip);
        EXPECT_EQ(fixture.load(path).kind, c.kind);
        EXPECT_EQ(fixture.host.take(), c.calls);
        EXPECT_EQ(fixture.document.fileChanged(), c.kind == Kind::Cancelled);
        EXPECT_EQ(fixture.takeMessages(),
                  "Warning: File not saved: Kavro is about to load '" + path.toStdString()
                      + "',/but file '/nights/a.srt'/has been changed and not saved.//Do you want "
                        "to save now?/If you choose 'No', all changes are lost.");
    }
}

QString manySubtitles(int count)
{
    QString text;
    for (int i = 1; i <= count; ++i)
        text += u"%1\n00:00:01,000 --> 00:00:02,000\nx\n\n"_s.arg(i);
    return text;
}

TEST(Load, KeepsTheLimit)
{
    FormatsFixture fixture;
    EXPECT_EQ(fixture.load(fixture.write(u"full.srt"_s, manySubtitles(9999))).kind, Kind::Loaded);
    EXPECT_EQ(fixture.document.subtitleCount(), 9999);

    const QString one = fixture.write(u"one.srt"_s, manySubtitles(1));
    EXPECT_EQ(fixture.add(one).kind, Kind::LimitReached);
    EXPECT_EQ(fixture.document.subtitleCount(), 9999);
    EXPECT_EQ(fixture.document.nodeCount, 1);
    EXPECT_EQ(fixture.takeMessages(),
              "Reading limit: File '" + one.toStdString()
                  + "' reached limit of 9999 lines. File contains10001 lines. Select 'Cancel' to "
                    "exit.");

    const QString over = fixture.write(u"over.srt"_s, manySubtitles(10000));
    EXPECT_EQ(fixture.load(over).kind, Kind::LimitReached);
    EXPECT_EQ(fixture.messageWindow.shown.size(), 1);
    EXPECT_EQ(fixture.editor.grdSubEdit.rows(), 2);
    EXPECT_EQ(fixture.document.savedPath, QString()) << "an empty grid must not be saved there";
    EXPECT_EQ(fixture.document.nodeCount, 0);
    EXPECT_FALSE(fixture.document.editorBlocked);
}

TEST(Load, KeepsTheLimitWhereTheCountIsNoWholeOne)
{
    const QString whole = u"<SYNC START=1>\n<P>a\n<SYNC START=2>\n<P>\n"_s.repeated(9999);
    const QString times = u"00:00:01,000 --> 00:00:02,000\n\n"_s;
    const std::pair<int, QString> cases[] = {
        {Sami, whole + u"<SYNC START=3>\n"_s},           // a lone start becomes a row
        {SubRip, times + u"x\n\n7\n"_s.repeated(10000)}, // rows that nobody counted
    };
    for (const auto &[format, text] : cases) {
        FormatsFixture fixture;
        EXPECT_EQ(fixture.load(fixture.write(u"a"_s, text), format).kind, Kind::LimitReached);
        EXPECT_EQ(fixture.document.subtitleCount(), 0);
        EXPECT_TRUE(fixture.messageWindow.shown.last().text.contains(u"contains10001 lines"_s));
    }
    FormatsFixture fixture;
    EXPECT_EQ(fixture.load(fixture.write(u"a"_s, whole), Sami).kind, Kind::Loaded);
}

TEST(Load, AsksOnAboutBadLinesUntilTheAnswerIsNo)
{
    const QString bad = u"1\n00:00:01,000 --> 00:00:02,000\na\nb\nc\nd\ne\n\n"
                        "2\n00:00:03,000 --> 00:00:04,000\na\nb\nc\nf\n"_s;
    FormatsFixture fixture;
    const QString path = fixture.write(u"a.srt"_s, bad);
    fixture.messageWindow.answer(Answer::Yes);
    fixture.messageWindow.answer(Answer::No);
    EXPECT_EQ(fixture.load(path).skippedLines, 3);
    ASSERT_EQ(fixture.messageWindow.shown.size(), 2);
    EXPECT_TRUE(fixture.messageWindow.shown[1].text.contains(u"Line #1 = 'e'"_s));

    fixture.messageWindow.shown.clear();
    LoadRequest silent{.path = path, .showLog = false};
    EXPECT_EQ(fixture.loader.LoadSubFile(silent).skippedLines, 3);
    EXPECT_TRUE(fixture.messageWindow.shown.isEmpty());
}

TEST(Load, ShowsItsProgressAndItsEnd)
{
    FormatsFixture fixture;
    fixture.settings.Check3.setOn(false);
    const QString path = fixture.write(u"a.srt"_s, subRip);
    fixture.load(path);
    EXPECT_TRUE(fixture.frmControl.isOpen());
    EXPECT_EQ(fixture.frmControl.caption(), u"Loading file"_s);
    EXPECT_EQ(fixture.control.ProgressBar1.value(), 0);

    fixture.load(u"/nowhere/a.srt"_s);
    EXPECT_EQ(fixture.frmControl.caption(), u"File not loaded"_s);

    fixture.frmControl.hide();
    LoadRequest silent{.path = path, .showLog = false};
    fixture.loader.LoadSubFile(silent);
    EXPECT_FALSE(fixture.frmControl.isOpen());
}

TEST(Load, TakesTheEncodingOfTheFile)
{
    FormatsFixture fixture;
    const QByteArray greek = subRip.toUtf8().replace("One", "\xC1\xE8\xDE\xED\xE1");
    const QString path = fixture.writeBytes(u"a.srt"_s, greek);
    fixture.settings.cmbScript.setSelected(4); // "Greek (161)"
    fixture.settings.Check6[0].setOn(true);
    fixture.load(path);
    EXPECT_EQ(fixture.document.encoding.name, "Windows-1253");
    EXPECT_EQ(fixture.cell(1, FirstTextColumn), u" Αθήνα"_s);

    LoadRequest request{.path = path};
    request.encoding.encoding = encodingByName(u"windows-1251");
    fixture.loader.LoadSubFile(request);
    EXPECT_EQ(fixture.document.encoding.name, "Windows-1251");
}

} // namespace
} // namespace kavro::test
