#include "app/help_pages.h"
#include "core/safe_file.h"
#include "tests/support/test_program.h"

#include <QDir>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(Start, WithoutFileCountsDownBehindTheSplash)
{
    TestProgram run;
    run.start();
    Label &text = run->splash.Label1;
    EXPECT_TRUE(run->frmSplash.isOpen());
    EXPECT_FALSE(run->frmMain.isOpen());
    EXPECT_EQ(run->splash.lblVersion.caption(), u"Kavro 4.0"_s);
    EXPECT_EQ(text.caption(), u"Done"_s);
    EXPECT_EQ(text.foreColor().text(), u"008000"_s);

    QStringList seen;
    while (run->splash.Timer2.isOn() && seen.size() < 10) {
        run->splash.Timer2.fire();
        seen.append(text.caption());
    }
    EXPECT_EQ(seen.size(), 6);
    EXPECT_EQ(seen.at(0), u"Press a key to continue or wait 5 seconds..."_s);
    EXPECT_EQ(seen.at(4), u"Press a key to continue or wait 1 second..."_s);
    EXPECT_FALSE(run->frmSplash.isOpen());
    EXPECT_TRUE(run->frmMain.isOpen());
    EXPECT_TRUE(run->frmTip.isOpen());
    ASSERT_EQ(run.doors.help.opened.size(), 1);
    EXPECT_TRUE(run.doors.help.opened.constFirst().endsWith(u"English/main_wel.htm"_s));
}

TEST(Start, ClickLeavesTheSplashAndTipsFollowTheSetting)
{
    TestProgram run;
    run.start();
    run->settings.Check7[SettingsPage::ShowTips].setOn(false);
    for (int click = 0; click < 2; ++click) {
        run->splash.lblBuild.click();
        EXPECT_TRUE(run->frmMain.isOpen());
        EXPECT_FALSE(run->frmTip.isOpen());
        EXPECT_FALSE(run->splash.Timer2.isOn());
        EXPECT_EQ(run.doors.help.opened.size(), 1);
    }
}

TEST(Start, NamedFileIsLoadedOnceWithoutSplash)
{
    TestProgram run;
    const QString file = run.write(u"my film.srt"_s, twoSubtitles());
    const QString other = run.write(u"other.srt"_s, twoSubtitles());
    run.writeApp(u"System/last.sdf"_s, other + u"\n\n"_s);
    run.writeApp(u"System/Settings/set.sdf"_s, u" 0 \n 1 \n"_s); // load the last files
    int opened = 0;
    QObject::connect(&run->frmControl, &Form::openChanged, &run->frmControl, [&] { ++opened; });
    run.start(file);

    EXPECT_TRUE(run->frmMain.isOpen());
    EXPECT_FALSE(run->frmSplash.isOpen());
    EXPECT_FALSE(run->frmTip.isOpen());
    EXPECT_EQ(run->document.subFileName, file);
    EXPECT_EQ(run.rows(), QStringList({u"00:00:01,000|00:00:02,500|One"_s,
                                       u"00:00:03,000|00:00:04,000|Two|lines"_s}));
    EXPECT_EQ(run->navigation.Combo13.items(), QStringList(file));
    EXPECT_EQ(opened, 0) << "the progress window stays away during the start";
    EXPECT_EQ(run.takeMessages(), QStringList());

    LoadRequest request{.path = other};
    run->loader.LoadSubFile(request);
    EXPECT_EQ(opened, 2) << "and opens and closes for a later load";
}

TEST(Start, FileThatIsNotThereIsTold)
{
    TestProgram run;
    run.start(run.path(u"none.srt"_s));
    EXPECT_TRUE(run->frmMain.isOpen());
    EXPECT_EQ(run.takeMessages().size(), 1);
    EXPECT_EQ(run->document.subtitleCount(), 0);
}

TEST(Start, LastFilesAreLoadedWhenTheSettingSaysSo)
{
    struct Case
    {
        const char *name;
        bool on;
        QString movie;
        QString missing;
        int rows;
        bool played;
    };
    for (const Case &given :
         {Case{"off", false, {}, {}, 0, false}, Case{"subtitle alone", true, {}, {}, 2, false},
          Case{"with its movie", true, u"/films/a.avi"_s, {}, 2, true},
          Case{"no player", true, u"/films/a.avi"_s, u"none"_s, 2, false}})
    {
        SCOPED_TRACE(given.name);
        TestProgram run;
        const QString file = run.write(u"a.srt"_s, twoSubtitles());
        run.writeApp(u"System/last.sdf"_s, file + u'\n' + given.movie + u'\n');
        run.writeApp(u"System/Settings/set.sdf"_s, given.on ? u"0\n1\n"_s : u"0\n0\n"_s);
        run.doors.player.missing = given.missing;
        run.start();
        EXPECT_EQ(run->document.subtitleCount(), given.rows);
        EXPECT_EQ(run->player.Command8[3].isEnabled(), given.played);
        EXPECT_EQ(run.takeMessages(), QStringList());
        EXPECT_TRUE(run->frmSplash.isOpen());
    }
}

