#include "ui/settings_view.h"

#include "app/settings_window.h"
#include "controls/form.h"
#include "core/settings_page.h"
#include "ui/bind_buttons.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"
#include "ui/form_focus.h"
#include "ui/mnemonics.h"
#include "ui/navigation_tree.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace kavro {

namespace {

/// How far a field stands in below the box that switches it.
int indent(const QWidget &widget)
{
    return widget.style()->pixelMetric(QStyle::PM_IndicatorWidth)
           + widget.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
}

/// A tree in which the arrow keys alone change the page.
NavigationTree *makeTree(TreeView &tree, QWidget *parent)
{
    auto *view = new NavigationTree(
        tree, [](int) { return true; }, SettingsView::tr("Pages"), parent);
    view->setFrameShape(QFrame::StyledPanel);
    view->setFixedWidth(170);
    view->actOnSteps();
    return view;
}

} // namespace

SettingsView::SettingsView(Form &frmSettings, SettingsWindow &window, SettingsPage &settings,
                           QWidget *parent)
    : FormDialog(frmSettings, parent), m_window(window), m_pages(new QStackedWidget(this))
{
    auto *tree = makeTree(window.TV2, this);
    makePages(settings);
    auto *ok = new QPushButton(this);
    bind(*ok, window.Command1[1]);
    ok->setDefault(true);
    auto *cancel = new QPushButton(this);
    bind(*cancel, window.Command1[0]);

    auto *top = new QHBoxLayout;
    top->setSpacing(18);
    top->addWidget(tree);
    top->addWidget(m_pages, 1);
    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(ok);
    foot->addWidget(cancel);
    QVBoxLayout *layout = makeLayout();
    layout->addLayout(top, 1);
    layout->addLayout(foot);
    new FormFocus(frmSettings, *this);
    tree->setFocus();
    resize(620, 380);
}

void SettingsView::makePages(SettingsPage &settings)
{
    QBoxLayout *page = addPage(m_window.startup);
    for (int box = SettingsPage::CheckForUpdates; box <= SettingsPage::ShowWizard; ++box) {
        addBox(*page, settings.Check7[box]);
    }
    page = addPage(m_window.general);
    for (int box = SettingsPage::AutoHelp; box <= SettingsPage::LoadSubtitle; ++box) {
        addBox(*page, settings.Check7[box]);
    }
    for (CheckBox &box : settings.Check1) {
        addBox(*page, box);
    }
    page = addPage(m_window.defaults);
    auto *rate = new QHBoxLayout;
    auto *label = new QLabel(this);
    bind(*label, m_window.lblFrameRate);
    auto *rates = new QComboBox(this);
    bind(*rates, settings.Combo2, m_window.lblFrameRate.caption());
    label->setBuddy(rates);
    rate->addWidget(label);
    rate->addWidget(rates, 1);
    page->addLayout(rate);
    addBox(*page, settings.Check3);
    addBox(*page, settings.Check4);
    page = addPage(m_window.script);
    addBox(*page, settings.Check6[0]);
    addNote(*page, settings.Check6[0].toolTip());
    addList(*page, settings.cmbScript, settings.Check6[0], true);
    addBox(*page, settings.Check6[1]);
    page = addPage(m_window.audio);
    for (CheckBox &box : settings.Check5) {
        addBox(*page, box);
    }
    page = addPage(m_window.lng);
    addBox(*page, settings.Check2);
    addList(*page, settings.List1, settings.Check2, false);
}

QBoxLayout *SettingsView::addPage(Frame &frame)
{
    auto *page = new QWidget(m_pages);
    page->setObjectName(frame.name());
    page->setAccessibleName(frame.caption());
    auto *outer = new QVBoxLayout(page);
    outer->setContentsMargins(0, 0, 0, 0);
    auto *title = new QLabel(frame.caption(), page);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    outer->addWidget(title);
    outer->addSpacing(6);
    auto *rows = new QVBoxLayout;
    rows->setSpacing(8);
    outer->addLayout(rows);
    outer->addStretch(1);
    m_pages->addWidget(page);
    const auto follow = [this, &frame, page] {
        if (frame.isVisible()) {
            m_pages->setCurrentWidget(page);
            assignMnemonics(*this);
        }
    };
    connect(&frame, &Control::lookChanged, page, follow);
    follow();
    return rows;
}

void SettingsView::addBox(QBoxLayout &page, CheckBox &box)
{
    auto *view = new QCheckBox(this);
    bind(*view, box);
    page.addWidget(view);
}

void SettingsView::addList(QBoxLayout &page, ComboBox &list, const CheckBox &box, bool typed)
{
    auto *view = new QComboBox(this);
    view->setEditable(typed);
    view->setInsertPolicy(QComboBox::NoInsert);
    bind(*view, list, box.caption());
    auto *row = new QHBoxLayout;
    row->setContentsMargins(indent(*this), 0, 0, 0);
    row->addWidget(view);
    page.addLayout(row);
    if (typed) {
        connect(view->lineEdit(), &QLineEdit::editingFinished, &list, [view, &list] {
            if (view->currentText() != list.text()) {
                list.type(view->currentText());
            }
        });
    }
}

void SettingsView::addNote(QBoxLayout &page, const QString &text)
{
    auto *note = new QLabel(text, this);
    note->setWordWrap(true);
    note->setIndent(indent(*this));
    note->setForegroundRole(QPalette::PlaceholderText);
    page.addWidget(note);
}

void SettingsView::reject()
{
    m_window.Command1[0].click();
}

} // namespace kavro
