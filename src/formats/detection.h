#pragma once

#include "formats/format_table.h"

#include <QString>
#include <QStringView>

namespace kavro {

class LineReader;

/// What a look at the lines of a file found.
struct Detection
{
    int format = UnknownFormat;
    /// The line that was looked at last, empty when the file has none. One format's reader begins
    /// with it.
    QString lastLine;
};

/// The format of which `line` is typical, by the first rule that holds; unknown when none does.
FormatId formatOfLine(QStringView line);

/// True for the formats that are looked for in the lines even when a person named one: nothing is
/// known, or the extension is ".sub", which several share.
bool looksAtLines(int format);

/// Looks from the first line on for one that is typical of a format.
///
/// @param believed  0 searches the whole file; with any other format the first line alone is tried,
///                  and what it doesn't settle stays so
Detection detectFormat(LineReader &lines, int believed);

} // namespace kavro
