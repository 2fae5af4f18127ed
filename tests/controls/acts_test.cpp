#include "controls/control_array.h"
#include "controls/form.h"
#include "controls/indicators.h"
#include "controls/list_box.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

/// One of each control whose value can be set and acted on, and what was heard of them.
struct Controls
{
    Form form{u"frmMain"_s};
    CheckBox check{form, u"Check1"_s};
    ControlArray<OptionButton, 0, 2> option{form, u"Option1"_s};
    TextBox box{form, u"Text1"_s};
    ListBox list{form, u"List1"_s};
    ComboBox combo{form, u"Combo1"_s};
    TabStrip tabs{form, u"SSTab1"_s, {u"A"_s, u"B"_s}};
    Slider slider{form, u"Slider1"_s};
    int changes = 0;
    int acts = 0;

    Controls()
    {
        list.setItems({u"a"_s, u"b"_s});
        combo.setItems({u"a"_s, u"b"_s});
        hear(check, &CheckBox::valueChanged, &CheckBox::clicked);
        hear(option[1], &OptionButton::valueChanged, &OptionButton::clicked);
        hear(box, &TextBox::textChanged, &TextBox::typed);
        hear(list, &ListBox::selectedChanged, &ListBox::picked);
        hear(combo, &ListBox::selectedChanged, &ListBox::picked);
        hear(tabs, &TabStrip::tabChanged, &TabStrip::picked);
        hear(slider, &Slider::valueChanged, &Slider::slid);
    }

    void hear(auto &control, auto change, auto act)
    {
        QObject::connect(&control, change, &form, [this] { ++changes; });
        QObject::connect(&control, act, &form, [this] { ++acts; });
    }
};

TEST(Acts, SettingIsNotPicking)
{
    const struct
    {
        const char *name;
        std::function<void(Controls &)> set, act;
    } rows[] = {
        {"check box", [](Controls &c) { c.check.setOn(true); },
         [](Controls &c) { c.check.check(true); }},
        {"option button", [](Controls &c) { c.option[1].setOn(); },
         [](Controls &c) { c.option[1].click(); }},
        {"text box", [](Controls &c) { c.box.setText(u"x"_s); },
         [](Controls &c) { c.box.type(u"x"_s); }},
        {"list", [](Controls &c) { c.list.setSelected(1); }, [](Controls &c) { c.list.pick(1); }},
        {"combo", [](Controls &c) { c.combo.setSelected(1); },
         [](Controls &c) { c.combo.pick(1); }},
        {"tabs", [](Controls &c) { c.tabs.setTab(1); }, [](Controls &c) { c.tabs.pick(1); }},
        {"slider", [](Controls &c) { c.slider.setValue(3); },
         [](Controls &c) { c.slider.slide(3); }},
    };
    for (const auto &row : rows) {
        Controls c;
        row.set(c);
        row.set(c);
        EXPECT_EQ(c.changes, 1) << row.name << " tells a change once";
        EXPECT_EQ(c.acts, 0) << row.name << " is set, not acted on";
        row.act(c);
        row.act(c);
        EXPECT_EQ(c.changes, 1) << row.name << " stands at that value";
        EXPECT_EQ(c.acts, 2) << row.name << " acts each time";

        Controls fresh;
        row.act(fresh);
        EXPECT_EQ(fresh.changes, 1) << row.name << " changes by an act";
    }
}

TEST(Acts, OptionButtonsOfAnArrayShareOneChoice)
{
    Controls c;
    c.option[0].setOn();
    c.option[1].click();
    c.option[2].click();
    EXPECT_EQ(c.option[0].value() + c.option[1].value(), 0);
    EXPECT_TRUE(c.option[2].isOn());
    EXPECT_EQ(c.changes, 2); // the second one was told that it lost the choice
    EXPECT_EQ(c.acts, 1);
}

