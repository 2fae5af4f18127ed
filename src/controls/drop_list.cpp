#include "controls/drop_list.h"

namespace kavro {

using namespace Qt::StringLiterals;

DropList::DropList(Form &form, const QString &name, int index, const Names &names)
    : ComboBox(form, name, index)
{
    if (!names.toggle.isEmpty()) {
        m_toggle.emplace(form, names.toggle, names.toggleIndex);
        connect(&*m_toggle, &Label::clicked, this, [this] {
            if (m_available) {
                setFolded(!m_folded);
            }
        });
    }
    if (!names.label.isEmpty()) {
        m_label.emplace(form, names.label, names.labelIndex);
        connect(this, &ListBox::selectedChanged, this, &DropList::writeLabel);
        connect(this, &ListBox::itemsChanged, this, &DropList::writeLabel);
    }
    show();
}

void DropList::setAvailable(bool available)
{
    if (m_available != available) {
        m_available = available;
        show();
        // A folded list reads disabled either way, while a view shows whether it is available.
        emit lookChanged();
    }
}

void DropList::setFolded(bool folded)
{
    m_folded = folded || !m_toggle;
    show();
}

void DropList::pick(int index)
{
    if (!m_available || index < 0 || index >= count()) {
        return;
    }
    // Folded ahead of the act's signal, so that who hears it may unfold the list again.
    setSelected(index);
    writeLabel();
    setFolded(true);
    ComboBox::pick(index);
}

void DropList::show()
{
    setEnabled(m_available && !m_folded);
    if (m_toggle) {
        m_toggle->setEnabled(m_available);
        m_toggle->setCaption(m_folded ? u">>"_s : u"<<"_s);
    }
}

void DropList::writeLabel()
{
    if (m_label) {
        m_label->setCaption(selectedText());
    }
}

} // namespace kavro
