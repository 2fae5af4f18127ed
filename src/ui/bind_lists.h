#pragma once

class QComboBox;
class QListView;
class QString;

namespace kavro {

class ComboBox;
class ListBox;

// Both ways without echo. Entries that are added one by one are shown once, when the event loop is
// reached.

/// A list that shows its selection; a folded list is one too.
void bind(QComboBox &view, ComboBox &list, const QString &label);

/// A list of any length whose entries are all seen. A step to an entry picks it, and so does a
/// click on the one that stands.
void bind(QListView &view, ListBox &list, const QString &label);

} // namespace kavro
