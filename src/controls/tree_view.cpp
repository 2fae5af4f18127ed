#include "controls/tree_view.h"

namespace kavro {

int TreeView::add(int parent, const QString &text, const QString &key)
{
    const QString folded = key.toLower();
    if (!key.isNull() && m_byKey.contains(folded)) {
        return noNode;
    }
    const int number = static_cast<int>(m_nodes.size());
    m_nodes.append({.key = key, .text = text, .parent = parent, .children = {}});
    if (parent == noNode) {
        m_roots.append(number);
    } else {
        m_nodes[parent].children.append(number);
    }
    if (!key.isNull()) {
        m_byKey.insert(folded, number);
    }
    emit added(number);
    return number;
}

int TreeView::find(const QString &key) const
{
    return m_byKey.value(key.toLower(), noNode);
}

int TreeView::findText(QStringView text) const
{
    QList<int> open(m_roots.rbegin(), m_roots.rend());
    while (!open.isEmpty()) {
        const int number = open.takeLast();
        const Node &at = m_nodes.at(number);
        if (at.text == text) {
            return number;
        }
        open.append(QList<int>(at.children.rbegin(), at.children.rend()));
    }
    return noNode;
}

void TreeView::setText(int number, const QString &text)
{
    if (m_nodes.at(number).text != text) {
        m_nodes[number].text = text;
        emit textChanged(number);
    }
}

void TreeView::forget(int number)
{
    const QList<int> children = m_nodes.at(number).children;
    for (const int child : children) {
        forget(child);
    }
    if (!m_nodes.at(number).key.isNull()) {
        m_byKey.remove(m_nodes.at(number).key.toLower());
    }
    if (m_selected == number) {
        m_selected = noNode;
    }
    m_nodes[number].children.clear();
}

void TreeView::remove(int number)
{
    forget(number);
    const int parent = m_nodes.at(number).parent;
    (parent == noNode ? m_roots : m_nodes[parent].children).removeOne(number);
    emit reset();
}

void TreeView::clear()
{
    m_nodes.clear();
    m_roots.clear();
    m_byKey.clear();
    m_selected = noNode;
    emit reset();
}

void TreeView::setSelected(int number)
{
    if (m_selected != number) {
        m_selected = number;
        emit selectedChanged(number);
    }
}

void TreeView::click(int number)
{
    setSelected(number);
    emit clicked(number);
}

} // namespace kavro
