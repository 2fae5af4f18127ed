#include "ui/basic_edit_view.h"

#include "core/editor_page.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"
#include "ui/script_font.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace kavro {

BasicEditView::BasicEditView(EditorPage &editor, SettingsPage &settings, QWidget *parent)
    : ToolPage(parent)
{
    auto *box = new QLineEdit(this);
    bind(*box, editor.rtfSubEditBasic, tr("Text of the current cell"));
    followScript(*box, settings);
    addRow()->addWidget(box);

    // What was typed in the cell stands in the box too: these two take it as it is, and the edit
    // isn't ended ahead of them.
    QHBoxLayout *row = addRow();
    for (Button *button : {&editor.Command14, &editor.Command47}) {
        auto *view = new QPushButton(this);
        bind(*view, *button);
        view->setFocusPolicy(Qt::TabFocus);
        letShrink(*view);
        row->addWidget(view);
    }
    // Enter in the box is the program's own key for the first.
    qobject_cast<QPushButton *>(row->itemAt(0)->widget())->setDefault(true);
    row->addStretch(1);
    row->addWidget(makeButton(editor.Command10));
    row->addWidget(makeButton(editor.Command11));
}

} // namespace kavro
