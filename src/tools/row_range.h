#pragma once

#include <QString>

namespace kavro {

class Label;
class LanguageTable;
class Messages;
class SubtitleDocument;

/// The rows that a timing page works on, 1-based; none when `first` lies behind `last`.
struct RowRange
{
    int first = 0;
    int last = 0;
};

/// Where a range is typed on the time page: its first row stands in that element of `Text1`, its
/// last row in the next.
enum class RangeFields { Shift = 0, Stretch = 2 };

/// The range as typed, rounded to whole rows; what is no number is 0.
RowRange rangeOf(const SubtitleDocument &document, RangeFields fields);

/// Steps `curNode` to the next node, from the last one to 0, which is the whole document; writes
/// its rows into the range and its number into `number`.
void stepRange(SubtitleDocument &document, RangeFields fields, Label &number);

/// "[Range: " + start of the first subtitle + " to " + start of the last one + "]", for the
/// history. It tells the whole document, whatever the range is.
QString rangeDetail(const SubtitleDocument &document, const LanguageTable &language);

/// Whether the rows of a range may be written, those from 1, behind the header, to `lastRow`; tells
/// the person when not. Where the range holds no row its ends may be any numbers of 16 bits.
bool checkRange(const SubtitleDocument &document, const RowRange &range, int lastRow,
                Messages &messages, const LanguageTable &language);

/// Tells why a command changed nothing: `pattern` is the reason, with %1 to %9 for the values.
void showRefusal(const QString &pattern, const QStringList &values, Messages &messages,
                 const LanguageTable &language);

} // namespace kavro
