#include "core/control_window.h"

#include "controls/form.h"
#include "core/settings_page.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class ControlWindowTest : public testing::Test
{
protected:
    Form form{u"frmControl"_s};
    Form frmSettings{u"frmSettings"_s};
    SettingsPage settings{frmSettings};
    ControlWindow window{form, settings};
};

TEST_F(ControlWindowTest, OpensEmpty)
{
    window.append(u"old"_s);
    window.lblEnd.setCaption(u"old"_s);
    window.ProgressBar1.setValue(50);
    window.open(u"Loading file"_s);
    EXPECT_TRUE(form.isOpen());
    EXPECT_EQ(form.caption(), u"Loading file"_s);
    EXPECT_EQ(window.ProgressBar1.value(), 0);
    EXPECT_EQ(window.lblEnd.caption(), QString());
    window.append(u"a\r\n"_s);
    window.append(u"b"_s);
    EXPECT_EQ(window.Text1[0].text(), u"a\r\nb"_s);
    window.setCaption(u"File with errors"_s);
    EXPECT_EQ(form.caption(), u"File with errors"_s);
    EXPECT_EQ(window.Text1[0].text(), u"a\r\nb"_s);
}

TEST_F(ControlWindowTest, ClosesByItselfOnlyWhenTheSettingSaysSo)
{
    window.open({});
    window.finish();
    EXPECT_FALSE(form.isOpen());

    window.chkClose.check(false);
    window.open({});
    window.finish();
    EXPECT_TRUE(form.isOpen());
    window.cmdOk.click();
    EXPECT_FALSE(form.isOpen());

    window.open({});
    form.requestClose();
    EXPECT_FALSE(form.isOpen());

    window.quiet = true;
    window.open(u"Loading file"_s);
    window.append(u"log"_s);
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(window.Text1[0].text(), u"log"_s);
}

TEST_F(ControlWindowTest, BoxAndSettingAreOne)
{
    EXPECT_TRUE(window.chkClose.isOn());
    window.chkClose.check(false);
    EXPECT_FALSE(settings.Check3.isOn());
    settings.Check3.setOn(true);
    EXPECT_TRUE(window.chkClose.isOn());
}

} // namespace
} // namespace kavro
