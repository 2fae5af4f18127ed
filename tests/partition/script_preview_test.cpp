#include "tests/support/test_program.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

TEST(ScriptPreview, ShowsTheDocumentAsItWouldBeWritten)
{
    TestProgram run;
    run.start();
    EXPECT_FALSE(run->menu.mnuPreview.isEnabled());
    const QString film = run.write(u"film.srt"_s, u"1\n00:00:01,000 --> 00:00:02,000\nÄ ☃\n\n"_s);
    run->dropFile(film);
    EXPECT_TRUE(run->menu.mnuPreview.acceptsActs());
    run->document.encoding = *encodingByName(u"Windows-1252");
    run->partition.append(u"part"_s, u"00:00:00,000"_s);

    QStringList states;
    StatusBar &bar = run->status.StatusBar1;
    QObject::connect(&bar, &StatusBar::panelChanged, &bar,
                     [&](int panel) { states.append(bar.panel(panel)); });
    const QString state = bar.panel(StatePanel);
    run->menu.mnuPreview.click();
    ScriptPreview &preview = run->scriptPreview;
    EXPECT_EQ(preview.List1.items(),
              (QStringList{u"1"_s, u"00:00:01,000 --> 00:00:02,000"_s, u"Ä ☃"_s, QString()}));
    EXPECT_EQ(preview.lblData[0].caption(), film);
    EXPECT_EQ(preview.lblData[1].caption(), bar.panel(FormatPanel));
    EXPECT_EQ(preview.lblData[2].caption(), u"4"_s);
    EXPECT_EQ(states, (QStringList{u"Creating preview. Please wait..."_s, state}));
    EXPECT_EQ(run->document.subFileName, film);
    EXPECT_EQ(run->document.encoding.name, "Windows-1252");
    EXPECT_FALSE(run->document.fileChanged());
}

TEST(ScriptPreview, ItsButtonAndItsCloseButtonCloseIt)
{
    TestProgram run;
    run.start();
    Form &form = run->frmPreview;
    form.show();
    run->scriptPreview.Command1.click();
    EXPECT_FALSE(form.isOpen());
    form.show();
    form.requestClose();
    EXPECT_FALSE(form.isOpen());
}

TEST(ScriptPreview, AutoHelpBringsItsPage)
{
    TestProgram run;
    run.start(run.write(u"film.srt"_s, twoSubtitles()));
    run->settings.Check7[SettingsPage::AutoHelp].setOn(true);
    run->menu.mnuPreview.click();
    ASSERT_FALSE(run.doors.help.opened.isEmpty());
    EXPECT_TRUE(run.doors.help.opened.constLast().endsWith(u"main_prev.htm"_s));
}

} // namespace
} // namespace kavro::test
