#include "controls/list_box.h"

namespace kavro {

QString ListBox::item(int index) const
{
    return index >= 0 && index < count() ? m_items[index] : QString();
}

void ListBox::setItems(const QStringList &items)
{
    m_items = items;
    emit itemsChanged();
    setSelected(m_selected < count() ? m_selected : -1);
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
    emit itemsChanged();
    if (m_selected >= at) {
        setSelected(m_selected + 1);
    }
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
    emit itemsChanged();
    if (m_selected == index) {
        setSelected(-1);
    } else if (m_selected > index) {
        setSelected(m_selected - 1);
    }
}

void ListBox::clear()
{
    if (!m_items.isEmpty()) {
        m_items.clear();
        emit itemsChanged();
    }
    setSelected(-1);
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

void ComboBox::type(const QString &text)
{
    m_typed = text.isNull() ? QLatin1String("") : text;
    emit typed(m_typed);
}

void ComboBox::pick(int index)
{
    m_typed = QString();
    ListBox::pick(index);
}

} // namespace kavro
