#pragma once

class QComboBox;
class QString;

namespace kavro {

class ComboBox;

/// A list that shows its selection, both ways without echo; a folded list is one too. Entries that
/// are added one by one are shown once, when the event loop is reached.
void bind(QComboBox &view, ComboBox &list, const QString &label);

} // namespace kavro
