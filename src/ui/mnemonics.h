#pragma once

#include <QList>
#include <QSet>
#include <QString>

class QAction;

namespace kavro {

/// Gives each of several captions that stand together a letter of its own to press.
class Mnemonics
{
public:
    /// A plain caption with "&" ahead of its first letter that is free, heads of words first.
    QString mark(const QString &caption);

private:
    [[nodiscard]] qsizetype freeLetter(const QString &caption) const;

    QSet<QChar> m_taken;
};

/// The same for the entries of a menu; a second call gives the same letters.
void assignMnemonics(const QList<QAction *> &actions);

} // namespace kavro
