#include "ui/search_view.h"

#include "tools/search_replace.h"
#include "ui/bind_buttons.h"
#include "ui/bind_indicators.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kavro {

SearchView::SearchView(SearchReplace &search, QWidget *parent) : ToolPage(parent)
{
    auto *what = new QLineEdit(this);
    bind(*what, search.rtfSearch, tr("Search for"));
    auto *with = new QLineEdit(this);
    bind(*with, search.rtfReplace, tr("Replace with"));
    runByTheClock(search.timMatches, *this);

    QGridLayout *fields = addGrid();
    fields->setColumnStretch(1, 1);
    addField(fields, 0, search.lblSearch, what);
    addField(fields, 1, search.lblReplace, with);
    fields->addWidget(makeModes(search), 0, 2, 2, 1);
    auto *stored = new QComboBox(this);
    bind(*stored, search.List4, tr("Stored"));
    stored->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    stored->setMinimumContentsLength(4);
    QHBoxLayout *row = addRow();
    addField(row, search.lblStored, stored);
    row->setStretchFactor(stored, 1);
    row->addWidget(makeButton(search.Command2));
    row->addWidget(makeDefault(search.cmdSearch));
    showMatches(*what, search.lblMatches);
}

/// The count stands in the field, at its end.
void SearchView::showMatches(QLineEdit &what, Label &matches)
{
    auto *view = new QLabel(&what);
    view->setAttribute(Qt::WA_TransparentForMouseEvents);
    view->setForegroundRole(QPalette::PlaceholderText);
    bind(*view, matches);
    auto *inside = new QHBoxLayout(&what);
    inside->setContentsMargins(0, 0, 6, 0);
    inside->addStretch(1);
    inside->addWidget(view);
    const auto makeRoom = [&what, view] {
        constexpr int gap = 12;
        what.setTextMargins(0, 0, view->text().isEmpty() ? 0 : view->sizeHint().width() + gap, 0);
    };
    connect(&matches, &Label::captionChanged, view, makeRoom);
    makeRoom();
}

QWidget *SearchView::makeModes(SearchReplace &search)
{
    auto *group = new QWidget(this);
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (OptionButton &mode : search.Option1) {
        auto *view = new QRadioButton(group);
        bind(*view, mode);
        layout->addWidget(view);
    }
    return group;
}

} // namespace kavro
