#include "cli/control_json.h"

#include "cli/json_writer.h"
#include "controls/drop_list.h"
#include "controls/form.h"
#include "controls/grid.h"
#include "controls/indicators.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "controls/tree_view.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

std::string jsonOf(const Control &control)
{
    JsonWriter json;
    writeControl(json, control);
    return json.bytes().toStdString();
}

/// What the kind adds behind the fields that every control has.
std::string kindOf(const Control &control)
{
    static const std::string common = R"("backColor": null, )";
    const std::string json = jsonOf(control);
    return json.substr(json.find(common) + common.size());
}

TEST(ControlJson, TellsWhatEveryControlHas)
{
    Form form(u"frmMain"_s);
    Button button(form, u"Command8"_s, 2);
    button.setCaption(u"Play"_s);
    button.setEnabled(false);
    button.setVisible(false);
    button.setToolTip(u"tip"_s);
    button.setForeColor(Color::fromBgr(0x0000FF));
    EXPECT_EQ(jsonOf(button),
              R"j({"control": "frmMain.Command8(2)", "enabled": false, "visible": false, )j"
              R"("toolTip": "tip", "foreColor": "FF0000", "backColor": null, "caption": "Play"})");
}

TEST(ControlJson, TellsWhatAKindAdds)
{
    Form form(u"frmMain"_s);

    CheckBox box(form, u"Check1"_s);
    box.setOn(true);
    EXPECT_EQ(kindOf(box), R"("caption": "", "value": 1})");

    TextBox text(form, u"rtfEdit"_s);
    text.setText(u"a\r\nb"_s);
    text.setItalic(true);
    EXPECT_EQ(kindOf(text), R"("text": "a\r\nb", "bold": false, "italic": true})");

    ListBox list(form, u"List1"_s);
    list.setItems({u"x"_s, u"y"_s});
    EXPECT_EQ(kindOf(list), R"("index": -1, "items": ["x", "y"]})");

    TabStrip tabs(form, u"tabMain"_s, {u"a"_s, u"b"_s});
    tabs.setTab(1);
    EXPECT_EQ(kindOf(tabs), R"("tab": 1})");

    TreeView tree(form, u"TV1"_s);
    const int root = tree.add(TreeView::noNode, u"Menu"_s, u"menu"_s);
    tree.add(root, u"no key"_s);
    EXPECT_EQ(kindOf(tree), R"("nodes": [{"key": "menu", "text": "Menu", "children": )"
                            R"([{"key": null, "text": "no key", "children": []}]}]})");

    StatusBar bar(form, u"StatusBar1"_s, 2);
    bar.setPanel(2, u"SubRip"_s);
    EXPECT_EQ(kindOf(bar), R"("panels": ["", "SubRip"]})");

    Slider slider(form, u"Slider1"_s);
    slider.setRange(0, 90.5);
    slider.setValue(2.25);
    EXPECT_EQ(kindOf(slider), R"("value": 2.25})");

    Timer timer(form, u"Timer2"_s, 1000);
    timer.setOn(true);
    EXPECT_EQ(kindOf(timer), R"("interval": 1000, "on": true})");
}

TEST(ControlJson, TellsAGridWithHeaderAndEndRow)
{
    Form form(u"frmMain"_s);
    Grid grid(form, u"grid"_s, 3, 2);
    grid.setText(0, 1, u"Text"_s);
    grid.setText(1, 1, u" a"_s);
    grid.setCurrent(2, 0);
    EXPECT_EQ(kindOf(grid), R"("rows": 3, "row": 2, "col": 0, "topRow": 1, )"
                            R"("cells": [["", "Text"], ["", " a"], ["", ""]]})");
}

TEST(ControlJson, AFoldedListReadsDisabled)
{
    Form form(u"frmMain"_s);
    DropList list(form, u"Combo14"_s, 0, {.toggle = u"Label29"_s, .label = u"Label46"_s});
    list.setItems({u"24.000"_s});
    list.setSelected(0);
    EXPECT_EQ(jsonOf(list).find(R"j({"control": "frmMain.Combo14(0)", "enabled": false)j"), 0U);
    EXPECT_EQ(kindOf(list), R"("index": 0, "items": ["24.000"], "text": "24.000"})");
}

} // namespace
} // namespace kavro
