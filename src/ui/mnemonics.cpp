#include "ui/mnemonics.h"

#include <QAction>
#include <QSet>

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

qsizetype firstFreeLetter(const QString &text, const QSet<QChar> &taken)
{
    // The heads of words come first, being what a person looks for.
    for (const bool anywhere : {false, true}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool head = i == 0 || text[i - 1].isSpace();
            if ((head || anywhere) && text[i].isLetterOrNumber()
                && !taken.contains(text[i].toLower())) {
                return i;
            }
        }
    }
    return -1;
}

} // namespace

void assignMnemonics(const QList<QAction *> &actions)
{
    QSet<QChar> taken;
    for (QAction *action : actions) {
        if (action->isSeparator() || !action->isVisible()) {
            continue;
        }
        const QString plain = plainText(action->text());
        const qsizetype letter = firstFreeLetter(plain, taken);
        QString text;
        for (qsizetype i = 0; i < plain.size(); ++i) {
            text += i == letter ? QStringLiteral("&") : QString();
            text += plain[i] == u'&' ? QStringLiteral("&&") : QString(plain[i]);
        }
        if (letter >= 0) {
            taken.insert(plain[letter].toLower());
        }
        action->setText(text);
    }
}

} // namespace kavro
