#include "ui/tool_page.h"

#include "controls/text_box.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kavro {

namespace {

constexpr int margin = 9;
constexpr int gap = 6;

} // namespace

ToolPage::ToolPage(QWidget *parent) : QWidget(parent), m_rows(new QVBoxLayout)
{
    m_rows->setSpacing(gap);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addLayout(m_rows, 1000);
    layout->addStretch(1);
}

int ToolPage::heightOf(int rows)
{
    const int row = QComboBox().sizeHint().height();
    return 2 * margin + rows * row + (rows - 1) * gap;
}

QHBoxLayout *ToolPage::addRow(int stretch)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    m_rows->addLayout(row, stretch);
    return row;
}

QGridLayout *ToolPage::addGrid()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(gap);
    m_rows->addLayout(grid);
    return grid;
}

void ToolPage::addField(QBoxLayout *row, Label &label, QWidget *field)
{
    row->addWidget(makeLabel(label, field));
    row->addWidget(field);
}

void ToolPage::addField(QGridLayout *grid, int row, Label &label, QWidget *field)
{
    grid->addWidget(makeLabel(label, field), row, 0);
    grid->addWidget(field, row, 1);
}

QLabel *ToolPage::makeLabel(Label &label, QWidget *field)
{
    auto *text = new QLabel(this);
    text->setBuddy(field);
    bind(*text, label);
    return text;
}

QLineEdit *ToolPage::makeNumberField(TextBox &box, const QString &label)
{
    constexpr int digits = 7;
    auto *field = new QLineEdit(this);
    bind(*field, box, label);
    field->setFixedWidth(field->fontMetrics().horizontalAdvance(QString(digits, u'9')));
    return field;
}

QPushButton *ToolPage::makeButton(Button &button)
{
    auto *view = new QPushButton(this);
    connect(view, &QPushButton::clicked, this, &ToolPage::aboutToAct);
    bind(*view, button);
    view->setFocusPolicy(Qt::TabFocus);
    letShrink(*view);
    return view;
}

void ToolPage::letShrink(QPushButton &button)
{
    const QFontMetrics metrics = button.fontMetrics();
    button.setMinimumWidth(metrics.horizontalAdvance(button.text())
                           + 3 * metrics.averageCharWidth());
}

QPushButton *ToolPage::makeDefault(Button &button)
{
    m_default = makeButton(button);
    m_default->setDefault(true);
    return m_default;
}

void ToolPage::addRange(QBoxLayout *row, TextBox &first, TextBox &last, Label &step, Label &node)
{
    row->addWidget(makeNumberField(first, tr("First line")));
    row->addWidget(new QLabel(QChar(0x2013), this));
    row->addWidget(makeNumberField(last, tr("Last line")));
    auto *steps = new QPushButton(this);
    bind(*steps, step);
    steps->setFocusPolicy(Qt::TabFocus);
    letShrink(*steps);
    row->addWidget(steps);
    auto *number = new QLabel(this);
    bind(*number, node);
    number->setAccessibleName(tr("Node"));
    row->addWidget(number);
}

void ToolPage::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    auto *focused = qobject_cast<QPushButton *>(QApplication::focusWidget());
    if (QPushButton *pressed = focused != nullptr ? focused : m_default) {
        pressed->click();
    }
}

} // namespace kavro
