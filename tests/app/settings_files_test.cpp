#include "tests/support/test_program.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(SettingsFile, EveryLineHasItsControlBothWays)
{
    struct Case
    {
        int line;
        const char16_t *box;
    };
    for (const Case &given :
         {Case{1, u"Check7(0)"}, Case{5, u"Check7(4)"}, Case{11, u"Check7(10)"},
          Case{13, u"Check5(0)"}, Case{14, u"Check5(1)"}, Case{15, u"Check6(0)"},
          Case{16, u"Check6(1)"}, Case{17, u"Check1(0)"}, Case{18, u"Check1(1)"},
          Case{19, u"Check2"}, Case{21, u"Check3"}, Case{22, u"Check4"}})
    {
        TestProgram run;
        const QString file =
            run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(given.line, 1));
        run->settingsFiles.LoadSettingsFile();
        QStringList on;
        for (Control *control : run->frmSettings.controls()) {
            const auto *box = qobject_cast<CheckBox *>(control);
            if (box && box->isOn()) {
                on.append(box->nameWithIndex());
            }
        }
        EXPECT_EQ(on, QStringList(QString::fromUtf16(given.box)));
        EXPECT_TRUE(run->settingsFiles.writeOptions().ok());
        const QStringList lines = TestProgram::read(file).split(u'\n');
        EXPECT_EQ(lines.indexOf(u" 1 "_s), given.line - 1);
        EXPECT_EQ(lines.count(u" 0 "_s), 19);
        EXPECT_EQ(lines.size(), 23);
    }
}

TEST(SettingsFile, StoredFrameRateStaysInForce)
{
    TestProgram run;
    run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(12, 3));
    run.start();
    EXPECT_EQ(run->document.frameRate, u"29.970"_s);
    EXPECT_EQ(run->settings.Combo2.selected(), 3);
    EXPECT_EQ(run->frameRates.Combo14[0].selected(), 3);
    EXPECT_EQ(run->frameRates.Combo14[1].selected(), 3);
    run->frameRates.Combo14[1].pick(1);
    run->settingsFiles.LoadSettingsFile();
    EXPECT_EQ(run->frameRates.Combo14[1].selected(), 3) << "also when that rate is in force";
    EXPECT_NE(run->trace.lastActionCode, 315) << "a value that the program sets records nothing";
    run->frameRates.optFrameRate[0].click();
    EXPECT_EQ(run->document.frameRate, u"23.970"_s);
    EXPECT_EQ(run->trace.lastActionCode, 312);
}

TEST(SettingsFile, DamageLeavesTheRestAsItStandsAndSaysNothing)
{
    const QString whole = settingsWith(22, 1);
    struct Case
    {
        const char *name;
        QString content;
        bool showTips;       ///< line 5
        bool closeAutomatic; ///< line 21
        int recent;
    };
    for (const Case &given :
         {Case{"whole", whole, false, false, 1},
          Case{"eleven lines", whole.section(u'\n', 0, 10) + u'\n', false, true, 0},
          Case{"rate out of range", settingsWith(12, 5), false, true, 0},
          Case{"box out of range", settingsWith(1, 7), true, true, 0},
          Case{"no numbers", QString(whole).replace(u'0', u'z'), false, false, 1},
          Case{"empty", {}, true, true, 0}, Case{"binary", QString(40, QChar(0)), true, true, 0},
          Case{"one long line", QString(2 << 20, u'1'), true, true, 0}})
    {
        SCOPED_TRACE(given.name);
        TestProgram run;
        run.writeApp(u"System/Settings/set.sdf"_s, given.content);
        run.writeApp(u"System/recent.sdf"_s, u"/a.srt\n"_s);
        run.start();
        EXPECT_TRUE(run->frmSplash.isOpen());
        EXPECT_EQ(run.takeMessages(), QStringList());
        EXPECT_EQ(run->settings.Check7[SettingsPage::ShowTips].isOn(), given.showTips);
        EXPECT_EQ(run->settings.Check3.isOn(), given.closeAutomatic);
        EXPECT_EQ(run->navigation.Combo13.count(), given.recent);
    }
}

TEST(RecentFile, DropsMissingFilesWhenTheSettingSaysSo)
{
    for (const bool check : {false, true}) {
        TestProgram run;
        const QString there = run.write(u"there.srt"_s, twoSubtitles());
        // No file system has such a name, so that nobody can tell whether it is there.
        const QString unknown = u'/' + u"n"_s.repeated(300);
        const QString stored = u"/gone.srt\n\n"_s + there + u'\n' + unknown + u'\n';
        run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(8, check ? 1 : 0));
        run.writeApp(u"System/recent.sdf"_s, stored);
        run.start();
        const QStringList expected =
            check ? QStringList{there, unknown} : QStringList{u"/gone.srt"_s, there, unknown};
        EXPECT_EQ(run->navigation.Combo13.items(), expected);
        EXPECT_TRUE(run->exit());
        EXPECT_EQ(TestProgram::read(run.appPath(u"System/recent.sdf"_s)),
                  check ? there + u'\n' + unknown + u'\n' : stored);
    }
}

TEST(RecentFile, KeepsTheLastFive)
{
    TestProgram run;
    run.start();
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"b"_s}) {
        run->navigation.addRecent(u'/' + name);
    }
    EXPECT_EQ(run->navigation.Combo13.count(), 6);
    EXPECT_EQ(run->navigation.Combo13.selectedText(), u"/b"_s) << "it stays where it stood";
    EXPECT_TRUE(run->exit());
    EXPECT_EQ(TestProgram::read(run.appPath(u"System/recent.sdf"_s)), u"/b\n/c\n/d\n/e\n/f\n"_s);
}

TEST(PositionFile, DamageGivesTheMiddleOfTheScreen)
{
    struct Case
    {
        const char *name;
        QString content;
        double left;
        double top;
        double width;
    };
    // 1280 x 800 pixels, 15 twips to a pixel
    constexpr double middleLeft = (1280 * 15 - 14295) / 2.0;
    constexpr double middleTop = (800 * 15 - 9195) / 2.0;
    for (const Case &given :
         {Case{"stored", u" 300 \n-45.5 \n 20000 \n 9195 \n"_s, 300, -45.5, 20000},
          Case{"too small", u"1\n2\n3\n4\n"_s, 1, 2, 14295},
          Case{"missing", {}, middleLeft, middleTop, 14295},
          Case{"short", u"300\n300\n20000\n"_s, middleLeft, middleTop, 14295},
          Case{"no number", u"300\nabc\n20000\n10000\n"_s, middleLeft, middleTop, 14295},
          Case{"far away", u"300\n3\n99999999\n10000\n"_s, middleLeft, middleTop, 14295}})
    {
        SCOPED_TRACE(given.name);
        TestProgram run;
        run.writeApp(u"System/pos.sdf"_s, given.content);
        run->navigation.SetScreenPos();
        EXPECT_EQ(run->navigation.screenPos.left, given.left);
        EXPECT_EQ(run->navigation.screenPos.top, given.top);
        EXPECT_EQ(run->navigation.screenPos.width, given.width);
    }
}

} // namespace
} // namespace kavro::test
