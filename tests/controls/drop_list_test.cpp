#include "controls/drop_list.h"

#include "controls/form.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class DropListTest : public testing::Test
{
protected:
    DropListTest()
        : form(u"frmMain"_s),
          list(form, u"combo3"_s, Control::noIndex, {.toggle = u"Label31"_s, .label = u"Label36"_s})
    {
        list.setItems({u"one"_s, u"two"_s, u"three"_s});
        QObject::connect(&list, &ListBox::picked, &list, [this] { ++picks; });
    }

    Label &toggle() { return *list.toggle(); }
    [[nodiscard]] std::string label() { return list.label()->caption().toStdString(); }

    Form form;
    DropList list;
    int picks = 0;
};

TEST_F(DropListTest, ToggleUnfoldsAndAPickFolds)
{
    EXPECT_TRUE(list.isFolded());
    EXPECT_FALSE(list.isEnabled());
    EXPECT_EQ(toggle().caption(), u">>"_s);
    EXPECT_EQ(form.control(u"label31"), &toggle());

    toggle().click();
    EXPECT_TRUE(list.isEnabled());
    EXPECT_EQ(toggle().caption(), u"<<"_s);
    list.pick(1);
    EXPECT_TRUE(list.isFolded());
    EXPECT_EQ(label(), "two");
    EXPECT_EQ(picks, 1);

    list.label()->setCaption(u"other"_s);
    list.pick(1); // from the folded list too, and the entry that stands
    EXPECT_TRUE(list.isFolded());
    EXPECT_EQ(label(), "two");
    EXPECT_EQ(picks, 2);
}

TEST_F(DropListTest, SettingLeavesTheFoldAndWritesTheLabel)
{
    toggle().click();
    list.setSelected(2);
    EXPECT_FALSE(list.isFolded());
    EXPECT_EQ(label(), "three");
    EXPECT_EQ(picks, 0);
    list.setItem(2, u"drie"_s);
    EXPECT_EQ(label(), "drie");
    list.clear();
    EXPECT_EQ(label(), "");
}

TEST_F(DropListTest, UnavailableRefusesToggleAndPick)
{
    toggle().click();
    list.setSelected(0);
    list.setAvailable(false);
    EXPECT_FALSE(list.isEnabled());
    EXPECT_FALSE(list.acceptsActs());
    EXPECT_FALSE(toggle().isEnabled());
    toggle().click();
    list.pick(2);
    EXPECT_EQ(list.selected(), 0);
    EXPECT_EQ(picks, 0);

    list.setAvailable(true);
    EXPECT_TRUE(list.isEnabled()); // unfolded as it was left
}

TEST_F(DropListTest, PickOutsideTheListDoesNothing)
{
    toggle().click();
    list.pick(3);
    list.pick(-1);
    EXPECT_FALSE(list.isFolded());
    EXPECT_EQ(picks, 0);
}

TEST_F(DropListTest, ListWithoutToggleReadsDisabledAndCanBePicked)
{
    DropList bare(form, u"Combo2"_s, Control::noIndex, {.toggle = {}, .label = {}});
    bare.setItems({u"a"_s, u"b"_s});
    bare.setFolded(false);
    EXPECT_FALSE(bare.isEnabled());
    EXPECT_TRUE(bare.acceptsActs());
    bare.pick(1);
    EXPECT_EQ(bare.selected(), 1);
}

} // namespace
} // namespace kavro