// As the load command does, and yet nobody has acted.
TEST(Start, WhatItOpensIsScanned)
{
    for (const QString &way : {u"named"_s, u"setting file"_s, u"last"_s, u"brought back"_s}) {
        SCOPED_TRACE(way.toStdString());
        TestProgram run;
        const QString film = run.write(u"film.srt"_s, u"1\n00:00:02,000 --> 00:00:01,000\na\n\n"_s);
        const QString list = run.write(u"film.scd"_s, film + u'\n');
        if (way == u"last"_s) {
            run.writeApp(u"System/last.sdf"_s, film + u"\n\n"_s);
            run.writeApp(u"System/Settings/set.sdf"_s, u"0\n1\n"_s);
            run.start();
        } else if (way == u"brought back"_s) {
            run.start(film);
            run->editor.Command14.click();
            run->recovery.timRecovery.fire();
            run->recovery.finishWriting();
            run.restart();
            run.doors.messages.answer(Answer::Yes);
            run.start();
        } else {
            run.start(way == u"named"_s ? film : list);
        }
        EXPECT_EQ(run->document.subFileName, film);
        EXPECT_EQ(run->document.errorCount, 1);
        EXPECT_EQ(run->trace.lastActionCode, 0);
    }
}

TEST(Start, InitialValues)
{
    TestProgram run;
    run.start();
    EXPECT_EQ(run->frmMain.caption(), u"Kavro 4.0"_s);
    EXPECT_EQ(run->navigation.tabMain.tab(), 2);
    EXPECT_EQ(run->document.frameRate, u"25.000"_s);
    EXPECT_EQ(run->frameRates.Combo14[0].selected(), 2);
    EXPECT_EQ(run->frameRates.Combo14[1].selected(), 2);
    EXPECT_EQ(run->formats.combo3.item(9), u"Substation Alpha"_s);
    EXPECT_EQ(run->formats.Combo7.item(0), u"All Formats"_s);
    EXPECT_EQ(run->formats.Combo8[0].item(0), u"All Languages"_s);
    EXPECT_EQ(run->formats.Combo8[0].item(35), u"Urdu"_s);
    EXPECT_EQ(run->formats.Combo8[1].selectedText(), u"English"_s);
    EXPECT_EQ(run->fonts.Combo9[0].selectedText(), u"Arial"_s);
    EXPECT_EQ(run->fonts.Combo9[1].item(3), u"Bold Italic"_s);
    EXPECT_EQ(run->editor.grdSubEdit.text(0, 3), u"Text #1"_s);
    EXPECT_EQ(run->status.StatusBar1.panel(3), u"Ready"_s);
    EXPECT_EQ(run->clipboard.command4[0].caption(), u"Copy.To.Duration"_s);
    EXPECT_FALSE(run->editor.Command10.isEnabled());
    EXPECT_FALSE(run->menu.mnuSavesubfile.isEnabled());
}

TEST(Start, ScreenWithoutTheDefaultFontListsItAllTheSame)
{
    TestProgram run;
    run.doors.screen.names = {u"Sans"_s, u"Serif"_s};
    run.start();
    EXPECT_EQ(run->fonts.Combo9[0].items(), QStringList({u"Arial"_s, u"Sans"_s, u"Serif"_s}));
    EXPECT_EQ(run->fonts.Combo9[0].selected(), 0);
}

TEST(Start, VerbShowsTheMainFormAndTakesNothingOfAPerson)
{
    TestProgram run;
    run.writeApp(u"System/Settings/set.sdf"_s, u"1\n1\n1\n1\n0\n"_s);
    run.writeApp(u"System/recent.sdf"_s, u"/a.srt\n"_s);
    run.startForVerb();
    EXPECT_TRUE(run->frmMain.isOpen());
    EXPECT_FALSE(run->frmSplash.isOpen());
    EXPECT_FALSE(run->settings.Check7[SettingsPage::LoadLastFiles].isOn());
    EXPECT_EQ(run->navigation.Combo13.count(), 0);
    EXPECT_TRUE(run->exit());
    EXPECT_TRUE(TestProgram::read(run.appPath(u"System/pos.sdf"_s)).isNull());
}

