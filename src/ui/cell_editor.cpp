#include "ui/cell_editor.h"

#include "controls/form.h"
#include "controls/text_box.h"
#include "ui/bind_look.h"
#include "ui/bind_text.h"
#include "ui/grid_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace kavro {

CellEditor::CellEditor(GridView &view, TextBox &box, const QString &label)
    : QLineEdit(view.viewport()), m_view(view), m_box(box)
{
    hide();
    bindLookInPlace(*this, box, label);
    bindTyping(*this, box);
    setFrame(false);
    setAutoFillBackground(true);
    setTextMargins(3, 0, 3, 0); // stands where the cell's own text does
    connect(&box.form(), &Form::focusChanged, this,
            [this](Control *control) { followFocus(control == &m_box); });
    connect(&view, &GridView::currentCellMoved, this, &CellEditor::place);
    view.viewport()->installEventFilter(this);
}

bool CellEditor::isOpen() const
{
    return m_box.hasFocus();
}

void CellEditor::begin()
{
    m_view.scrollTo(m_view.currentIndex());
    m_view.grid().press(Key::Enter);
}

void CellEditor::beginWith(QEvent *event)
{
    if (!isOpen()) {
        begin();
        selectAll();
    }
    if (isOpen()) {
        QApplication::sendEvent(this, event);
    }
}

void CellEditor::finish()
{
    if (isOpen()) {
        m_box.press(text() != m_before ? Key::Enter : Key::Escape);
    }
}

bool CellEditor::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        finish();
    }
    return false;
}

bool CellEditor::event(QEvent *event)
{
    // Tab is the cell's own key and must not move the focus.
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier) {
            m_box.press(Key::Tab);
            return true;
        }
    }
    return QLineEdit::event(event);
}

void CellEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: m_box.press(Key::Enter); break;
    case Qt::Key_Escape: m_box.press(Key::Escape); break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: stepRow(event); break;
    default: QLineEdit::keyPressEvent(event);
    }
}

void CellEditor::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Active, QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CellEditor::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    QWidget *next = QApplication::focusWidget();
    const bool stays =
        next == nullptr || next == this || next->window() != window() || m_isCompanion(next);
    if (!stays && isOpen() && text() != m_before) {
        finish();
        next->setFocus(); // the key of the edit took the focus to the grid
    }
}

void CellEditor::stepRow(QKeyEvent *event)
{
    finish();
    QApplication::sendEvent(&m_view, event);
}

void CellEditor::place()
{
    if (isVisible()) {
        setGeometry(m_view.currentCell());
    }
}

void CellEditor::followFocus(bool mine)
{
    if (mine) {
        show();
        m_before = text();
        place();
        raise();
        setFocus();
    } else if (isVisible()) {
        // The view gets the focus ahead, else Qt would hand it to whatever is next.
        if (hasFocus() && m_view.grid().hasFocus()) {
            m_view.setFocus();
        }
        hide();
    }
}

} // namespace kavro
