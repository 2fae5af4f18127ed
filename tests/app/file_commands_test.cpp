#include "tests/support/test_program.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// A program that has loaded two subtitles from "film.srt".
class LoadedFile : public testing::Test
{
protected:
    LoadedFile()
    {
        run.start(file);
        run.takeMessages();
    }

    void edit()
    {
        run->editor.grdSubEdit.setText(1, FirstTextColumn, u" Edited"_s);
        run->document.markEdited();
    }

    TestProgram run;
    QString file = run.write(u"film.srt"_s, twoSubtitles());
};

const QString oneSubtitle = u"1\n00:00:10,000 --> 00:00:12,000\nOther\n"_s;

TEST(NewFile, MakesOneEmptyLineInTheFormatOfTheParts)
{
    TestProgram run;
    run.start();
    const std::initializer_list<const Control *> waiting{
        &run->menu.mnuAddFile, &run->menu.mnuSavesubfile, &run->menu.mnuSearch,
        &run->menu.mnuReplace, &run->menu.mnuSearchAgain, &run->menu.mnuGotoLine,
        &run->editor.SSTab2,   &run->editor.btnNode[0],   &run->editor.Label74,
        &run->editor.Label75,  &run->player.Command49[0], &run->player.Command49[1],
    };
    for (const Control *control : waiting) {
        EXPECT_FALSE(control->isEnabled()) << qPrintable(control->name());
    }
    run->formats.combo3.setSelected(SubRip - 1);
    run->menu.mnuNewFile.click();
    for (const Control *control : waiting) {
        EXPECT_TRUE(control->isEnabled()) << qPrintable(control->name());
    }
    EXPECT_FALSE(run->menu.mnuReopen.isEnabled()) << "there is no file to read again";
    EXPECT_EQ(run->document.subFileName, run.appPath(u"Data/Files/Noname.srt"_s));
    EXPECT_EQ(run->document.subBaseName, u"Noname"_s);
    EXPECT_EQ(run->editor.grdSubEdit.rows(), 3);
    EXPECT_EQ(run->status.StatusBar1.panel(2), u"SubRip"_s);
    EXPECT_EQ(run->status.lblEncoding.caption(), u"UTF-8"_s);
    EXPECT_EQ(run->trace.lastActionCode, 101);
    EXPECT_FALSE(run->document.fileChanged());
}

TEST_F(LoadedFile, NewFileAsksBeforeChangesAreLost)
{
    edit();
    run.doors.messages.answer(Answer::No);
    run->menu.mnuNewFile.click();
    EXPECT_EQ(run->document.subtitleCount(), 2);
    run.doors.messages.answer(Answer::Yes);
    run->menu.mnuNewFile.click();
    EXPECT_EQ(run->document.subtitleCount(), 1);
    EXPECT_FALSE(run->document.fileChanged());
    EXPECT_EQ(run.takeMessages().constFirst(),
              u"File "_s + file
                  + u" has been changed and not saved.\n\nDo you want to continue creating new "
                    "file?"_s);
}

TEST_F(LoadedFile, LoadTakesWhatTheFileWindowGives)
{
    const QString other = run.write(u"sub/other.srt"_s, oneSubtitle);
    run.doors.files.choose(other);
    run->menu.mnuLoadFile.click();
    EXPECT_EQ(run.rows(), QStringList(u"00:00:10,000|00:00:12,000|Other"_s));
    EXPECT_EQ(run->trace.lastActionCode, 102);
    const FileRequest &request = run.doors.files.shown.constFirst();
    EXPECT_EQ(request.info, u"Load a file."_s);
    EXPECT_EQ(request.folder, run.appPath(u"Data/Files"_s));
    EXPECT_FALSE(request.nameEnabled);
    EXPECT_FALSE(request.offersMediaName);

    // The window comes back in the folder and with the filter of the last time.
    run->trace.macroRunning = true;
    run->menu.mnuLoadFile.click();
    EXPECT_EQ(run.doors.files.shown.constLast().folder, run.path(u"sub"_s));
    EXPECT_FALSE(run->trace.macroRunning) << "Cancel stops a macro";
    EXPECT_EQ(run->messages.msgResult, Answer::Cancel);
    EXPECT_EQ(run->document.subtitleCount(), 1);
}

