#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace kavro {

// A path that begins with "/" is one of this machine and only "/" separates its folders; in any
// other, from a stored file or a macro, "\" does so too.

/// A path cut behind its last separator.
struct SplitPath
{
    QStringView folder; ///< with the separator at its end, empty when there is none
    QStringView name;
};

SplitPath splitPath(QStringView path);
QStringView folderOf(QStringView path);
QStringView nameOf(QStringView path);

/// A path from a stored file or a macro as this machine takes it. One that leads to a file as it
/// stands is left so.
QString toNative(QStringView stored);

/// The path of `name` in `folder`, spelled as it stands there: exactly so, else in any case of
/// letters, else as given. Each part of a relative `name` is met in this way.
QString matchName(const QString &folder, QStringView name);

/// The names of the files in a folder that match one of the patterns ("*.sub;*.srt"), in any case,
/// sorted without regard to case.
QStringList filesIn(const QString &folder, QStringView patterns);

} // namespace kavro
