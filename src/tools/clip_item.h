#pragma once

#include <QString>
#include <QStringView>

namespace kavro {

/// An item of the clipboard list taken apart: name + ">" + hours:minutes:seconds,fraction.
///
/// Nothing is checked; a part that is missing is empty.
struct ClipItem
{
    explicit ClipItem(QStringView item);

    QString name; ///< of a path the file's name alone; "Not defined" for none
    QString hours;
    QString minutes;
    QString seconds;
    QString fraction;

    /// The time with `point` ahead of its fraction.
    [[nodiscard]] QString time(QChar point) const;
};

} // namespace kavro
