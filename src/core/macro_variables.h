#pragma once

#include <QString>

#include <array>

namespace kavro {

/// The variables of the macro language that the message window can fill.
struct MacroVariables
{
    /// Entries 1 to 100: name + ":=" + value, empty while unused.
    std::array<QString, 101> mcrVar;
    bool macroInput = false; ///< the last message window showed its input fields
};

} // namespace kavro
