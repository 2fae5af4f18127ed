#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace kavro {

/// One input and the file that it is written to.
struct Output
{
    QString input;        ///< as the call names it
    QString path;         ///< from the root on, with the format's extension
    bool literal = false; ///< a device or a pipe, taken as it stands
};

/// False for what can only be a folder: a name that ends in "/", "." or "..".
bool mayNameFile(const QString &name);

/// Where the inputs of one call go.
class OutputPlan
{
public:
    /// All inputs to that one name, whose extension the format sets unless it is a device or pipe.
    static OutputPlan toFile(const QStringList &inputs, const QString &name, int format);
    /// Each input to its own name in a folder.
    static OutputPlan toFolder(const QStringList &inputs, const QString &folder, int format);

    [[nodiscard]] const QList<Output> &outputs() const { return m_outputs; }

    /// What speaks against writing any of them: two that lead to one file, or one that would
    /// replace the input of a later one. Empty when nothing does.
    [[nodiscard]] QString conflict() const;

private:
    void add(const QString &input, const QString &name, int format);

    QList<Output> m_outputs;
};

} // namespace kavro
