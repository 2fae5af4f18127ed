#include "core/encoding.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

using Startup = SettingsPage::Startup;

class Settings : public testing::Test
{
protected:
    SettingsPage &settings() { return run->settings; }
    SettingsWindow &window() { return run->settingsWindow; }
    QString stored() { return run.appPath(u"System/Settings/set.sdf"_s); }

    /// Opens the window by the menu, acts in it, and closes it by that button of `Command1`.
    void work(const std::function<void()> &act, int button)
    {
        run.doors.forms.during = [&](Form &form) {
            EXPECT_EQ(form.name(), u"frmSettings"_s);
            act();
            window().Command1[button].click();
            EXPECT_FALSE(form.isOpen());
        };
        run->menu.mnuSettings.click();
        run.doors.forms.during = nullptr;
    }
    void confirm(const std::function<void()> &act) { work(act, 1); }
    void cancel(const std::function<void()> &act) { work(act, 0); }

    void start()
    {
        run.start();
        run->splash.ExitfrmSplash();
    }

    TestProgram run;
};

/// The boxes that are on, without those that `boxes` doesn't name.
QString boxesThatAreOn(const SettingsPage &settings)
{
    QString on;
    for (int i = Startup::CheckForUpdates; i <= Startup::ShowWizard; ++i) {
        on += settings.Check7[i].isOn() ? QString::number(i) : QString();
    }
    return on;
}

TEST_F(Settings, BoxesOfTheStartSwitchOthersOff)
{
    const struct
    {
        const char *name;
        int box;
        QString left; ///< of all six
    } cases[] = {
        {"updates", Startup::CheckForUpdates, u"0145"_s},
        {"last files", Startup::LoadLastFiles, u"012345"_s},
        {"list", Startup::UpdateFtpList, u"1245"_s},
        {"news", Startup::CheckForNews, u"13"_s},
        {"tips", Startup::ShowTips, u"0124"_s},
        {"wizard", Startup::ShowWizard, u"0125"_s},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        for (int i = Startup::CheckForUpdates; i <= Startup::ShowWizard; ++i) {
            settings().Check7[i].setOn(true);
        }
        settings().Check7[row.box].check(true);
        EXPECT_EQ(boxesThatAreOn(settings()), row.left);
    }
    settings().Check7[Startup::CheckForNews].setOn(true);
    settings().Check7[Startup::ShowTips].check(false);
    EXPECT_TRUE(settings().Check7[Startup::CheckForNews].isOn()) << "off takes nothing away";
}

TEST_F(Settings, OkStoresAndARestartFindsIt)
{
    start();
    confirm([&] {
        settings().Check7[Startup::LoadLastFiles].check(true);
        settings().Check7[Startup::ShowWizard].check(true);
        settings().Combo2.pick(4);
        settings().Check6[0].check(true);
        settings().cmbScript.pick(7);
        settings().Check3.check(false);
    });
    EXPECT_EQ(run->document.frameRate, u"30.000"_s);
    EXPECT_EQ(run.takeMessages(), QStringList());
    run.restart();
    run.start();
    EXPECT_EQ(boxesThatAreOn(settings()), u"15"_s);
    EXPECT_EQ(run->document.frameRate, u"30.000"_s);
    EXPECT_EQ(settings().Combo2.label()->caption(), u"30"_s);
    EXPECT_EQ(settings().cmbScript.selectedText(), u"Cyrillic (204)"_s);
    EXPECT_TRUE(settings().cmbScript.isAvailable());
    EXPECT_FALSE(settings().Check3.isOn());
}

TEST_F(Settings, CancelBringsBackWhatStood)
{
    start();
    run.writeApp(u"System/recent.sdf"_s, u"/x.srt\n"_s);
    const auto act = [&] {
        settings().Check7[Startup::CheckForNews].check(true);
        settings().Check6[0].check(true);
        settings().cmbScript.type(u"129"_s);
        settings().Check2.check(true);
        settings().Combo2.pick(0);
        settings().Check3.check(false);
    };
    for (const bool byButton : {true, false}) {
        SCOPED_TRACE(byButton);
        if (byButton) {
            cancel(act);
        } else {
            run.doors.forms.during = [&](Form &form) {
                act();
                form.requestClose();
            };
            run->menu.mnuSettings.click();
        }
        EXPECT_EQ(boxesThatAreOn(settings()), u"4"_s);
        EXPECT_EQ(settings().cmbScript.selectedText(), u"Western (0)"_s);
        EXPECT_EQ(settings().cmbScript.count(), 11);
        EXPECT_FALSE(settings().cmbScript.isAvailable());
        EXPECT_FALSE(settings().languageChanged);
        EXPECT_FALSE(settings().List1.isAvailable());
        EXPECT_EQ(settings().Combo2.selectedText(), u"25"_s);
        EXPECT_TRUE(run->controlWindow.chkClose.isOn());
    }
    EXPECT_TRUE(TestProgram::read(stored()).isNull());
    EXPECT_EQ(run->navigation.Combo13.count(), 0) << "the stored list is not read once more";
}