TEST(Acts, ValuesOutsideAreCutOrLeft)
{
    Controls c;
    c.list.pick(2);
    c.list.doubleClick(-1);
    c.tabs.pick(2);
    c.tabs.setTab(-1);
    EXPECT_EQ(c.acts, 0);
    EXPECT_EQ(c.tabs.tab(), 0);

    c.slider.setRange(0, 100);
    c.slider.slide(250);
    EXPECT_EQ(c.slider.value(), 100);
    c.slider.setValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(c.slider.value(), 100);
    c.slider.setRange(0, 10);
    EXPECT_EQ(c.slider.value(), 10);

    c.box.setText(u"abc"_s);
    c.box.setSelection(2, 9);
    EXPECT_EQ(c.box.selLength(), 1);
    c.box.setText(u"a"_s);
    EXPECT_EQ(c.box.selStart(), 1);
    EXPECT_EQ(c.box.selLength(), 0);
}

TEST(Acts, SelectionFollowsItsEntry)
{
    Form form(u"frmMain"_s);
    ListBox list(form, u"List1"_s);
    list.setItems({u"a"_s, u"b"_s, u"c"_s});
    list.setSelected(1);
    QStringList seen;
    // Who hears of the entries finds the selection in step with them.
    QObject::connect(&list, &ListBox::itemsChanged, &list,
                     [&] { seen.append(list.selectedText()); });
    list.insertItem(0, u"new"_s);
    EXPECT_EQ(list.selected(), 2);
    list.removeItem(1);
    EXPECT_EQ(list.selected(), 1);
    list.removeItem(1);
    EXPECT_EQ(list.selected(), -1);
    list.setSelected(1);
    list.setItems({u"x"_s});
    EXPECT_EQ(list.selected(), -1);
    EXPECT_EQ(seen, (QStringList{u"b"_s, u"b"_s, {}, {}}));
}

TEST(Acts, ComboShowsWhatCameLast)
{
    Form form(u"frmMain"_s);
    ComboBox combo(form, u"Combo1"_s);
    combo.setItems({u"a"_s, u"b"_s});
    combo.setSelected(1);
    combo.type(u"typed"_s);
    EXPECT_EQ(combo.text(), u"typed"_s);
    EXPECT_EQ(combo.selected(), -1);
    combo.setSelected(1); // the entry that stood before the typing
    EXPECT_EQ(combo.text(), u"b"_s);
    combo.type({});
    EXPECT_EQ(combo.text(), u""_s);
    combo.pick(0);
    EXPECT_EQ(combo.text(), u"a"_s);
    combo.type(u"typed"_s);
    combo.pick(5);
    EXPECT_EQ(combo.text(), u"typed"_s);
    combo.clear();
    EXPECT_EQ(combo.text(), u""_s);
}

TEST(Acts, TimerFiresOnlyWhenItIsOn)
{
    Form form(u"frmMain"_s);
    Timer timer(form, u"timPlayer"_s, 10);
    int fired = 0;
    QObject::connect(&timer, &Timer::fired, &timer, [&] { ++fired; });
    timer.fire();
    timer.setOn(true);
    timer.fire();
    EXPECT_EQ(fired, 1);
}

TEST(Acts, ColourConstantsAreBlueGreenRed)
{
    EXPECT_EQ(Color::fromBgr(0x0000FF).text(), u"FF0000"_s);
    EXPECT_EQ(Color::fromBgr(0x00FF00).text(), u"00FF00"_s);
    EXPECT_EQ(Color::fromBgr(33023).text(), u"FF8000"_s);
    EXPECT_FALSE(Color::fromBgr(0).isDesktop());
    EXPECT_EQ(Color::fromBgr(0).text(), u"000000"_s);
    EXPECT_TRUE(Color::fromBgr(0xFFFFFF).isDesktop());
    EXPECT_TRUE(Color::fromBgr(0x80000005).isDesktop());
}

} // namespace
} // namespace kavro
