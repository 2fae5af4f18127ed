#include "ui/mnemonics.h"

#include <QAction>

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
