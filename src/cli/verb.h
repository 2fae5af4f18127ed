#pragma once

#include "cli/streams.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace kavro {

enum class ExitStatus {
    Done = 0,
    No = 1,       ///< it ran and the answer is no
    WrongCall = 2 ///< told in one line
};

/// One command of the command line program: its own options, and what it does over streams.
class Verb
{
public:
    /// What the help tells.
    struct Text
    {
        QString name;
        QString usage; ///< what stands behind the name
        QString summary;
    };

    explicit Verb(const Text &text) : m_text(text) {}
    virtual ~Verb() = default;
    Verb(const Verb &) = delete;
    Verb &operator=(const Verb &) = delete;

    [[nodiscard]] const Text &text() const { return m_text; }

    /// Reads the arguments behind the verb's name and does the work, or prints help or version.
    ExitStatus run(const QStringList &arguments, const Streams &streams);

protected:
    /// The options besides those that every verb has.
    [[nodiscard]] virtual QList<QCommandLineOption> options() const = 0;
    virtual ExitStatus execute(const QCommandLineParser &call, const Streams &streams) = 0;

    /// Tells in one line what is wrong with the call.
    ExitStatus wrongCall(const Streams &streams, QStringView fault) const;

private:
    void printHelp(const QList<QCommandLineOption> &all, const Streams &streams) const;

    Text m_text;
};

} // namespace kavro