TEST_F(LoadedFile, LoadStopsWhenTheSaveItAskedForWroteNothing)
{
    const QString other = run.write(u"other.srt"_s, oneSubtitle);
    struct Case
    {
        const char *name;
        Answer answer;
        bool save;
        bool loaded;
    };
    for (const Case &given : {Case{"cancel", Answer::Cancel, false, false},
                              Case{"yes, and the save is cancelled", Answer::Yes, false, false},
                              Case{"yes", Answer::Yes, true, true}})
    {
        SCOPED_TRACE(given.name);
        edit();
        run.doors.messages.replies.clear();
        run.doors.messages.answer(given.answer);
        run.doors.files.choose(other);
        if (given.save) {
            run.doors.files.choose(run.path(u"saved.srt"_s), SubRip);
        } else if (given.answer == Answer::Yes) {
            run.doors.files.cancel();
        }
        run->menu.mnuLoadFile.click();
        EXPECT_EQ(run->document.subFileName, given.loaded ? other : file);
        EXPECT_EQ(run->document.fileChanged(), !given.loaded);
    }
    EXPECT_TRUE(TestProgram::read(run.path(u"saved.srt"_s)).contains(u"Edited"_s));
}

TEST_F(LoadedFile, MovieWithoutPlayerLeavesTheDocumentAlone)
{
    run.doors.player.missing = u"No player is built in yet."_s;
    const QString movie = run.write(u"film.avi"_s, u"x"_s);
    run->dropFile(movie);
    EXPECT_EQ(run->document.subFileName, file);
    EXPECT_EQ(run->navigation.tabMain.tab(), 2);
    const QStringList messages = run.takeMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.constFirst().contains(run.doors.player.missing));

    run.doors.player.missing.clear();
    run.doors.player.length = 61.5;
    run->dropFile(movie);
    EXPECT_EQ(run->navigation.tabMain.tab(), 3);
    EXPECT_TRUE(run->player.Slider1.isEnabled());
    EXPECT_EQ(run->player.Slider1.maximum(), 61.5);
    EXPECT_EQ(run->document.subtitleCount(), 2);
}

TEST_F(LoadedFile, AddPutsTheFileBehindTheDocument)
{
    run.doors.files.choose(run.write(u"more.srt"_s, oneSubtitle));
    run->menu.mnuAddFile.click();
    const FileRequest &request = run.doors.files.shown.constFirst();
    EXPECT_EQ(request.info, u"Add subtitle file"_s);
    EXPECT_EQ(request.filterIndex, SubRip);
    EXPECT_EQ(request.name, u"film.srt"_s);
    EXPECT_FALSE(request.nameEnabled);
    EXPECT_EQ(run->document.subtitleCount(), 3);
    EXPECT_EQ(run.rows().constLast(), u"00:00:14,000|00:00:16,000|Other"_s);
    EXPECT_EQ(run->document.subFileName, file);
    EXPECT_TRUE(run->document.fileChanged());
    EXPECT_EQ(run->document.nodeCount, 2);
    EXPECT_EQ(run->trace.lastActionCode, 103);
}

