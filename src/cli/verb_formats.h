#pragma once

#include "cli/verb.h"

namespace kavro {

/// Lists the subtitle formats.
class FormatsVerb : public Verb
{
public:
    FormatsVerb();

protected:
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    ExitStatus execute(const QCommandLineParser &call, const Streams &streams) override;
};

} // namespace kavro
