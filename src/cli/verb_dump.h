#pragma once

#include "cli/verb.h"

namespace kavro {

/// Loads a file, with others behind it, and prints the document as one JSON object.
class DumpVerb : public Verb
{
public:
    DumpVerb();

protected:
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    ExitStatus execute(const QCommandLineParser &call, const Streams &streams) override;
};

} // namespace kavro
