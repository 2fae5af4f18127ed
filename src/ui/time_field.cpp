#include "ui/time_field.h"

#include "core/timecode.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleOptionFrame>

#include <algorithm>
#include <cstdlib>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView fullZero = u"00:00:00,000";
constexpr QStringView separators = u":,.; ";

} // namespace

TimeField::TimeField(Form form, QWidget *parent)
    : QLineEdit(parent),
      m_zero(form == Form::Hours ? fullZero.toString() : fullZero.sliced(3).toString())
{}

QSize TimeField::sizeHint() const
{
    ensurePolished();
    // The cursor stands behind the last digit at times.
    const QSize text(fontMetrics().horizontalAdvance(m_zero) + fontMetrics().averageCharWidth() * 2,
                     QLineEdit::sizeHint().height());
    const QMargins margins = textMargins();
    return text + QSize(margins.left() + margins.right() + 6, 0);
}

bool TimeField::hasColumns() const
{
    const QString &now = text();
    if (now.size() != m_zero.size()) {
        return false;
    }
    for (qsizetype i = 0; i < now.size(); ++i) {
        const bool sign = i == 0 && now[i] == u'-' && m_zero.size() == fullZero.size();
        if (isSeparator(i) ? now[i] != m_zero[i] : !(now[i].isDigit() || sign)) {
            return false;
        }
    }
    return true;
}

bool TimeField::isSeparator(qsizetype column) const
{
    return m_zero[column] != u'0';
}

void TimeField::keyPressEvent(QKeyEvent *event)
{
    if (!isReadOnly() && (hasColumns() || text().isEmpty()) && takesKey(*event)) {
        event->accept();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

bool TimeField::takesKey(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Paste)) {
        typeOver(QGuiApplication::clipboard()->text());
        return true;
    }
    if (event.matches(QKeySequence::Cut)) {
        copy();
        return clearColumns(Qt::Key_Delete);
    }
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Up: step(1); return true;
    case Qt::Key_Down: step(-1); return true;
    case Qt::Key_PageUp: step(10); return true;
    case Qt::Key_PageDown: step(-10); return true;
    case Qt::Key_Backspace:
    case Qt::Key_Delete: return clearColumns(event.key());
    default: break;
    }
    const bool typed = !event.text().isEmpty() && event.text().at(0).isPrint();
    if (typed) {
        typeOver(event.text());
    }
    return typed;
}

void TimeField::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty() && (hasColumns() || text().isEmpty())) {
        typeOver(event->commitString());
        event->accept();
    } else {
        QLineEdit::inputMethodEvent(event);
    }
}

void TimeField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason)
    {
        selectAll();
    }
}

/// Letters that are neither digits nor separators nor a sign are dropped.
void TimeField::typeOver(const QString &letters)
{
    if (text().isEmpty()) {
        overwrite(0, m_zero, 0);
    } else if (hasSelectedText()) {
        clearColumns(Qt::Key_Delete);
    }
    for (const QChar letter : letters.trimmed().isEmpty() ? letters : letters.trimmed()) {
        if (letter.isDigit() && letter.unicode() <= u'9') {
            typeDigit(letter);
        } else if (letter == u'-' && cursorPosition() == 0 && m_zero.size() == fullZero.size()) {
            overwrite(0, letter, 1);
        } else if (separators.contains(letter)) {
            jumpBehindSeparator();
        }
    }
}

void TimeField::typeDigit(QChar digit)
{
    qsizetype column = cursorPosition();
    if (column < m_zero.size() && isSeparator(column)) {
        ++column;
    }
    if (column < m_zero.size()) {
        const qsizetype next = column + 1;
        overwrite(column, digit, next < m_zero.size() && isSeparator(next) ? next + 1 : next);
    }
}

/// Behind a part's last digit the cursor has jumped already.
void TimeField::jumpBehindSeparator()
{
    const qsizetype column = cursorPosition();
    if (column > 0 && isSeparator(column - 1)) {
        return;
    }
    for (qsizetype i = column; i < m_zero.size(); ++i) {
        if (isSeparator(i)) {
            setCursorPosition(static_cast<int>(i + 1));
            return;
        }
    }
}

/// Zeros for the selection, or for the digit ahead of or behind the cursor.
bool TimeField::clearColumns(int key)
{
    if (!hasColumns()) {
        return false;
    }
    if (hasSelectedText()) {
        const qsizetype start = selectionStart();
        overwrite(start, m_zero.mid(start, selectedText().size()), start);
        return true;
    }
    const bool back = key == Qt::Key_Backspace;
    qsizetype column = cursorPosition() - (back ? 1 : 0);
    if (column >= 0 && column < m_zero.size() && isSeparator(column)) {
        column += back ? -1 : 1;
    }
    if (column >= 0 && column < m_zero.size()) {
        overwrite(column, m_zero.mid(column, 1), back ? column : column + 1);
    }
    return true;
}

/// Steps the part that the cursor stands in; a time doesn't go below zero by stepping.
void TimeField::step(int parts)
{
    if (text().isEmpty()) {
        overwrite(0, m_zero, 0);
    }
    const qsizetype cursor = hasSelectedText() ? selectionStart() : cursorPosition();
    const QString missing = fullZero.first(fullZero.size() - m_zero.size()).toString();
    qsizetype first = std::min(cursor, m_zero.size() - 1);
    while (first > 0 && !isSeparator(first - 1)) {
        --first;
    }
    const bool thousandths = m_zero.size() - first == 3;
    QString length = m_zero;
    length.replace(first, thousandths ? 3 : 2,
                   QString::number(std::abs(parts)).rightJustified(thousandths ? 3 : 2, u'0'));
    const QString sum = TimeCodeAdd(missing + text(), missing + length, parts < 0 ? u'-' : u'+');
    const bool fits = sum.startsWith(missing) && (text().startsWith(u'-') || !sum.startsWith(u'-'));
    if (fits) {
        overwrite(0, sum.sliced(missing.size()), cursor);
    }
}

/// As typing does: it is told as an edit and can be taken back.
void TimeField::overwrite(qsizetype column, const QString &text, qsizetype cursor)
{
    setSelection(static_cast<int>(column), static_cast<int>(text.size()));
    insert(text);
    setCursorPosition(static_cast<int>(cursor));
}

} // namespace kavro
