#pragma once

#include "cli/verb.h"

#include <memory>
#include <vector>

namespace kavro {

/// All verbs, in the order of the help.
std::vector<std::unique_ptr<Verb>> allVerbs();

/// The whole program: picks the verb that the arguments name and runs it, or prints the help.
///
/// @param arguments  what stands behind the program's name
/// @return           the exit status
int runCommandLine(QStringList arguments, const Streams &streams);

} // namespace kavro