TEST_F(LoadedFile, SaveNamesTheDocumentAfterTheFormat)
{
    edit();
    run->history.List1.addItem(u"0000 [...] Row 1 deleted"_s);
    run.doors.files.choose(run.path(u"out.v2.txt"_s), SubViewer2);
    run->menu.mnuSavesubfile.click();
    const QString saved = run.path(u"out.v2.sub"_s);
    EXPECT_TRUE(TestProgram::read(saved).contains(u"Edited"_s));
    EXPECT_EQ(run->document.subFileName, saved);
    EXPECT_EQ(run->document.subBaseName, u"out"_s);
    EXPECT_EQ(run->document.curFormatId, SubViewer2);
    EXPECT_FALSE(run->document.fileChanged());
    EXPECT_EQ(run->history.List1.count(), 0);
    EXPECT_EQ(run->navigation.Combo13.items(), QStringList({file, saved}));
    EXPECT_EQ(run->status.StatusBar1.panel(2), u"SubViewer 2.0"_s);
    EXPECT_FALSE(TestProgram::read(run.appPath(u"System/Nodes/out.sdf"_s)).isNull());
    EXPECT_EQ(run->trace.lastActionCode, 104);
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(LoadedFile, SaveThatWroteNothingChangesNothing)
{
    const QString target = run.write(u"there.srt"_s, u"old\n"_s);
    struct Case
    {
        const char *name;
        QString path;
        qint64 freeBytes;
        Answer answer;
    };
    for (const Case &given : {Case{"cancelled", {}, 1000000, Answer::No},
                              Case{"kept the old file", target, 1000000, Answer::No},
                              Case{"full disk", target, 5, Answer::Yes},
                              Case{"no such folder", run.path(u"none/a.srt"_s), 100, Answer::No}})
    {
        SCOPED_TRACE(given.name);
        edit();
        run->history.List1.setItems({u"a line"_s});
        run.store.setFreeBytes(given.freeBytes);
        run.doors.messages.replies.clear();
        run.doors.messages.answer(given.answer);
        run.doors.files.replies.clear();
        if (!given.path.isEmpty()) {
            run.doors.files.choose(given.path, SubRip);
        }
        run->menu.mnuSavesubfile.click();
        EXPECT_EQ(run->document.subFileName, file);
        EXPECT_TRUE(run->document.fileChanged());
        EXPECT_EQ(run->history.List1.count(), 1);
        EXPECT_EQ(run->navigation.Combo13.count(), 1);
        EXPECT_EQ(TestProgram::read(target), u"old\n"_s);
    }
}

TEST_F(LoadedFile, SaveWindowStartsWithAFormatAndTakesNothingElse)
{
    struct Case
    {
        const char *name;
        int left; ///< the filter that the last command left behind
        bool sameFormat;
        int shown;
        int chosen;
    };
    const QString out = run.path(u"out.srt"_s);
    for (const Case &given :
         {Case{"another format", SubViewer1, false, SubViewer1, 0},
          Case{"the setting wants the document's", SubViewer1, true, SubRip, 17},
          Case{"supported files", 0, false, SubRip, 20}, Case{"movies", 18, false, SubRip, 17}})
    {
        SCOPED_TRACE(given.name);
        run->fileCommands.window.List3.setSelected(given.left);
        run->settings.Check4.setOn(given.sameFormat);
        run.doors.files.choose(out, given.chosen);
        run->menu.mnuSavesubfile.click();
        const FileRequest &request = run.doors.files.shown.constLast();
        EXPECT_EQ(request.filterIndex, given.shown);
        EXPECT_EQ(request.firstOtherFilter, 17);
        EXPECT_EQ(request.name, QFileInfo(file).fileName());
        EXPECT_EQ(run.takeMessages().size(), 1);
        EXPECT_TRUE(TestProgram::read(out).isNull());
    }
}

TEST_F(LoadedFile, SaveOfFindingsAsksFirst)
{
    run->document.errorCount = 3;
    run.doors.files.choose(run.path(u"out.srt"_s), SubRip);
    run->menu.mnuSavesubfile.click();
    EXPECT_EQ(run.takeMessages().constFirst(),
              u"File contains 3 errors. Do you want to save this file anyway."_s);
    EXPECT_TRUE(run.doors.files.shown.isEmpty());
    run.doors.messages.answer(Answer::Yes);
    run->menu.mnuSavesubfile.click();
    EXPECT_FALSE(TestProgram::read(run.path(u"out.srt"_s)).isNull());
}

TEST_F(LoadedFile, SaveAsMediaNameTakesTheMoviesName)
{
    run.doors.files.chooseMediaName();
    run->menu.mnuSavesubfile.click();
    EXPECT_EQ(run.takeMessages().size(), 1) << "there is no movie";
    run.doors.player.file = run.path(u"movie.avi"_s);
    run.doors.files.chooseMediaName();
    run->menu.mnuSavesubfile.click();
    EXPECT_EQ(run->document.subFileName, run.path(u"movie.srt"_s));
}

TEST(SaveAtOnce, NeedsTheSameFileAndFormat)
{
    TestProgram run;
    // The extension isn't the format's, and stays.
    const QString file = run.write(u"film.txt"_s, twoSubtitles());
    run.start(file);
    EXPECT_EQ(run->document.curFormatId, SubRip);
    run->editor.grdSubEdit.setText(1, FirstTextColumn, u" Edited"_s);
    run->document.markEdited();
    run->document.errorCount = 1;
    run->history.List1.addItem(u"a line"_s);
    run->menu.mnuSave.click();
    EXPECT_TRUE(TestProgram::read(file).startsWith(u"1\n00:00:01,000 --> 00:00:02,500\nEdited"_s));
    EXPECT_FALSE(QFileInfo::exists(run.path(u"film.srt"_s)));
    EXPECT_EQ(run.takeMessages(), QStringList());
    EXPECT_TRUE(run.doors.files.shown.isEmpty());
    EXPECT_FALSE(run->document.fileChanged());
    EXPECT_EQ(run->trace.lastActionCode, 104);
    EXPECT_EQ(run->history.List1.count(), 1);

    // Behind a split, or an added file of another format, it asks for a name.
    run->document.errorCount = 0;
    run->document.savedPath.clear();
    run->menu.mnuSave.click();
    EXPECT_EQ(run.doors.files.shown.size(), 1);
}

TEST_F(LoadedFile, SaveThatEndsEarlyStaysChanged)
{
    {
        const SubtitleDocument::Act act(run->document);
        run->editor.grdSubEdit.setText(2, EndColumn, u"x"_s);
    }
    const QString out = run.path(u"out.srt"_s);
    run.doors.files.choose(out, SubRip);
    run->menu.mnuSavesubfile.click();
    EXPECT_TRUE(run->document.fileChanged());
    EXPECT_EQ(run.takeMessages().size(), 1);

    run.doors.messages.answer(Answer::Yes);
    run.doors.messages.answer(Answer::Yes);
    run.doors.files.choose(file);
    run.doors.files.choose(out, SubRip);
    run->menu.mnuLoadFile.click();
    EXPECT_EQ(run->document.subFileName, out) << "no load drops the line that is in no file";
    run->menu.mnuUndo.click();
    EXPECT_TRUE(run->document.fileChanged()) << "the line is still in no file";
}

TEST_F(LoadedFile, SaveSettingsAsksForANameAndWritesNothing)
{
    run.doors.files.choose(run.path(u"a.scd"_s));
    run->menu.mnuSaveSettings.click();
    const FileRequest &request = run.doors.files.shown.constFirst();
    EXPECT_EQ(request.filterIndex, 17);
    EXPECT_EQ(request.name, QString());
    EXPECT_TRUE(request.nameEnabled && request.offersMediaName);
    EXPECT_FALSE(QFileInfo::exists(run.path(u"a.scd"_s)));
    EXPECT_EQ(run->trace.lastActionCode, 105);
}

TEST_F(LoadedFile, PrintGivesOneLineASubtitle)
{
    run->menu.mnuPrint.click();
    EXPECT_EQ(run.doors.printer.printed.constFirst(),
              QStringList({u"00001 00:00:01,000 00:00:02,500 One  "_s,
                           u"00002 00:00:03,000 00:00:04,000 Two lines "_s}));
    EXPECT_EQ(run->trace.lastActionCode, 106);
}

TEST_F(LoadedFile, ReopenReadsTheFileInAnotherEncoding)
{
    QFile bytes(file);
    ASSERT_TRUE(bytes.open(QIODevice::WriteOnly));
    bytes.write("1\r\n00:00:01,000 --> 00:00:02,000\r\n\xC0\xE1\r\n");
    bytes.close();
    int cyrillic = -1;
    for (const QString &entry : run->fileCommands.lstEncoding.items()) {
        if (entry.contains(u"Windows-1251"_s)) {
            cyrillic = static_cast<int>(run->fileCommands.lstEncoding.items().indexOf(entry));
        }
    }
    edit();
    run->fileCommands.lstEncoding.pick(cyrillic);
    EXPECT_EQ(run->status.lblEncoding.caption(), u"UTF-8"_s) << "the question was not answered";
    EXPECT_NE(run->fileCommands.lstEncoding.selected(), cyrillic);

    run.doors.messages.answer(Answer::No);
    run->fileCommands.lstEncoding.pick(cyrillic);
    EXPECT_EQ(run.rows(), QStringList(u"00:00:01,000|00:00:02,000|\u0410\u0431"_s));
    EXPECT_EQ(run->status.lblEncoding.caption(), u"Windows-1251"_s);
    EXPECT_EQ(run->fileCommands.lstEncoding.selected(), cyrillic);
    EXPECT_FALSE(run->document.fileChanged());

    run->document.setFileChanged(false);
    run->menu.mnuReopen.click();
    EXPECT_EQ(run->status.lblEncoding.caption(), u"Windows-1251"_s);
}

TEST(FileName, IsShownAndCutInTheStatusBar)
{
    struct Case
    {
        QString path;
        int format;
        QString name;
        QString base;
        QString ftp;
    };
    TestProgram run;
    for (const Case &given :
         {Case{u"/a/film.one.txt"_s, SubRip, u"/a/film.one.srt"_s, u"film"_s, u"film.one.srt"_s},
          Case{u"/a.b/my film"_s, SubViewer1, u"/a.b/my film.sub"_s, u"my film"_s,
               u"my_film.sub"_s},
          Case{u"/a/b"_s, Sami, u"/a/b.sami"_s, u"b"_s, u"b.sami"_s}})
    {
        run->fileCommands.SetFileName(given.path, given.format);
        EXPECT_EQ(run->document.subFileName, given.name);
        EXPECT_EQ(run->document.subBaseName, given.base);
        EXPECT_EQ(run->document.ftpFileName, given.ftp);
    }
    for (const int length : {80, 81}) {
        const QString path = u'/' + QString(length - 5, u'x') + u".srt"_s;
        run->fileCommands.SetFileName(path, SubRip);
        EXPECT_EQ(run->status.StatusBar1.panel(1),
                  length == 80 ? path : path.left(38) + u" .. "_s + path.right(38));
    }
    EXPECT_EQ(run->formats.List8.items().mid(4),
              QStringList({u"Format: SubRip"_s, u"Language: "_s, u"Date: 2024-03-01"_s,
                           u"Time: 12:30:15"_s, u"Status:"_s}));
}

} // namespace
} // namespace kavro::test
