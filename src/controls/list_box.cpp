#include "controls/list_box.h"

#include <utility>

namespace kavro {

QString ListBox::item(int index) const
{
    return index >= 0 && index < count() ? m_items[index] : QString();
}

// The entries are new; whoever hears of them finds the selection in step.
void ListBox::tellItems(int selected)
{
    const int before = std::exchange(m_selected, selected);
    emit itemsChanged();
    if (selected != before && m_selected == selected) {
        emit selectedChanged(m_selected);
    }
}

void ListBox::setItems(const QStringList &items)
{
    m_items = items;
    tellItems(m_selected < count() ? m_selected : -1);
}

void ListBox::addItem(const QString &text)
{
    m_items.append(text);
    emit itemsChanged();
}

void ListBox::insertItem(int at, const QString &text)
{
    if (at < 0 || at >= count()) {
        addItem(text);
        return;
    }
    m_items.insert(at, text);
    tellItems(m_selected >= at ? m_selected + 1 : m_selected);
}

void ListBox::setItem(int index, const QString &text)
{
    if (index >= 0 && index < count() && m_items[index] != text) {
        m_items[index] = text;
        emit itemsChanged();
    }
}

void ListBox::removeItem(int index)
{
    if (index < 0 || index >= count()) {
        return;
    }
    m_items.removeAt(index);
    const int moved = m_selected > index ? m_selected - 1 : m_selected;
    tellItems(m_selected == index ? -1 : moved);
}

void ListBox::clear()
{
    if (!m_items.isEmpty()) {
        m_items.clear();
        tellItems(-1);
    }
}

void ListBox::setSelected(int index)
{
    const int now = index >= 0 && index < count() ? index : -1;
    if (m_selected != now) {
        m_selected = now;
        emit selectedChanged(m_selected);
    }
}

void ListBox::pick(int index)
{
    if (index >= 0 && index < count()) {
        setSelected(index);
        emit picked(index);
    }
}

void ListBox::doubleClick(int index)
{
    pick(index);
    if (index >= 0 && index < count()) {
        emit doubleClicked(index);
    }
}

ComboBox::ComboBox(Form &form, const QString &name, int index) : ListBox(form, name, index)
{
    const auto forgetTyped = [this] { m_typed = QString(); };
    connect(this, &ListBox::selectedChanged, this, forgetTyped);
    connect(this, &ListBox::itemsChanged, this, [this, forgetTyped] {
        if (count() == 0) {
            forgetTyped();
        }
    });
}

void ComboBox::type(const QString &text)
{
    setSelected(-1);
    m_typed = text.isNull() ? QLatin1String("") : text;
    emit typed(m_typed);
}

} // namespace kavro
