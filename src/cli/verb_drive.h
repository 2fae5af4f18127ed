#pragma once

#include "cli/verb.h"
#include "core/ports.h"

#include <optional>

namespace kavro {

/// Drives the program by a script, as a person would.
class DriveVerb : public Verb
{
public:
    DriveVerb();

protected:
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    ExitStatus execute(const QCommandLineParser &call, const Streams &streams) override;

private:
    static ExitStatus drive(const QString &appDir, std::optional<Answer> answer,
                            std::istream &script, const Streams &streams);
};

} // namespace kavro