TEST_F(Settings, OkReadsTheRecentListOnceMoreButStoresNoPathTwice)
{
    run.writeApp(u"System/recent.sdf"_s, u"/a.srt\n/b.srt\n"_s);
    run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(1, 0));
    start();
    run->navigation.addRecent(u"/c.srt"_s);
    confirm([] {});
    EXPECT_EQ(run->navigation.Combo13.count(), 5);
    const TreeView &tree = run->navigation.TV1;
    EXPECT_EQ(tree.node(tree.find(u"recent"_s)).children.size(), 3);
    EXPECT_TRUE(run->exit());
    EXPECT_EQ(TestProgram::read(run.appPath(u"System/recent.sdf"_s)),
              u"/a.srt\n/b.srt\n/c.srt\n"_s);
}

TEST_F(Settings, FullDiskIsToldAndTheWindowStaysOpen)
{
    run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(2, 1));
    start();
    const QString before = TestProgram::read(stored());
    run.doors.forms.during = [&](Form &form) {
        settings().Check7[Startup::AutoHelp].check(true);
        run.store.setFreeBytes(10);
        window().Command1[1].click();
        run.store.setFreeBytes({});
        EXPECT_TRUE(form.isOpen());
        EXPECT_TRUE(settings().Check7[Startup::AutoHelp].isOn()) << "nothing is lost";
        window().Command1[0].click();
    };
    run->menu.mnuSettings.click();
    const QStringList told = run.takeMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.constFirst().startsWith(u"The settings can't be stored.\n"_s));
    EXPECT_EQ(TestProgram::read(stored()), before);
    EXPECT_FALSE(settings().Check7[Startup::AutoHelp].isOn());
}

TEST_F(Settings, NodesShowTheirPageAndRecordIt)
{
    start();
    const struct
    {
        QString key;
        QString page;
        int code;
    } cases[] = {
        {u"startup"_s, u"startup"_s, 26}, {u"defaults"_s, u"defaults"_s, 23},
        {u"script"_s, u"script"_s, 27},   {u"audio"_s, u"audio"_s, 24},
        {u"lng"_s, u"lng"_s, 25},         {u"general"_s, u"general"_s, 28},
        {u"system"_s, u"general"_s, 28},  {u"startup"_s, u"startup"_s, 26},
    };
    TreeView &tree = window().TV2;
    EXPECT_EQ(tree.roots().size(), 4);
    for (const auto &row : cases) {
        SCOPED_TRACE(row.key.toStdString());
        tree.click(tree.find(row.key));
        QStringList shown;
        for (const Frame *page : {&window().startup, &window().defaults, &window().lng,
                                  &window().general, &window().script, &window().audio})
        {
            shown += page->isVisible() ? QStringList{page->name()} : QStringList();
        }
        EXPECT_EQ(shown, QStringList{row.page});
        EXPECT_EQ(run->trace.lastActionCode, row.code);
    }
    run->trace.RecordAction({}, -1);
    window().ShowTab(u"none");
    EXPECT_EQ(run->trace.lastActionCode, -1);
    EXPECT_TRUE(window().startup.isVisible());
}

TEST_F(Settings, ScriptIsChosenOrTyped)
{
    const struct
    {
        const char *name;
        QString typed;
        QString selected;
        int characterSet;
        int entries;
        bool refused;
    } cases[] = {
        {"an entry", u"Greek (161)"_s, u"Greek (161)"_s, 161, 11, false},
        {"a number", u"222"_s, u"222"_s, 222, 12, false},
        {"the same number", u"222"_s, u"222"_s, 222, 12, false},
        {"the highest", u"255"_s, u"255"_s, 255, 13, false},
        {"too high", u"256"_s, u"255"_s, 255, 13, true},
        {"negative", u"-1"_s, u"255"_s, 255, 13, true},
        {"empty", {}, u"255"_s, 255, 13, true},
    };
    DropList &scripts = settings().cmbScript;
    settings().Check6[0].check(true);
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        scripts.type(row.typed);
        EXPECT_EQ(scripts.text(), row.selected);
        EXPECT_EQ(scripts.label()->caption(), row.selected);
        EXPECT_EQ(SettingsPage::characterSetOf(scripts.selectedText()), row.characterSet);
        EXPECT_EQ(scripts.count(), row.entries);
        EXPECT_EQ(run.takeMessages(),
                  row.refused ? QStringList{u"Error applying script"_s} : QStringList());
    }
    settings().Check6[0].check(false);
    EXPECT_EQ(scripts.selected(), 0);
    EXPECT_FALSE(scripts.isAvailable());
}

