#pragma once

#include <QString>
#include <QStringView>

namespace kavro {

// A time is the text "hh:mm:ss,mmm", with hours from -9 to 99, and stays text: two times are
// compared as text and added field by field. The fields stand at fixed positions: hours at
// characters 1 and 2, minutes at 4 and 5, seconds at 7 and 8, milliseconds in the last three; what
// stands between is never read. A field is its leading whole number with an optional sign, 0 for
// text that is no number. Only the hours are negative in a time before zero: "-1:59:59,000" is one
// second before it.

/// The milliseconds of a time. An empty text gives 0.
double TimeCodeToMs(QStringView code);

/// Adds or takes away two times field by field, each carry once.
///
/// @param a, b  times, read at fixed positions
/// @param op    "+" or "-"; any other gives "00:00:00,000"
/// @return      the sum, or `a` unchanged when the hours leave -9 to 99. A field that one carry
/// does
///              not bring into its range is written with the digits it has.
QString TimeCodeAdd(QStringView a, QStringView b, QChar op);

/// The time of decimal seconds with ".".
///
/// @param text  not negative, with three decimals or fewer: of a longer fraction the last three
/// count
/// @return      the time; hours of 100 or more widen the first field
QString SecondsToTimeCode(QStringView text);

} // namespace kavro
