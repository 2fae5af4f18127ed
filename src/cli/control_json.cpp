#include "cli/control_json.h"

#include "cli/json_writer.h"
#include "controls/grid.h"
#include "controls/indicators.h"
#include "controls/list_box.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "controls/tree_view.h"

namespace kavro {

namespace {

void writeColor(JsonWriter &json, QStringView name, Color color)
{
    json.key(name);
    if (color.isDesktop())
        json.null();
    else
        json.text(color.text());
}

void writeNodes(JsonWriter &json, const TreeView &tree, const QList<int> &numbers)
{
    json.beginArray();
    for (const int number : numbers) {
        const TreeView::Node &node = tree.node(number);
        json.beginObject().key(u"key");
        if (node.key.isNull())
            json.null();
        else
            json.text(node.key);
        json.text(u"text", node.text).key(u"children");
        writeNodes(json, tree, node.children);
        json.endObject();
    }
    json.endArray();
}

void writeKind(JsonWriter &json, const CaptionControl &control)
{
    json.text(u"caption", control.caption());
}

void writeKind(JsonWriter &json, const CheckBox &box)
{
    json.number(u"value", box.value());
}

void writeKind(JsonWriter &json, const OptionButton &button)
{
    json.number(u"value", button.value());
}

void writeKind(JsonWriter &json, const TextBox &box)
{
    json.text(u"text", box.text());
    json.boolean(u"bold", box.isBold()).boolean(u"italic", box.isItalic());
}

void writeKind(JsonWriter &json, const ListBox &list)
{
    json.number(u"index", list.selected()).key(u"items").texts(list.items());
}

void writeKind(JsonWriter &json, const ComboBox &box)
{
    json.text(u"text", box.text());
}

void writeKind(JsonWriter &json, const TabStrip &tabs)
{
    json.number(u"tab", tabs.tab());
}

void writeKind(JsonWriter &json, const TreeView &tree)
{
    json.key(u"nodes");
    writeTree(json, tree);
}

void writeKind(JsonWriter &json, const Grid &grid)
{
    json.number(u"rows", grid.rows()).number(u"row", grid.row()).number(u"col", grid.col());
    json.number(u"topRow", grid.topRow()).key(u"cells").beginArray();
    for (const GridRow &row : grid.allRows())
        json.texts(row);
    json.endArray();
}

void writeKind(JsonWriter &json, const StatusBar &bar)
{
    json.key(u"panels").texts(bar.panels());
}

void writeKind(JsonWriter &json, const ProgressBar &bar)
{
    json.number(u"value", bar.value());
}

void writeKind(JsonWriter &json, const Slider &slider)
{
    json.number(u"value", slider.value());
}

void writeKind(JsonWriter &json, const Timer &timer)
{
    json.number(u"interval", timer.interval()).boolean(u"on", timer.isOn());
}

/// What the control is of these kinds, one after the other.
template <class... Kinds>
void writeKinds(JsonWriter &json, const Control &control)
{
    const auto write = [&](const auto *kind) {
        if (kind != nullptr)
            writeKind(json, *kind);
    };
    (write(qobject_cast<const Kinds *>(&control)), ...);
}

} // namespace

void writeTree(JsonWriter &json, const TreeView &tree)
{
    writeNodes(json, tree, tree.roots());
}

void writeControl(JsonWriter &json, const Control &control)
{
    json.beginObject().text(u"control", control.fullName());
    json.boolean(u"enabled", control.isEnabled()).boolean(u"visible", control.isVisible());
    json.text(u"toolTip", control.toolTip());
    writeColor(json, u"foreColor", control.foreColor());
    writeColor(json, u"backColor", control.backColor());
    writeKinds<CaptionControl, CheckBox, OptionButton, TextBox, ListBox, ComboBox, TabStrip,
               TreeView, Grid, StatusBar, ProgressBar, Slider, Timer>(json, control);
    json.endObject();
}

} // namespace kavro
