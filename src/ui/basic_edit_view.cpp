#include "ui/basic_edit_view.h"

#include "core/editor_page.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace kavro {

BasicEditView::BasicEditView(EditorPage &editor, QWidget *parent) : QWidget(parent)
{
    auto *box = new QLineEdit(this);
    auto *change = new QPushButton(this);
    bind(*box, editor.rtfSubEditBasic, tr("Text of the current cell"));
    bind(*change, editor.Command14);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box, 1);
    layout->addWidget(change);
}

} // namespace kavro
