#include "app/help_pages.h"
#include "tests/support/test_program.h"

#include <QFileInfo>

#include <gtest/gtest.h>

#include <functional>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class Navigating : public testing::Test
{
protected:
    Navigating()
    {
        run.start();
        run->splash.ExitfrmSplash();
        run.doors.help.opened.clear();
        run->trace.RecordAction({}, -1);
    }

    void click(const QString &key)
    {
        TreeView &tree = run->navigation.TV1;
        ASSERT_NE(tree.find(key), TreeView::noNode) << key.toStdString();
        tree.click(tree.find(key));
    }

    TestProgram run;
};

TEST_F(Navigating, KeysBringTheirTabsToTheFront)
{
    struct Case
    {
        QString key;
        int mainTab;
        TabStrip &inner;
        int innerTab;
        int code;
    };
    Navigation &navigation = run->navigation;
    EditorPage &editor = run->editor;
    for (const Case &given :
         {Case{u"calc"_s, 0, navigation.tabMain, 0, 1},
          Case{u"classic"_s, 0, navigation.tabCalculator, 1, 3},
          Case{u"part"_s, 1, navigation.tabMain, 1, 4},
          Case{u"edit"_s, 2, navigation.tabMain, 2, 5}, Case{u"font"_s, 2, editor.SSTab2, 3, 9},
          Case{u"tm"_s, 2, editor.SSTab2, 4, 5}, Case{u"fr"_s, 2, editor.SSTab3, 3, 13},
          Case{u"mp"_s, 3, navigation.tabMain, 3, 14},
          Case{u"diag"_s, 4, navigation.tabMain, 4, 15},
          Case{u"macro"_s, 5, navigation.tabMain, 5, 16},
          Case{u"ul"_s, 6, navigation.SSTab5, 1, 19},
          Case{u"sp"_s, 6, navigation.tabClipboard, 1, 21},
          Case{u"info"_s, 6, navigation.tabClipboard, 3, 23},
          Case{u"subhelp"_s, 6, navigation.SSTab1, 1, 39},
          Case{u"none"_s, 6, navigation.SSTab1, 1, 39}})
    {
        SCOPED_TRACE(given.key.toStdString());
        navigation.selectNode(given.key);
        EXPECT_EQ(navigation.tabMain.tab(), given.mainTab);
        EXPECT_EQ(given.inner.tab(), given.innerTab);
        EXPECT_EQ(run->trace.lastActionCode, given.code);
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(Navigating, TreeTellsWhatTheTabsShow)
{
    Navigation &navigation = run->navigation;
    EditorPage &editor = run->editor;
    const auto place = [&] { return navigation.TV1.node(navigation.TV1.selected()).key; };
    EXPECT_EQ(place(), u"edit"_s) << "the page of the start";
    struct Case
    {
        const char *name;
        std::function<void()> act;
        QString place;
    };
    for (const Case &given :
         {Case{"a tab", [&] { navigation.tabMain.pick(4); }, u"diag"_s},
          Case{"the program", [&] { navigation.tabMain.setTab(2); }, u"edit"_s},
          Case{"an inner tab", [&] { editor.SSTab2.pick(1); }, u"sr"_s},
          Case{"the other inner tabs", [&] { editor.SSTab3.pick(0); }, u"shift"_s},
          Case{"a tab that stood", [&] { editor.SSTab2.pick(1); }, u"sr"_s},
          Case{"the page without a node", [&] { editor.SSTab2.pick(4); }, u"sr"_s},
          Case{"tabs behind the page", [&] { navigation.tabCalculator.setTab(1); }, u"sr"_s},
          Case{"the bottom panel", [&] { navigation.tabClipboard.pick(1); }, u"sp"_s},
          Case{"the same page", [&] { navigation.tabMain.pick(2); }, u"edit"_s},
          Case{"a node", [&] { click(u"classic"_s); }, u"classic"_s}})
    {
        SCOPED_TRACE(given.name);
        given.act();
        EXPECT_EQ(place(), given.place);
    }
}

TEST_F(Navigating, CommandsWithoutADocumentAreRefusedInWords)
{
    for (const QString &key : {u"add"_s, u"save_sub"_s, u"print"_s, u"preview"_s}) {
        click(key);
    }
    EXPECT_TRUE(run.doors.files.shown.isEmpty());
    EXPECT_EQ(run.doors.messages.shown.constFirst().title, u"Warning"_s);
    const QStringList texts = run.takeMessages();
    ASSERT_EQ(texts.size(), 4);
    EXPECT_EQ(texts.at(0), u"You can not add a file while there is no primairy file loaded first. "
                           "Please load a primairy file first. Press Ok to continue."_s);
    EXPECT_TRUE(texts.at(3).startsWith(u"You can not view any content"_s));

    run->dropFile(run.write(u"a.srt"_s, twoSubtitles()));
    for (const QString &key : {u"add"_s, u"save_sub"_s, u"preview"_s, u"system"_s, u"file"_s}) {
        click(key);
    }
    EXPECT_EQ(run.doors.files.shown.size(), 2);
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(Navigating, NodesThatLeadNowhereYetAreKnown)
{
    const auto leads = [&](const QString &key) {
        return run->navigation.leadsSomewhere(run->navigation.TV1.find(key));
    };
    EXPECT_TRUE(leads(u"menu"_s) && leads(u"new"_s) && leads(u"basic"_s) && leads(u"clip"_s));
    EXPECT_FALSE(leads(u"recent"_s) || leads(u"collection"_s) || leads(u"adv"_s));
    run->navigation.addRecent(u"/a.srt"_s);
    EXPECT_TRUE(leads(u"recent"_s) && leads(u"lf_/a.srt"_s));
}

TEST_F(Navigating, RecentNodesLoadTheirFile)
{
    run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(1, 0));
    run.writeApp(u"System/recent.sdf"_s, u"/gone.srt\n"_s);
    run.restart();
    run.start();
    const QString first = run.write(u"first.srt"_s, twoSubtitles());
    const QString second = run.write(u"second.srt"_s, twoSubtitles());
    for (const QString &file : {first, second, first}) {
        run->dropFile(file);
    }
    EXPECT_EQ(run->navigation.Combo13.items(), QStringList({u"/gone.srt"_s, first, second}));
    EXPECT_EQ(run->navigation.Combo13.selected(), 1);
    click(u"lf_"_s + second);
    EXPECT_EQ(run->document.subFileName, second);
    EXPECT_EQ(run.takeMessages(), QStringList());
    click(u"lf_/gone.srt"_s);
    EXPECT_EQ(run->document.subFileName, second);
    EXPECT_EQ(run.takeMessages().size(), 1);
    const TreeView &tree = run->navigation.TV1;
    EXPECT_EQ(tree.node(tree.find(u"lf_/gone.srt"_s)).text, u"/gone.srt"_s);
}

TEST_F(Navigating, CopyButtonsFollowThePage)
{
    struct Case
    {
        const char *name;
        TabStrip &tabs;
        int tab;
        QString first;
        QString second; ///< empty while it is hidden
    };
    Navigation &navigation = run->navigation;
    TabStrip &timing = run->editor.SSTab3;
    for (const Case &given :
         {Case{"stretch", timing, 1, u"Copy.To.First"_s, u"Copy.To.Last"_s},
          Case{"time", timing, 2, u"Copy.To.Start"_s, u"Copy.To.End"_s},
          Case{"shift", timing, 0, u"Copy.To.Duration"_s, {}},
          Case{"advanced", navigation.tabMain, 0, u"Copy.To.Spreadsheet"_s, {}},
          Case{"classic", navigation.tabCalculator, 1, u"Copy.To.A"_s, u"Copy.To.B"_s},
          Case{"partition", navigation.tabMain, 1, u"Copy.To.Partitionlist"_s, {}},
          Case{"editor again", navigation.tabMain, 2, u"Copy.To.Duration"_s, {}},
          Case{"away", navigation.tabMain, 1, u"Copy.To.Partitionlist"_s, {}},
          Case{"player", navigation.tabMain, 3, u"Copy.To.Duration"_s, {}}})
    {
        SCOPED_TRACE(given.name);
        given.tabs.pick(given.tab);
        const auto &copy = run->clipboard.command4;
        EXPECT_EQ(copy[0].caption(), given.first);
        EXPECT_EQ(copy[1].isVisible(), !given.second.isEmpty());
        if (copy[1].isVisible()) {
            EXPECT_EQ(copy[1].caption(), given.second);
        }
        EXPECT_FALSE(copy[0].toolTip().isEmpty());
    }
}

TEST_F(Navigating, BottomPanelOpensWithAnotherPage)
{
    Button &toggle = run->navigation.command55[0];
    TabStrip &panel = run->navigation.tabClipboard;
    EXPECT_EQ(toggle.caption(), u"-"_s);
    toggle.click();
    EXPECT_EQ(toggle.caption(), u"+"_s);
    EXPECT_FALSE(panel.isVisible());
    run->navigation.tabMain.pick(2);
    EXPECT_FALSE(panel.isVisible()) << "the page that shows already";
    run->navigation.tabMain.pick(4);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(toggle.caption(), u"-"_s);
}

TEST_F(Navigating, PlayerPageRefreshesItsListForAMovie)
{
    run->dropFile(run.write(u"a.srt"_s, twoSubtitles()));
    run->document.markEdited();
    run->player.Combo1.clear();
    run->navigation.tabMain.pick(3);
    EXPECT_EQ(run->player.Combo1.count(), 0) << "there is no movie";
    EXPECT_EQ(run->player.Label27.caption(), u"Stopped [Media Player]"_s);
    run.doors.player.file = u"/a.avi"_s;
    run->navigation.tabMain.pick(3);
    EXPECT_EQ(run->player.Combo1.count(), 2);
    EXPECT_TRUE(run->document.subtitleChanged);
}

TEST_F(Navigating, RecorderKeepsItsOwnTabOut)
{
    run->trace.recorderState = 1;
    run->navigation.tabMain.pick(5);
    EXPECT_EQ(run->trace.lastActionCode, -1);
    run->navigation.tabMain.setTab(3);
    EXPECT_EQ(run->trace.lastActionCode, -1) << "setting records nothing";
    run->navigation.tabMain.pick(3);
    EXPECT_EQ(run->trace.lastActionCode, 14);
}

TEST_F(Navigating, AutoHelpOpensThePageOfWhatIsDone)
{
    const QStringList &opened = run.doors.help.opened;
    run->navigation.tabMain.pick(2);
    run->menu.mnuLoadFile.click();
    EXPECT_EQ(opened, QStringList());
    EXPECT_EQ(run->navigation.SSTab1.tab(), 0);

    run->settings.Check7[SettingsPage::AutoHelp].setOn(true);
    struct Case
    {
        QString page;
        std::function<void()> act;
    };
    for (const Case &given : {Case{u"edit_bas.htm"_s, [&] { run->navigation.tabMain.pick(2); }},
                              Case{u"edit_fil.htm"_s, [&] { run->editor.SSTab2.pick(2); }},
                              Case{u"edit_str.htm"_s, [&] { run->editor.SSTab3.pick(1); }},
                              Case{u"main_sp.htm"_s, [&] { run->navigation.tabClipboard.pick(1); }},
                              Case{u"file_load.htm"_s, [&] { run->menu.mnuLoadFile.click(); }},
                              Case{u"file_sset.htm"_s, [&] { run->menu.mnuSaveSettings.click(); }},
                              Case{u"main_his.htm"_s, [&] { run->menu.mnuHistory.click(); }},
                              Case{u"main_set.htm"_s, [&] { run->menu.mnuSettings.click(); }}})
    {
        given.act();
        EXPECT_EQ(QFileInfo(opened.value(opened.size() - 1)).fileName(), given.page);
        EXPECT_EQ(run->navigation.SSTab1.tab(), 1);
    }
}

TEST_F(Navigating, HelpMenuOpensIndexTipsAndAbout)
{
    click(u"onlinehelp"_s);
    EXPECT_TRUE(run.doors.help.opened.constLast().endsWith(u"/help/index.htm"_s));
    EXPECT_EQ(run->trace.lastActionCode, 107);
    run->frmTip.hide();
    click(u"showtips"_s);
    EXPECT_TRUE(run->frmTip.isOpen());
    EXPECT_EQ(run->trace.lastActionCode, 108);
    run.takeMessages();
    click(u"about"_s);
    EXPECT_EQ(run->trace.lastActionCode, 110);
    EXPECT_TRUE(run->frmAbout.isOpen());
    EXPECT_EQ(run->about.lblTitle.caption(), u"Kavro 4.0"_s);
    EXPECT_EQ(run->about.lblLanguage.caption(), u"Language pack: English"_s);
    EXPECT_FALSE(run->about.lblAuthor.isVisible()) << "English is no pack of anybody's";
    run->about.cmdOk.click();
    EXPECT_FALSE(run->frmAbout.isOpen());
    run->help.show();
    EXPECT_TRUE(run.doors.help.opened.constLast().endsWith(u"/System/helpcenter.htm"_s));
    run->help.cmdOk.click();
    EXPECT_FALSE(run->frmHelp.isOpen());
    click(u"exit"_s);
    EXPECT_TRUE(run->hasEnded());
}

TEST(Help, EveryPageIsShipped)
{
    const QString folder =
        QStringLiteral(KAVRO_SOURCE_DIR) + u"/share/System/Language/Help/English/"_s;
    for (int page = 0; page < helpPageCount; ++page) {
        EXPECT_TRUE(QFileInfo::exists(folder + helpPage(page))) << page;
    }
    EXPECT_EQ(helpPage(-1), QString());
    EXPECT_EQ(helpPage(30), QString());
}

TEST(Tips, AreShownAtRandom)
{
    TestProgram run;
    run->tips.show();
    EXPECT_TRUE(run->tips.lblTipText.caption().startsWith(u"That the tip.sdf file was not"_s));
    run->tips.cmdNextTip.click();
    EXPECT_TRUE(run->tips.lblTipText.caption().startsWith(u"That the tip.sdf file was not"_s));

    run.writeApp(u"System/Language/Help/English/tip.sdf"_s, u"one\ntwo\nthree\n"_s);
    run.doors.random.value = 0.5;
    run->tips.show();
    EXPECT_EQ(run->tips.lblTipText.caption(), u"two"_s);
    run.doors.random.value = 0.999;
    run->tips.cmdNextTip.click();
    EXPECT_EQ(run->tips.lblTipText.caption(), u"three"_s);

    run->tips.cmdOk.click();
    EXPECT_FALSE(run->frmTip.isOpen());
}

} // namespace
} // namespace kavro::test
