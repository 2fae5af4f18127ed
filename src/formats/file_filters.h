#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace kavro {

/// Entries of the file window's list that are no subtitle format; 1 to 16 are the FormatIds.
enum FileFilter { SupportedFiles = 0, SettingFile = 17, VideoFiles = 18 };

/// The filters of the file window: label + "|" + patterns. Entry k of the list is filter k, entry 0
/// are all supported files, 1 to 16 the formats.
const QStringList &fileFilters();

/// The label of a format without its patterns, as the status bar shows it: "SubRip". Empty for an
/// entry that isn't there.
QString filterLabel(int filter);

/// The text of an entry from its last "." on: ".srt". Empty for an entry that isn't there.
QString filterExtension(int filter);

/// `path` with all behind the last "." of its name replaced by `extension`, which begins with its
/// point; a name without a point gets it at its end.
QString withExtension(const QString &path, QStringView extension);

/// The patterns of the hidden list that looks for a subtitle beside a movie.
QString subtitlePatterns();

} // namespace kavro
