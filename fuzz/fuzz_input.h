#pragma once

#include "formats/format_table.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace kavro::fuzz {

/// What a target makes of the engine's bytes: the first one picks a format, the rest is a file.
struct Input
{
    int format = UnknownFormat;
    bool adds = false; ///< behind the rows that are there
    QByteArray file;
};

/// "a" to "p" are the formats 1 to 16 and "A" to "P" the same for an added file, so that a corpus
/// can be read and written by hand; any other byte counts round.
inline Input inputOf(const std::uint8_t *data, std::size_t size)
{
    constexpr unsigned char lowerCase = 0x20;
    return {.format = (data[0] + formatCount - 1) % formatCount + 1,
            .adds = (data[0] & lowerCase) == 0,
            .file = QByteArray(reinterpret_cast<const char *>(data + 1),
                               static_cast<qsizetype>(size - 1))};
}

/// Ends the run as a find when `holds` is false.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "It doesn't hold that %s\n", what);
    std::abort();
}

} // namespace kavro::fuzz
