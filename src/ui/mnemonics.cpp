#include "ui/mnemonics.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace kavro {

namespace {

/// "&" marks a letter and "&&" stands for one "&".
QString plainText(const QString &text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&') {
            ++i;
        }
        if (i < text.size()) {
            plain += text[i];
        }
    }
    return plain;
}

/// The letters of a window's menu bar.
void takeMenuLetters(const QWidget &window, Mnemonics &mnemonics)
{
    const auto *bar = window.findChild<QMenuBar *>();
    const QList<QAction *> menus = bar == nullptr ? QList<QAction *>() : bar->actions();
    for (const QAction *menu : menus) {
        const QKeySequence letter = QKeySequence::mnemonic(menu->text());
        if (menu->isVisible() && !letter.isEmpty()) {
            mnemonics.take(QChar(letter[0].key()));
        }
    }
}

} // namespace

QString Mnemonics::mark(const QString &caption)
{
    const qsizetype letter = freeLetter(caption);
    if (letter >= 0) {
        m_taken.insert(caption[letter].toLower());
    }
    QString marked;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (i == letter || caption[i] == u'&') {
            marked += u'&';
        }
        marked += caption[i];
    }
    return marked;
}

qsizetype Mnemonics::freeLetter(const QString &caption) const
{
    for (const bool anywhere : {false, true}) {
        for (qsizetype i = 0; i < caption.size(); ++i) {
            const bool head = i == 0 || caption[i - 1].isSpace();
            if ((head || anywhere) && caption[i].isLetterOrNumber()
                && !m_taken.contains(caption[i].toLower())) {
                return i;
            }
        }
    }
    return -1;
}

void assignMnemonics(QWidget &window)
{
    Mnemonics mnemonics;
    takeMenuLetters(window, mnemonics);
    const auto mark = [&mnemonics](auto &widget) {
        const QString marked = mnemonics.mark(plainText(widget.text()));
        if (widget.text() != marked) {
            widget.setText(marked);
        }
    };
    const QList<QWidget *> all = window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (widget->window() != &window || !widget->isVisible()) {
            continue;
        }
        if (auto *label = qobject_cast<QLabel *>(widget); label != nullptr && label->buddy()) {
            mark(*label);
        } else if (qobject_cast<QPushButton *>(widget) || qobject_cast<QCheckBox *>(widget)
                   || qobject_cast<QRadioButton *>(widget))
        {
            mark(*static_cast<QAbstractButton *>(widget));
        }
    }
}

void assignMnemonicsLater(QWidget &page)
{
    QTimer::singleShot(0, &page, [&page] {
        if (page.isVisible()) {
            assignMnemonics(*page.window());
        }
    });
}

void assignMnemonics(const QList<QAction *> &actions)
{
    Mnemonics mnemonics;
    for (QAction *action : actions) {
        if (!action->isSeparator() && action->isVisible()) {
            action->setText(mnemonics.mark(plainText(action->text())));
        }
    }
}

} // namespace kavro
