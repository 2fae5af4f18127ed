#include "controls/tree_view.h"

namespace kavro {

int TreeView::add(int parent, const QString &text, const QString &key)
{
    const QString folded = key.toLower();
    if ((parent != noNode && !has(parent)) || (!key.isNull() && m_byKey.contains(folded))) {
        return noNode;
    }
    const int number = static_cast<int>(m_nodes.size());
    m_nodes.append({.key = key, .text = text, .parent = parent, .children = {}, .expanded = false});
    if (parent == noNode) {
        m_roots.append(number);
    } else {
        m_nodes[parent].children.append(number);
    }
    if (!key.isNull()) {
        m_byKey.insert(folded, number);
    }
    if (m_batches == 0) {
        emit added(number);
    }
    return number;
}

bool TreeView::has(int number) const
{
    return number >= 0 && number < m_nodes.size();
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

void TreeView::expand(int number)
{
    if (has(number) && !m_nodes.at(number).expanded) {
        m_nodes[number].expanded = true;
        if (m_batches == 0) {
            emit expanded(number);
        }
    }
}

void TreeView::clear()
{
    m_nodes.clear();
    m_roots.clear();
    m_byKey.clear();
    const bool selectionLost = m_selected != noNode;
    m_selected = noNode;
    if (m_batches == 0) {
        emit reset();
    }
    if (selectionLost) {
        emit selectedChanged(noNode);
    }
}

void TreeView::setSelected(int number)
{
    if (m_selected != number && (number == noNode || has(number))) {
        m_selected = number;
        emit selectedChanged(number);
    }
}

void TreeView::click(int number)
{
    if (has(number)) {
        setSelected(number);
        emit clicked(number);
    }
}

TreeView::Batch::Batch(TreeView &tree) : m_tree(tree)
{
    ++m_tree.m_batches;
}

TreeView::Batch::~Batch()
{
    if (--m_tree.m_batches == 0) {
        emit m_tree.reset();
    }
}

} // namespace kavro
