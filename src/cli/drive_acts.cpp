#include "cli/drive_acts.h"

#include "app/program.h"
#include "cli/call_reader.h"
#include "cli/drive_arguments.h"

#include <functional>
#include <type_traits>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// What a command does with a control of one kind; false when what it names isn't there.
template <class Kind>
using ActOn = std::type_identity_t<std::function<bool(Kind &)>>;

/// Acts on the control of that name, which must be of one of the kinds.
template <class... Kinds>
Outcome act(Driven &driven, QStringView name, const ActOn<Kinds> &...acts)
{
    Control *control = driven.program.control(name);
    if (control == nullptr)
        return Outcome::wrong(u"no control \"%1\""_s.arg(name));
    const bool usable = control->form().isOpen() && control->acceptsActs();
    std::optional<bool> acted;
    const auto tryKind = [&]<class Kind>(const std::function<bool(Kind &)> &actOn) {
        Kind *kind = qobject_cast<Kind *>(control);
        if (kind != nullptr && !acted)
            acted = usable && actOn(*kind);
    };
    (tryKind.template operator()<Kinds>(acts), ...);
    if (!acted)
        return Outcome::wrong(u"the command doesn't fit \"%1\""_s.arg(control->fullName()));
    return *acted ? Outcome::done() : Outcome::refused(*control);
}

std::optional<Key> keyByName(QStringView name)
{
    if (name == u"Enter")
        return Key::Enter;
    if (name == u"Escape")
        return Key::Escape;
    if (name == u"Tab")
        return Key::Tab;
    return std::nullopt;
}

/// "GRID ROW COL" for an act on a cell that is there.
Outcome actOnCell(Driven &driven, QStringView rest, void (Grid::*actOn)(int, int))
{
    const QStringView name = takeWord(rest);
    const QStringView rowText = takeWord(rest);
    const std::optional<int> row = wholeNumber(rowText);
    const std::optional<int> col = wholeNumber(rest);
    if (!row || !col)
        return noNumber(row ? rest : rowText);
    return act<Grid>(driven, name, [&](Grid &grid) {
        if (!grid.has(*row, *col))
            return false;
        (grid.*actOn)(*row, *col);
        return true;
    });
}

} // namespace

Outcome pressControl(Driven &driven, QStringView rest)
{
    return act<ClickControl>(driven, rest, [](ClickControl &control) {
        control.click();
        return true;
    });
}

Outcome setText(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const auto type = [&](auto &box) {
        box.type(rest.toString());
        return true;
    };
    return act<TextBox, ComboBox>(driven, name, type, type);
}

Outcome focusControl(Driven &driven, QStringView rest)
{
    return act<Control>(driven, rest, [](Control &control) {
        control.setFocus();
        return true;
    });
}

Outcome pressKey(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const std::optional<Key> key = keyByName(rest);
    if (!key)
        return Outcome::wrong(u"\"%1\" is no key, those are Enter, Escape, Tab"_s.arg(rest));
    return act<Control>(driven, name, [&](Control &control) {
        control.press(*key);
        return true;
    });
}

Outcome selectEntry(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const std::optional<int> index = wholeNumber(rest);
    if (!index)
        return noNumber(rest);
    return act<ListBox>(driven, name, [&](ListBox &list) {
        if (*index < 0 || *index >= list.count())
            return false;
        list.pick(*index);
        return true;
    });
}

Outcome checkBox(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    if (rest != u"0" && rest != u"1")
        return Outcome::wrong(u"\"%1\" is neither 0 nor 1"_s.arg(rest));
    const bool on = rest == u"1";
    return act<CheckBox, OptionButton>(
        driven, name,
        [&](CheckBox &box) {
            box.check(on);
            return true;
        },
        [&](OptionButton &button) {
            if (on)
                button.click();
            return on;
        });
}

Outcome clickTab(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const std::optional<int> tab = wholeNumber(rest);
    if (!tab)
        return noNumber(rest);
    return act<TabStrip>(driven, name, [&](TabStrip &tabs) {
        if (*tab < 0 || *tab >= tabs.count())
            return false;
        tabs.pick(*tab);
        return true;
    });
}

Outcome moveToCell(Driven &driven, QStringView rest)
{
    return actOnCell(driven, rest, &Grid::moveTo);
}

Outcome clickCell(Driven &driven, QStringView rest)
{
    return actOnCell(driven, rest, &Grid::click);
}

Outcome scrollGrid(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const std::optional<int> row = wholeNumber(rest);
    if (!row)
        return noNumber(rest);
    return act<Grid>(driven, name, [&](Grid &grid) {
        if (*row < 1 || *row >= grid.rows())
            return false;
        grid.scrollTo(*row);
        return true;
    });
}

Outcome clickNode(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    return act<TreeView>(driven, name, [&](TreeView &tree) {
        constexpr QStringView byKey = u"key:";
        const int node = rest.startsWith(byKey) ? tree.find(rest.sliced(byKey.size()).toString())
                                                : tree.findText(rest);
        if (node == TreeView::noNode)
            return false;
        tree.click(node);
        return true;
    });
}

Outcome moveSlider(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const std::optional<double> value = decimalNumber(rest);
    if (!value)
        return noNumber(rest);
    return act<Slider>(driven, name, [&](Slider &slider) {
        slider.slide(*value);
        return true;
    });
}

Outcome fireTimer(Driven &driven, QStringView rest)
{
    const QStringView name = takeWord(rest);
    const std::optional<int> times = rest.isEmpty() ? 1 : wholeNumber(rest);
    if (!times)
        return noNumber(rest);
    return act<Timer>(driven, name, [&](Timer &timer) {
        for (int i = 0; i < *times && timer.isOn() && !driven.program.hasEnded(); ++i)
            timer.fire();
        return true;
    });
}

Outcome pickFrameRate(Driven &driven, QStringView rest)
{
    const std::optional<int> entry = frameRateEntry(rest);
    if (!entry)
        return Outcome::wrong(u"\"%1\" is no frame rate"_s.arg(rest));
    OptionButton &button = driven.program.frameRates.optFrameRate[*entry];
    return act<OptionButton>(driven, button.fullName(), [](OptionButton &option) {
        option.click();
        return true;
    });
}

} // namespace kavro
