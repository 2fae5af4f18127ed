#pragma once

#include <QString>

#include <array>

namespace kavro {

/// The variables of the macro language: what a macro reads of the program, and its own, which the
/// message window can fill too.
struct MacroVariables
{
    /// The program's state by number, 0 to 200; what has no number of its own stays empty.
    std::array<QString, 201> sysVar;
    /// Entries 1 to 100: name + ":=" + value, empty while unused.
    std::array<QString, 101> mcrVar;
    bool macroInput = false; ///< the last message window showed its input fields
};

} // namespace kavro
