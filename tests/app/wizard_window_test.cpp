#include "app/wizard_window.h"

#include "tests/support/test_program.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(Wizard, RunsTheJobThatIsPicked)
{
    TestProgram run;
    run.startForVerb();
    WizardWindow &wizard = run->wizard;
    run->menu.mnuWizard.click();
    EXPECT_TRUE(run->frmWizard.isOpen());
    EXPECT_FALSE(wizard.cmdGo.acceptsActs()) << "there is nothing to run";

    QString ran;
    wizard.go = [&ran](const QString &name) { ran = name; };
    wizard.setJobs({{u"Clean"_s, u"Takes empty lines out"_s}, {u"Move"_s, u"Moves all lines"_s}});
    EXPECT_EQ(wizard.List1.selected(), 0);
    EXPECT_EQ(wizard.Label1.caption(), u"Takes empty lines out"_s);
    wizard.List1.pick(1);
    EXPECT_EQ(wizard.Label1.caption(), u"Moves all lines"_s);
    wizard.cmdGo.click();
    EXPECT_EQ(ran, u"Move"_s);

    wizard.setJobs({});
    EXPECT_TRUE(wizard.Label1.caption().isEmpty());
    EXPECT_FALSE(wizard.cmdGo.acceptsActs());
    wizard.cmdOk.click();
    EXPECT_FALSE(run->frmWizard.isOpen());
}

TEST(Wizard, AtTheStartItExcludesTheTips)
{
    TestProgram run;
    run.writeApp(u"System/Settings/set.sdf"_s, settingsWith(6, 1));
    run.start();
    run->splash.ExitfrmSplash();
    EXPECT_TRUE(run->frmWizard.isOpen());
    EXPECT_FALSE(run->frmTip.isOpen());
    CheckBox &wizardBox = run->wizard.chkLoadWizardAtStartup;
    CheckBox &tipsBox = run->tips.chkLoadTipsAtStartup;
    EXPECT_TRUE(wizardBox.isOn());

    CheckBox &tips = run->settings.Check7[SettingsPage::ShowTips];
    CheckBox &wizard = run->settings.Check7[SettingsPage::ShowWizard];
    wizardBox.check(false);
    EXPECT_FALSE(wizard.isOn());
    tips.setOn(true);
    run->tips.show();
    wizardBox.check(true);
    EXPECT_TRUE(wizard.isOn());
    EXPECT_FALSE(tips.isOn());
    EXPECT_FALSE(tipsBox.isOn());
    tipsBox.check(true);
    EXPECT_TRUE(tips.isOn());
    EXPECT_FALSE(wizard.isOn());
    EXPECT_FALSE(wizardBox.isOn());
    tipsBox.check(false);
    EXPECT_FALSE(tips.isOn());
}

} // namespace
} // namespace kavro::test
