#include "partition/preview_file.h"

#include "core/line_reader.h"
#include "formats/create_subfile.h"

namespace kavro {

FileStatus readPreviewFile(const QString &path, QStringList &lines)
{
    LineReader reader;
    reader.open(path, {.encoding = previewEncoding()});
    while (!reader.atEnd()) {
        lines.append(reader.readLine().toString());
    }
    // A part without subtitles has no line in a format without a header.
    return reader.status().fault == FileFault::Empty ? FileStatus() : reader.status();
}

} // namespace kavro
