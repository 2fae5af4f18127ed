#pragma once

#include <QString>

namespace kavro {

enum class FileFault {
    None,
    Missing,
    Folder,      ///< the name is a folder's
    Unreadable,  ///< it is there and can't be opened or read
    Empty,       ///< no bytes, or a byte order mark alone
    Binary,      ///< holds NUL bytes and is no UTF-16 or UTF-32
    LineTooLong, ///< a line is longer than `LineReader::maxLineLength`
    TooLarge,    ///< a pipe brought more than can be kept for a second pass
    Unwritable,  ///< no right, no folder, or a fault of the device
    DiskFull,
    Unencodable, ///< the text holds characters that the encoding has not
};

/// How a reading or writing of a file went, with a text for the person when it failed: the fault's
/// description alone, as it stands in a message behind the file's name.
struct FileStatus
{
    FileFault fault = FileFault::None;
    QString text;

    [[nodiscard]] bool ok() const { return fault == FileFault::None; }
};

} // namespace kavro
