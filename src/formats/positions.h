#pragma once

#include "formats/subtitle_format.h"

#include <QString>
#include <QStringView>

namespace kavro {

class WriteFrame;

// What formats share that are read by fixed places and by a search for a tag. Places are 1-based.

/// Every line of the file, as a format counts that has one line a subtitle and no header.
FileCount countAllLines(LineReader &lines);

/// The index of `tag` in any case of letters, -1 when it isn't there. The tag is in lower case.
qsizetype indexOfTag(QStringView line, QStringView tag);

/// `share` for each line that holds `tag` in any case of letters; the lines ahead of the first such
/// line are the header.
FileCount countLinesHolding(LineReader &lines, QStringView tag, double share = 1);

/// The time "H:MM:SS.cc" that stands at `at`, as a time code.
QString timeWithOneHourDigit(QStringView line, qsizetype at);

/// Puts a time code as "H:MM:SS.cc": the tens of the hours and the last digit of the milliseconds
/// fall away.
void putOneHourDigitTime(WriteFrame &frame, QStringView code);

/// What stands behind `tag`, which is placed case-exactly: a tag that isn't found has the place 0,
/// and its value is what stands from the tag's own length on.
QStringView valueBehind(QStringView line, QStringView tag);

/// What stands `distance` characters behind the start of `tag`, found in any case of letters; from
/// character `distance` on when it isn't there.
QStringView textBehind(QStringView line, QStringView tag, qsizetype distance);

/// Cut ahead of the first character that is no number, or is one of no value: "20" becomes "2".
QStringView digitsOf(QStringView text);

/// The time of a frame number: cut to the millisecond, never rounded.
QString timeOfFrame(QStringView frame, double frameRate);

/// The frame of a time code, cut towards minus infinity; the text is decimal.
double frameOfTime(QStringView code, double frameRate);
QString frameText(QStringView code, double frameRate);

/// The hundredths of a time code as frames within its second, not made whole.
double framesInSecond(QStringView code, double frameRate);

} // namespace kavro
