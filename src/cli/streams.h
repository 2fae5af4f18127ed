#pragma once

#include <QStringView>

#include <istream>
#include <ostream>

namespace kavro {

/// Where a verb reads and writes: results go to `out`, messages for people to `err`.
struct Streams
{
    std::istream &in;
    std::ostream &out;
    std::ostream &err;
};

/// Writes a line in UTF-8.
inline void writeLine(std::ostream &stream, QStringView line)
{
    const QByteArray bytes = line.toUtf8();
    stream.write(bytes.constData(), bytes.size()).put('\n');
}

} // namespace kavro
