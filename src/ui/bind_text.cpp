#include "ui/bind_text.h"

#include "controls/text_box.h"
#include "ui/bind_look.h"
#include "ui/cell_colors.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <limits>

namespace kavro {

namespace {

/// Tells a field's control of Enter and Escape; the window gets them too.
class KeyFilter : public QObject
{
public:
    KeyFilter(QLineEdit &edit, TextBox &box) : QObject(&edit), m_box(box)
    {
        edit.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: m_box.press(Key::Enter); return false;
        case Qt::Key_Escape: m_box.press(Key::Escape); return false;
        default: return false;
        }
    }

private:
    TextBox &m_box;
};

/// Shows a control's text in its field; a field that is hidden gets it when it is shown.
class ShownText : public QObject
{
public:
    ShownText(QLineEdit &edit, TextBox &box) : QObject(&edit), m_edit(edit), m_box(box)
    {
        // A cell can be longer than Qt's own limit, and what is cut here would be written so.
        edit.setMaxLength(std::numeric_limits<int>::max());
        edit.installEventFilter(this);
        connect(&box, &TextBox::textChanged, this, &ShownText::follow);
        follow();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ShowToParent) {
            follow();
        }
        return false;
    }

private:
    void follow()
    {
        if (!m_edit.isHidden() && m_edit.text() != m_box.text()) {
            m_edit.setText(m_box.text());
            if (!m_edit.hasFocus()) {
                m_edit.setCursorPosition(0); // a long text is seen from its beginning
            }
        }
    }

    QLineEdit &m_edit;
    TextBox &m_box;
};

} // namespace

void bind(QLineEdit &edit, TextBox &box, const QString &label)
{
    bindLook(edit, box, label);
    bindTyping(edit, box);
    new KeyFilter(edit, box);
}

void bindTyping(QLineEdit &edit, TextBox &box)
{
    new ShownText(edit, box);
    QObject::connect(&edit, &QLineEdit::textEdited, &box, [&edit, &box](const QString &text) {
        const qsizetype behind = text.size() - edit.cursorPosition();
        box.type(text);
        if (box.text() != text) {
            edit.setText(box.text());
            edit.setCursorPosition(static_cast<int>(box.text().size() - behind));
        }
    });
    QObject::connect(&box, &TextBox::selectionChanged, &edit, [&edit, &box] {
        const bool same = edit.selectionStart() == static_cast<int>(box.selStart())
                          && edit.selectionLength() == static_cast<int>(box.selLength());
        if (!same) {
            const QSignalBlocker quiet(edit);
            edit.setSelection(static_cast<int>(box.selStart()), static_cast<int>(box.selLength()));
        }
    });
    QObject::connect(&edit, &QLineEdit::selectionChanged, &box, [&edit, &box] {
        const int start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
        const int length = static_cast<int>(edit.selectedText().size());
        if (start != box.selStart() || length != box.selLength()) {
            box.setSelection(start, length);
        }
    });
}

void bind(QPlainTextEdit &view, TextBox &box, const QString &label)
{
    bindLook(view, box, label);
    view.setReadOnly(true);
    view.setTabChangesFocus(true);
    const auto show = [&view, &box] { view.setPlainText(box.text()); };
    QObject::connect(&box, &TextBox::textChanged, &view, show);
    show();
}

void bindLog(QPlainTextEdit &view, TextBox &box, const QString &label)
{
    bindLookInPlace(view, box, label);
    view.setReadOnly(true);
    const auto show = [&view, &box] {
        view.setPlainText(box.text());
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    };
    QObject::connect(&box, &TextBox::textChanged, &view, show);
    show();
}

void bindPreview(QLabel &label, TextBox &box, const QString &name)
{
    bindLookInPlace(label, box, name);
    label.setTextFormat(Qt::PlainText);
    const auto show = [&label, &box] {
        QFont font = label.font();
        font.setBold(box.isBold());
        font.setItalic(box.isItalic());
        label.setFont(font);
        label.setText(box.text());
    };
    QObject::connect(&box, &TextBox::textChanged, &label, show);
    QObject::connect(&box, &TextBox::fontChanged, &label, show);
    show();
}

void bind(QLabel &view, Label &label)
{
    bindLook(view, label);
    view.setTextFormat(Qt::PlainText);
    const auto show = [&view, &label] {
        // Only the label of a field can have a letter to press.
        const bool leads = view.buddy() != nullptr;
        view.setText(leads ? withoutMnemonic(label.caption()) : label.caption());
    };
    const auto paint = [&view, &label] {
        QPalette palette;
        if (!label.foreColor().isDesktop()) {
            palette.setColor(QPalette::WindowText, textColor(label.foreColor().rgb(), palette));
        }
        view.setPalette(palette);
    };
    QObject::connect(&label, &Label::captionChanged, &view, show);
    QObject::connect(&label, &Control::lookChanged, &view, paint);
    show();
    paint();
}

} // namespace kavro