TEST(Start, FormsAndControlsAreFoundByName)
{
    TestProgram run;
    Program &program = run.program();
    EXPECT_EQ(program.control(u"COMMAND10"), &program.editor.Command10);
    EXPECT_EQ(program.control(u"frmSettings.check7(3)"), &program.settings.Check7[3]);
    EXPECT_EQ(program.control(u"frmMain.command55(0)"), &program.navigation.command55[0]);
    EXPECT_EQ(program.control(u"frmNone.Check7(3)"), nullptr);
    EXPECT_EQ(program.control(u"Check7(3)"), nullptr);
    EXPECT_EQ(program.form(u"FRMTIP"), &program.frmTip);
}

TEST(Start, FolderThatCannotBeMadeIsTold)
{
    TestProgram base;
    const QString file = base.write(u"no folder"_s, u"x"_s);
    TestProgram run({.shipped = {}, .appFolder = file});
    run.start();
    ASSERT_EQ(run.doors.messages.shown.size(), 1);
    EXPECT_TRUE(run.takeMessages().constFirst().contains(file));
    EXPECT_TRUE(run->frmSplash.isOpen());
}

TEST(Exit, WritesTheStoredFilesAndTidies)
{
    TestProgram run;
    const QString file = run.write(u"a.srt"_s, twoSubtitles());
    run.writeApp(u"System/Macro.sdf"_s, u"a person's macros\n"_s);
    run.start(file);
    run.doors.player.file = u"/films/a.avi"_s;
    run->navigation.screenPos = {.left = -15, .top = 30, .width = 15000, .height = 10000.5};
    run.writeApp(u"Data/Temporarily/0000.shd"_s, u"x"_s);
    run->menu.mnuExit.click();
    EXPECT_TRUE(run->hasEnded());
    EXPECT_FALSE(run->frmMain.isOpen());

    const auto stored = [&](const QString &name) {
        return TestProgram::read(run.appPath(u"System/"_s + name));
    };
    EXPECT_EQ(stored(u"wizard.sdf"_s), u""_s);
    EXPECT_FALSE(stored(u"wizard.sdf"_s).isNull());
    EXPECT_EQ(stored(u"Macro.sdf"_s), u"a person's macros\n"_s);
    EXPECT_EQ(stored(u"sr.sdf"_s), u""_s);
    EXPECT_EQ(stored(u"recent.sdf"_s), file + u'\n');
    EXPECT_EQ(stored(u"last.sdf"_s), file + u"\n/films/a.avi\n"_s);
    EXPECT_EQ(stored(u"pos.sdf"_s), u"-15 \n 30 \n 15000 \n 10000.5 \n"_s);
    EXPECT_TRUE(TestProgram::read(run.appPath(u"System/Settings/set.sdf"_s)).isNull());
    EXPECT_TRUE(QDir(run.appPath(u"Data/Temporarily"_s)).isEmpty());
}

TEST(Exit, OfTwoProgramsOnlyTheOneThatChangedTheRecentListWritesIt)
{
    TestProgram first;
    first.writeApp(u"System/Settings/set.sdf"_s, settingsWith(1, 0));
    first.writeApp(u"System/recent.sdf"_s, u"/old.srt\n"_s);
    first.start();
    TestProgram second({.shipped = {}, .appFolder = first.appPath({}).chopped(1)});
    const QString file = second.write(u"b.srt"_s, twoSubtitles());
    second.start(file);
    EXPECT_NE(first->folders.path(Folder::Temporary), second->folders.path(Folder::Temporary));
    EXPECT_TRUE(second->exit());
    EXPECT_TRUE(first->exit());
    EXPECT_EQ(TestProgram::read(first.appPath(u"System/recent.sdf"_s)),
              u"/old.srt\n"_s + file + u'\n');
}

TEST(Exit, FullDiskLeavesTheOldFilesWhole)
{
    TestProgram run;
    run.writeApp(u"System/last.sdf"_s, u"/old.srt\n\n"_s);
    run.start(run.write(u"a.srt"_s, twoSubtitles()));
    run.store.setFreeBytes(3);
    EXPECT_TRUE(run->exit());
    EXPECT_EQ(TestProgram::read(run.appPath(u"System/last.sdf"_s)), u"/old.srt\n\n"_s);
}

} // namespace
} // namespace kavro::test
