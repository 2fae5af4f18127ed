#pragma once

#include "core/line_reader.h"
#include "core/ports.h"
#include "formats/format_table.h"

#include <QString>
#include <QStringView>

#include <optional>

class QCommandLineParser;

namespace kavro {

/// How a verb loads its files.
struct LoadOptions
{
    int format = UnknownFormat;
    bool linesDecide = false;     ///< the lines alone, whatever the extension
    std::optional<int> frameRate; ///< entry of `FrameRatePage::rates`
    ReadOptions encoding;
};

/// The entry of `FrameRatePage::rates` that a person names ("23.97", "24", "25.000"); none for
/// another rate.
std::optional<int> frameRateEntry(QStringView rate);

/// "cancel", "ok", "no" or "yes".
std::optional<Answer> answerByName(QStringView name);
QStringView answerName(Answer answer);

/// The file of a path from the command line, from the root on; what a link or ".." leads to is left
/// to the machine.
QString absolutePath(const QString &path);

/// Reads the values of a call's options and keeps the first fault among them.
class CallReader
{
public:
    explicit CallReader(const QCommandLineParser &call) : m_call(call) {}

    /// --from, --fps, --encoding.
    LoadOptions loadOptions();
    /// A format by id, name or extension.
    int format(const QString &option);
    std::optional<TextEncoding> encoding(const QString &option);
    std::optional<Answer> answer();

    /// What is wrong with the call, in one line; empty when nothing is.
    [[nodiscard]] const QString &fault() const { return m_fault; }
    void fail(const QString &fault);

private:
    const QCommandLineParser &m_call;
    QString m_fault;
};

} // namespace kavro
