#pragma once

#include <QString>
#include <QtGlobal>

#include <array>
#include <cstddef>
#include <utility>

namespace kavro {

class Form;

/// Controls of one name with the indexes First to Last, in the program's own numbering.
template <class T, int First, int Last>
class ControlArray
{
    static_assert(First >= 0 && First <= Last);

public:
    static constexpr int first = First;
    static constexpr int last = Last;

    ControlArray(Form &form, const QString &name)
        : ControlArray(form, name, std::make_integer_sequence<int, Last - First + 1>())
    {}

    /// The control with that index, which must lie in First to Last.
    T &operator[](int index)
    {
        Q_ASSERT(index >= First && index <= Last);
        return m_items[static_cast<std::size_t>(index - First)];
    }
    const T &operator[](int index) const
    {
        Q_ASSERT(index >= First && index <= Last);
        return m_items[static_cast<std::size_t>(index - First)];
    }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    template <int... Offsets>
    ControlArray(Form &form, const QString &name, std::integer_sequence<int, Offsets...>)
        : m_items{T(form, name, First + Offsets)...}
    {}

    std::array<T, static_cast<std::size_t>(Last - First + 1)> m_items;
};

} // namespace kavro
