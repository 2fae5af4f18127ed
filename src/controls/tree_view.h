#pragma once

#include "controls/control.h"

#include <QHash>
#include <QList>

namespace kavro {

/// A tree of texts. A node is named by its number, which stays until the tree is cleared.
class TreeView : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    static constexpr int noNode = -1;

    struct Node
    {
        QString key; ///< null when the node has none
        QString text;
        int parent = noNode;
        QList<int> children;
        bool expanded = false; ///< by the program; a user opens and closes it in the view
    };

    /// Adds a node as its parent's last child, or as a root under `noNode`. Returns its number,
    /// `noNode` when the parent isn't there or the key stands already (keys are the same in any
    /// case of letters).
    int add(int parent, const QString &text, const QString &key = {});
    /// The node with that key, `noNode` for none.
    [[nodiscard]] int find(const QString &key) const;
    /// The first node with that text, from the top as the tree shows them, `noNode` for none.
    [[nodiscard]] int findText(QStringView text) const;
    /// False for a number that wasn't given since the tree was cleared.
    [[nodiscard]] bool has(int number) const;
    /// The node must be there.
    [[nodiscard]] const Node &node(int number) const { return m_nodes.at(number); }
    [[nodiscard]] const QList<int> &roots() const { return m_roots; }
    /// Opens a node, so that what is below it shows. Nothing for a node that isn't there, as in the
    /// functions below.
    void expand(int number);
    void clear();
    [[nodiscard]] int selected() const { return m_selected; }
    /// `noNode` takes the selection away.
    void setSelected(int number);

    /// Act: the user clicks a node.
    void click(int number);

    /// While one lives nodes come and go in silence; the last one's end raises one `reset`.
    class Batch
    {
    public:
        explicit Batch(TreeView &tree);
        ~Batch();
        Q_DISABLE_COPY_MOVE(Batch)

    private:
        TreeView &m_tree;
    };

signals:
    void added(int number);
    void expanded(int number);
    /// Anything may be different.
    void reset();
    void selectedChanged(int number);
    void clicked(int number);

private:
    QList<Node> m_nodes;
    QList<int> m_roots;
    QHash<QString, int> m_byKey; ///< keys in lower case
    int m_selected = noNode;
    int m_batches = 0;
};

} // namespace kavro
