#pragma once

#include <QList>

#include <algorithm>

namespace kavro {

/// What differs between two lists: one piece, as it was and as it became.
template <class T>
struct ListPatch
{
    qsizetype first = 0;
    QList<T> before;
    QList<T> after;

    ListPatch() = default;

    /// Cheap where entries are shared; entries behind a change in number are compared from the end.
    ListPatch(const QList<T> &from, const QList<T> &to)
    {
        if (from.isSharedWith(to)) {
            return;
        }
        const qsizetype least = std::min(from.size(), to.size());
        while (first < least && from.at(first) == to.at(first)) {
            ++first;
        }
        qsizetype same = 0;
        while (same < least - first
               && from.at(from.size() - 1 - same) == to.at(to.size() - 1 - same)) {
            ++same;
        }
        before = from.sliced(first, from.size() - same - first);
        after = to.sliced(first, to.size() - same - first);
    }

    [[nodiscard]] bool isEmpty() const { return before.isEmpty() && after.isEmpty(); }
    [[nodiscard]] bool changesCount() const { return before.size() != after.size(); }

    /// `list` with `now`, one of the two pieces, replaced by the other.
    [[nodiscard]] QList<T> replaced(const QList<T> &list, const QList<T> &now,
                                    const QList<T> &then) const
    {
        return isEmpty() ? list : list.first(first) + then + list.sliced(first + now.size());
    }
};

} // namespace kavro
