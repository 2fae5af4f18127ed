#include "cli/output_plan.h"

#include "cli/call_reader.h"
#include "core/paths.h"
#include "core/safe_file.h"
#include "formats/file_filters.h"
#include "formats/format_table.h"

#include <QFileInfo>
#include <QHash>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// The file that a path leads to, through links; the path itself while no file is there.
QString trueFile(const QString &path)
{
    const QFileInfo info(path);
    const QString file = info.canonicalFilePath();
    if (!file.isEmpty())
        return file;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? info.absolutePath() : folder) + u'/' + info.fileName();
}

} // namespace

bool mayNameFile(const QString &name)
{
    const QString last = name.section(u'/', -1);
    return !last.isEmpty() && last != u"." && last != u"..";
}

OutputPlan OutputPlan::toFile(const QStringList &inputs, const QString &name, int format)
{
    OutputPlan plan;
    for (const QString &input : inputs)
        plan.add(input, name, format);
    return plan;
}

OutputPlan OutputPlan::toFolder(const QStringList &inputs, const QString &folder, int format)
{
    OutputPlan plan;
    for (const QString &input : inputs)
        plan.add(input, folder + u'/' + nameOf(absolutePath(input)).toString(), format);
    return plan;
}

void OutputPlan::add(const QString &input, const QString &name, int format)
{
    const QString path = absolutePath(name);
    const bool literal = isWrittenStraight(path);
    m_outputs.append({.input = input,
                      .path = literal ? path : withExtension(path, SetSubFileExt(format)),
                      .literal = literal});
}

QString OutputPlan::conflict() const
{
    QHash<QString, QString> inputOf; // by output
    for (const Output &output : m_outputs) {
        const QString file = trueFile(output.path);
        if (inputOf.contains(file))
            return u"%1 and %2 would both be written to %3"_s.arg(inputOf.value(file), output.input,
                                                                  output.path);
        const QString replacedBy = inputOf.value(trueFile(absolutePath(output.input)));
        if (!replacedBy.isEmpty())
            return u"%1 would be written over %2 before that is read"_s.arg(replacedBy,
                                                                            output.input);
        inputOf.insert(file, output.input);
    }
    return {};
}

} // namespace kavro
