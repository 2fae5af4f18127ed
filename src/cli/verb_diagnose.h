#pragma once

#include "cli/verb.h"

namespace kavro {

/// Scans a file for faults, tells them, and writes it repaired.
class DiagnoseVerb : public Verb
{
public:
    DiagnoseVerb();

protected:
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    ExitStatus execute(const QCommandLineParser &call, const Streams &streams) override;
};

} // namespace kavro
