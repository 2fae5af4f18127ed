#pragma once

#include "cli/verb.h"

namespace kavro {

class Batch;
struct ConvertCall;
struct Output;

/// Loads each input and writes it in another format.
class ConvertVerb : public Verb
{
public:
    ConvertVerb();

protected:
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    ExitStatus execute(const QCommandLineParser &call, const Streams &streams) override;

private:
    static bool convert(Batch &batch, const Output &output, const ConvertCall &call);
};

} // namespace kavro