TEST_F(Settings, ScriptIsTheCodePageOfWhatIsNotUnicode)
{
    const auto load = [this](const QByteArray &bytes) {
        QFile file(run.path(u"film.srt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("1\n00:00:01,000 --> 00:00:02,000\n" + bytes + "\n\n");
        file.close();
        LoadRequest request{.path = file.fileName()};
        run->loader.LoadSubFile(request);
        return run->document.encoding.name + ' ' + run.rows().value(0).section(u'|', 2).toUtf8();
    };
    QDir().mkpath(run.path({}));
    start();
    settings().Check6[0].setOn(true);
    settings().cmbScript.pick(7);
    EXPECT_EQ(load("\xCF\xF0\xE8"), "Windows-1251 \u041f\u0440\u0438"_ba);
    settings().cmbScript.pick(4);
    EXPECT_EQ(load("\xCF\xF0\xE8"), "Windows-1253 \u039f\u03c0\u03b8"_ba);
    EXPECT_EQ(load("\u0416"), "UTF-8 \u0416"_ba) << "Unicode is Unicode";
    run->editor.grdSubEdit.moveTo(1, FirstTextColumn);
    EXPECT_FALSE(run->editor.rtfEdit.isVisible()) << "no editor over the texts";
    run->editor.grdSubEdit.moveTo(1, StartColumn);
    EXPECT_TRUE(run->editor.rtfEdit.isVisible());
}

/// A pack's header, unscrambled by nobody here: the shipped ones are used.
class SettingsLanguage : public Settings
{
protected:
    SettingsLanguage()
    {
        for (const QString &name : {u"Dutch"_s, u"German"_s}) {
            const QString shipped = QStringLiteral(KAVRO_SOURCE_DIR) + u"/share/System/Language/"_s;
            run.writeApp(u"System/Language/"_s + name + u".lng"_s,
                         TestProgram::read(shipped + name + u".lng"_s));
        }
        start();
    }
    QString pack(const QString &name)
    {
        return run.appPath(u"System/Language/"_s + name + u".lng"_s);
    }
    QString storedPack() { return TestProgram::read(stored()).section(u'\n', 19, 19); }
};

TEST_F(SettingsLanguage, ChosenPackIsStoredAndARestartIsAskedFor)
{
    const QString restart =
        u"You have to restart Kavro before the change can be applied. Press 'Ok' to continue."_s;
    confirm([&] {
        window().TV2.click(window().TV2.find(u"lng"_s));
        EXPECT_EQ(settings().List1.count(), 2);
        EXPECT_FALSE(settings().List1.label()->isEnabled());
        settings().Check2.check(true);
        EXPECT_TRUE(settings().List1.label()->isEnabled());
        settings().List1.pick(1);
        window().ShowTab(u"audio");
        window().ShowTab(u"lng");
        EXPECT_EQ(settings().List1.selected(), 1) << "what was picked stays picked";
    });
    EXPECT_EQ(run.takeMessages(), QStringList{restart});
    EXPECT_EQ(storedPack(), pack(u"German"_s));

    run.restart();
    start();
    EXPECT_EQ(window().startup.caption(), u"Programmstart"_s);
    confirm([&] { settings().Check7[Startup::CheckExists].check(true); });
    EXPECT_EQ(run.takeMessages(), QStringList()) << "the pack is the same";
    EXPECT_EQ(storedPack(), pack(u"German"_s));
    // A file ahead of it that is no pack shifts what the list shows, and not what is stored.
    run.writeApp(u"System/Language/A.lng"_s, u"junk\n"_s);
    confirm([] {});
    EXPECT_EQ(storedPack(), pack(u"German"_s));
    QFile::remove(pack(u"A"_s));
    confirm([&] { settings().List1.pick(1); });
    EXPECT_EQ(run.takeMessages(), QStringList()) << "picked, but no other";
    confirm([&] { settings().List1.pick(0); });
    EXPECT_EQ(run.takeMessages().size(), 1);
    EXPECT_EQ(storedPack(), pack(u"Dutch"_s));
    confirm([&] { settings().Check2.check(false); });
    EXPECT_EQ(storedPack(), QString());
    EXPECT_EQ(settings().languageFile, QString());
}

TEST_F(SettingsLanguage, NoPackIsAnEmptyPath)
{
    for (const QString &name : {u"Dutch"_s, u"German"_s}) {
        ASSERT_TRUE(QFile::remove(pack(name)));
    }
    confirm([&] { settings().Check2.check(true); });
    EXPECT_EQ(storedPack(), QString());
    EXPECT_TRUE(settings().Check2.isOn());
    EXPECT_EQ(TestProgram::read(stored()).count(u'\n'), 22);
}

} // namespace
} // namespace kavro::test
