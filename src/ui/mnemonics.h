#pragma once

#include <QList>

class QAction;

namespace kavro {

/// Gives each entry of a menu a letter of its own to press, the first of its text that is free.
/// Texts are plain captions; a second call gives the same letters.
void assignMnemonics(const QList<QAction *> &actions);

} // namespace kavro
