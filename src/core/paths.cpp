#include "core/paths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// The entry of a folder that a name means.
QString spelledName(const QString &folder, const QString &name)
{
    const QString path = folder + u'/' + name;
    if (QFileInfo::exists(path))
        return path;
    const QStringList entries = QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    const auto found = std::ranges::find_if(entries, [&](const QString &entry) {
        return entry.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == entries.end() ? path : folder + u'/' + *found;
}

} // namespace

SplitPath splitPath(QStringView path)
{
    qsizetype cut = path.lastIndexOf(u'/');
    if (!path.startsWith(u'/'))
        cut = std::max(cut, path.lastIndexOf(u'\\'));
    return {.folder = path.first(cut + 1), .name = path.sliced(cut + 1)};
}

QStringView folderOf(QStringView path)
{
    return splitPath(path).folder;
}

QStringView nameOf(QStringView path)
{
    return splitPath(path).name;
}

QString toNative(QStringView stored)
{
    QString path = stored.toString();
    if (!path.contains(u'\\') || (path.startsWith(u'/') && QFileInfo::exists(path)))
        return path;
    return path.replace(u'\\', u'/');
}

QString matchName(const QString &folder, QStringView name)
{
    QString path = folder;
    const QString relative = name.toString().replace(u'\\', u'/');
    for (const QString &part : relative.split(u'/', Qt::SkipEmptyParts))
        path = spelledName(path, part);
    return path;
}

QStringList filesIn(const QString &folder, QStringView patterns)
{
    const QStringList filters = patterns.toString().split(u';', Qt::SkipEmptyParts);
    return QDir(folder).entryList(filters, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

} // namespace kavro
