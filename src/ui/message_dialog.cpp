#include "ui/message_dialog.h"

#include "controls/form.h"
#include "controls/text_box.h"
#include "ui/bind_look.h"
#include "ui/elided_label.h"
#include "ui/mnemonics.h"
#include "ui/window_parent.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int textWidth = 440;
constexpr int mostTextLines = 18;
constexpr int longestLine = 600;

/// From the left as the program has them: Cancel is the last at the right.
constexpr Answer buttonOrder[] = {Answer::Yes, Answer::No, Answer::Ok, Answer::Cancel};

template <class T>
T *controlOf(const Form &form, QStringView name, int index)
{
    return qobject_cast<T *>(form.control(u"%1(%2)"_s.arg(name).arg(index)));
}

QString captionOf(const Form &form, QStringView name, int index, const QString &otherwise)
{
    const auto *control = controlOf<CaptionControl>(form, name, index);
    return control == nullptr || control->caption().isEmpty() ? otherwise : control->caption();
}

/// The caption of an answer's button when no language gives one.
QString plainCaption(Answer answer)
{
    switch (answer) {
    case Answer::Cancel: return u"Cancel"_s;
    case Answer::Ok: return u"Ok"_s;
    case Answer::No: return u"No"_s;
    case Answer::Yes: return u"Yes"_s;
    }
    return {};
}

} // namespace

MessageDialog::MessageDialog(const Message &message, Form &frmMessageBox, QWidget *parent)
    : QDialog(parent), m_message(message), m_form(frmMessageBox), m_answer(message.safestAnswer())
{
    setObjectName(m_form.name());
    setWindowTitle(message.title);
    setAccessibleName(message.title);
    setAccessibleDescription(message.text);

    auto *icon = new QLabel(this);
    const bool asks = message.offers(Answer::Yes) || message.offers(Answer::No);
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    icon->setPixmap(
        style()
            ->standardIcon(asks ? QStyle::SP_MessageBoxQuestion : QStyle::SP_MessageBoxInformation)
            .pixmap(size));
    auto *top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(icon, 0, Qt::AlignTop);
    auto *words = new QVBoxLayout;
    words->setSpacing(8);
    auto *title = new QLabel(message.title, this);
    title->setObjectName(u"Label4"_s);
    title->setTextFormat(Qt::PlainText);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setVisible(!message.title.isEmpty());
    words->addWidget(title);
    words->addWidget(makeText());
    top->addLayout(words, 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 14);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(top);
    if (message.showInput) {
        layout->addLayout(makeFields());
    }
    layout->addLayout(makeButtons());
}

// A text field rather than a label: a path or a line of a file without a blank is broken, and a
// long one can be scrolled.
QWidget *MessageDialog::makeText()
{
    auto *text = new QPlainTextEdit(this);
    text->setObjectName(u"Label1"_s);
    text->setAccessibleName(m_message.title);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFrameShape(QFrame::NoFrame);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text->viewport()->setAutoFillBackground(false);
    text->setFocusPolicy(Qt::ClickFocus);
    text->document()->setDocumentMargin(0);
    QStringList lines = m_message.text.split(u'\n');
    std::ranges::transform(lines, lines.begin(),
                           [](const QString &line) { return withoutMiddle(line, longestLine); });
    text->setPlainText(lines.join(u'\n'));
    text->setFixedWidth(textWidth);
    const QFontMetrics metrics = text->fontMetrics();
    int height = 0;
    for (const QString &line : lines) {
        height += metrics.horizontalAdvance(line) / (textWidth - 40) + 1;
    }
    text->setFixedHeight(std::min(height, mostTextLines) * metrics.lineSpacing() + 2);
    text->setVerticalScrollBarPolicy(height > mostTextLines ? Qt::ScrollBarAsNeeded
                                                            : Qt::ScrollBarAlwaysOff);
    // The blank at a broken line's end needs no bar, which would cover the last line.
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return text;
}

QLayout *MessageDialog::makeFields()
{
    auto *fields = new QFormLayout;
    const std::array<QString, 2> labels{captionOf(m_form, u"Label2", 0, tr("Name")),
                                        captionOf(m_form, u"Label2", 1, tr("Value"))};
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        m_fields[i] = new QLineEdit(this);
        m_fields[i]->setObjectName(u"txtInput(%1)"_s.arg(i));
        m_fields[i]->setAccessibleName(labels[i]);
        if (const auto *box = controlOf<TextBox>(m_form, u"txtInput", static_cast<int>(i))) {
            m_fields[i]->setText(box->text());
        }
        fields->addRow(withoutMnemonic(labels[i]), m_fields[i]);
    }
    return fields;
}

QLayout *MessageDialog::makeButtons()
{
    Mnemonics mnemonics;
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const Answer given : buttonOrder) {
        if (!m_message.offers(given)) {
            continue;
        }
        const int index = static_cast<int>(given);
        auto *button = new QPushButton(this);
        const QString caption = captionOf(m_form, u"cmdAction", index, plainCaption(given));
        button->setText(mnemonics.mark(caption));
        button->setObjectName(u"cmdAction(%1)"_s.arg(index));
        button->setAccessibleName(caption);
        button->setAutoDefault(true);
        button->setMinimumWidth(84);
        connect(button, &QPushButton::clicked, this, [this, given] { press(given); });
        buttons->addWidget(button);
        if (given == m_message.defaultButton) {
            button->setDefault(true);
            button->setFocus();
        }
        if (auto *control = controlOf<Button>(m_form, u"cmdAction", index)) {
            connect(control, &Button::clicked, this, [this, given] {
                // A message that came up over this one is answered first.
                if (QApplication::activeModalWidget() == this) {
                    answer(given);
                }
            });
        }
    }
    return buttons;
}

MessageReply MessageDialog::reply() const
{
    MessageReply reply{.answer = m_answer, .inputName = {}, .inputValue = {}};
    if (m_message.showInput) {
        reply.inputName = m_fields[0]->text();
        reply.inputValue = m_fields[1]->text();
    }
    return reply;
}

/// A person's answer goes by the control, as a macro's does, while this is still the topmost
/// window; so it can't be taken for the answer of a message below.
void MessageDialog::press(Answer given)
{
    for (std::size_t i = 0; i < m_fields.size() && m_message.showInput; ++i) {
        if (auto *box = controlOf<TextBox>(m_form, u"txtInput", static_cast<int>(i))) {
            box->type(m_fields[i]->text());
        }
    }
    if (auto *control = controlOf<Button>(m_form, u"cmdAction", static_cast<int>(given))) {
        control->click();
    } else {
        answer(given);
    }
}

void MessageDialog::answer(Answer given)
{
    m_answer = given;
    accept();
}

void MessageDialog::reject()
{
    const bool hasButton =
        std::ranges::any_of(buttonOrder, [this](Answer given) { return m_message.offers(given); });
    if (m_message.offers(Answer::Cancel)) {
        press(Answer::Cancel);
    } else if (!hasButton) {
        QDialog::reject(); // a message without a button can be left in no other way
    }
}

void MessageDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
    reject();
}

MessageReply MessageDialogs::show(const Message &message)
{
    Q_ASSERT(form != nullptr);
    MessageDialog dialog(message, *form, windowParent());
    dialog.exec();
    return dialog.reply();
}

} // namespace kavro
