#include "ui/font_view.h"

#include "core/font_lists.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace kavro {

FontView::FontView(FontLists &fonts, QWidget *parent) : ToolPage(parent)
{
    QGridLayout *fields = addGrid();
    fields->setColumnStretch(1, 1);
    const QString labels[] = {tr("Font"), tr("Style")};
    for (int i = 0; i < 2; ++i) {
        auto *list = new QComboBox(this);
        bind(*list, fonts.Combo9[static_cast<std::size_t>(i)], labels[i]);
        // The longest name of a font shall not widen the page.
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        addField(fields, i, fonts.lblFont[i], list);
        auto *kept = new QLabel(this);
        bind(*kept, fonts.Label48[i]);
        fields->addWidget(kept, i, 2);
    }
    QHBoxLayout *row = addRow();
    row->addStretch(1);
    row->addWidget(makeDefault(fonts.Command42));
}

} // namespace kavro
