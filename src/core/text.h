#pragma once

#include <QString>
#include <QStringView>

#include <limits>

namespace kavro {

// Lenient helpers over the program's common currency, text. None of them fails: what is out of
// range gives an empty text, what is no number gives 0. Positions are 1-based and count UTF-16
// units. A view that is returned lives as long as the text that was handed in.

/// The number that `text` begins with: blanks, a sign, digits, at most one ".". Stops at the first
/// character that cannot belong to it; there is no exponent. No number gives 0, and the result is
/// always finite.
double Val(QStringView text);

/// `Val` cut to a whole number, and to the range of int where it lies outside.
int intVal(QStringView text);

/// The shortest decimal text with at most 15 significant digits: no zeros at its end, never an
/// exponent, "." in every locale. A value that is no finite number gives "0".
QString numberText(double value);

/// `numberText` with a blank before a number that has no minus sign.
QString blankNumberText(double value);

/// Cut the blanks (U+0020 alone, tabs stay) at the ends of a text.
QStringView trimmed(QStringView text);
QStringView leftTrimmed(QStringView text);
QStringView rightTrimmed(QStringView text);

/// `length` characters from position `start` on, fewer where the text ends. A start below 1 counts
/// as 1.
QStringView Mid(QStringView text, qsizetype start,
                qsizetype length = std::numeric_limits<qsizetype>::max());
QStringView Left(QStringView text, qsizetype length);
QStringView Right(QStringView text, qsizetype length);

/// The position of `what` in `text`, case-exact; 0 when it isn't there.
qsizetype InStr(QStringView text, QStringView what);

/// The text in lower case, unit for unit: a position in it is the same position in `text`.
QString lowerCase(QStringView text);

/// `text` with each "/n" turned into carriage return and line feed.
QString expandLineBreaks(QStringView text);

/// The greatest whole number that isn't above `value`; a value within 1e-9 of a whole number is
/// that number, so that the error of a division never costs a frame.
double cutToWhole(double value);

/// The whole thousandths of `seconds`: cut, but a value within 1e-9 of a whole millisecond is that
/// millisecond. Values below 0 give 0.
double cutToThousandths(double seconds);

/// Seconds as text with exactly three decimals, cut as `cutToThousandths` does it, as
/// `SecondsToTimeCode` takes it.
QString secondsText(double seconds);

} // namespace kavro
