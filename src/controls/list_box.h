#pragma once

#include "controls/control.h"

#include <QStringList>

namespace kavro {

/// A list of texts with at most one selected. Indexes run from 0, -1 is no selection.
class ListBox : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    [[nodiscard]] const QStringList &items() const { return m_items; }
    [[nodiscard]] int count() const { return static_cast<int>(m_items.size()); }
    /// The text of an entry, empty outside the list.
    [[nodiscard]] QString item(int index) const;
    [[nodiscard]] int selected() const { return m_selected; }
    /// The text of the selected entry, empty when there is none.
    [[nodiscard]] QString selectedText() const { return item(m_selected); }

    /// The selection stays at its number, and goes when there is no such entry any more.
    void setItems(const QStringList &items);
    void addItem(const QString &text);
    /// Before the entry at `at`, at the end when `at` lies outside. Here and in `removeItem` the
    /// selection stays with its entry.
    void insertItem(int at, const QString &text);
    /// Nothing outside the list.
    void setItem(int index, const QString &text);
    void removeItem(int index);
    void clear();
    /// Selects; an index outside the list takes the selection away.
    void setSelected(int index);

    /// Act: the user picks an entry. Nothing outside the list.
    virtual void pick(int index);
    /// Act: the user double clicks the entry.
    void doubleClick(int index);

signals:
    /// The entries changed in number or text.
    void itemsChanged();
    /// The selection changed, whoever did it.
    void selectedChanged(int index);
    /// The user picked, also the entry that stood.
    void picked(int index);
    void doubleClicked(int index);

private:
    void tellItems(int selected);

    QStringList m_items;
    int m_selected = -1;
};

/// A list that shows its selection and may take a typed text.
class ComboBox : public ListBox
{
    Q_OBJECT

public:
    ComboBox(Form &form, const QString &name, int index = noIndex);

    /// What stands in the box: the selected entry, or what was typed since.
    [[nodiscard]] QString text() const { return m_typed.isNull() ? selectedText() : m_typed; }
    /// Act: the user types a text that may be no entry; it takes the selection away.
    void type(const QString &text);

signals:
    void typed(const QString &text);

private:
    QString m_typed;
};

} // namespace kavro
