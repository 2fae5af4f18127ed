#pragma once

#include <QList>
#include <QSet>
#include <QString>

class QAction;
class QWidget;

namespace kavro {

/// Gives each of several captions that stand together a letter of its own to press.
class Mnemonics
{
public:
    /// A plain caption with "&" ahead of its first letter that is free, heads of words first.
    QString mark(const QString &caption);
    /// A letter that others have.
    void take(QChar letter) { m_taken.insert(letter.toLower()); }

private:
    [[nodiscard]] qsizetype freeLetter(const QString &caption) const;

    QSet<QChar> m_taken;
};

/// The same for the entries of a menu; a second call gives the same letters.
void assignMnemonics(const QList<QAction *> &actions);

/// The same for the labels of fields, the boxes and the buttons that a window shows, in their order
/// and beside the letters of its menu bar.
void assignMnemonics(QWidget &window);

/// The same for the window of `page` behind a change of what the page shows, once all of it is set.
void assignMnemonicsLater(QWidget &page);

} // namespace kavro
