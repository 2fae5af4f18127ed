#include "ui/search_view.h"

#include "tools/search_replace.h"
#include "ui/bind_buttons.h"
#include "ui/bind_indicators.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace kavro {

SearchView::SearchView(SearchReplace &search, QWidget *parent) : ToolPage(parent)
{
    auto *what = new QLineEdit(this);
    bind(*what, search.rtfSearch, tr("Search for"));
    auto *with = new QLineEdit(this);
    bind(*with, search.rtfReplace, tr("Replace with"));
    auto *matches = new QLabel(this);
    bind(*matches, search.lblMatches);
    runByTheClock(search.timMatches, *this);

    QGridLayout *fields = addGrid();
    fields->setColumnStretch(1, 1);
    addField(fields, 0, search.lblSearch, what);
    fields->addWidget(makeModes(search), 0, 2);
    addField(fields, 1, search.lblReplace, with);
    auto *go = new QHBoxLayout;
    go->addWidget(makeDefault(search.cmdSearch));
    go->addWidget(matches, 1);
    fields->addLayout(go, 1, 2);
    auto *stored = new QComboBox(this);
    bind(*stored, search.List4, tr("Stored"));
    stored->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addField(fields, 2, search.lblStored, stored);
    fields->addWidget(makeButton(search.Command2), 2, 2);
}

QWidget *SearchView::makeModes(SearchReplace &search)
{
    auto *group = new QWidget(this);
    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (OptionButton &mode : search.Option1) {
        auto *view = new QRadioButton(group);
        bind(*view, mode);
        layout->addWidget(view);
    }
    return group;
}

} // namespace kavro
