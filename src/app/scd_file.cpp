#include "app/scd_file.h"

#include "core/line_reader.h"
#include "core/text.h"

namespace kavro {

namespace {

enum class Section { None, Clipboard, Parts, Font };

void takeLine(ScdFile &file, Section section, QStringView line)
{
    switch (section) {
    case Section::None: break;
    case Section::Clipboard: file.clipboard.append(line.toString()); break;
    case Section::Parts: {
        const qsizetype name = line.indexOf(u'>');
        file.parts.append({Left(line, name < 0 ? line.size() : name).toString(),
                           Mid(line, name < 0 ? line.size() + 1 : name + 2).toString()});
        break;
    }
    case Section::Font: file.font = intVal(line); break;
    }
}

Section sectionOf(QStringView line, Section present)
{
    if (line == u"{clipboard}") {
        return Section::Clipboard;
    }
    if (line == u"{partitionlist}") {
        return Section::Parts;
    }
    return line == u"{system font}" ? Section::Font : present;
}

} // namespace

FileStatus readScdFile(const QString &path, ScdFile &file)
{
    LineReader reader;
    if (!reader.open(path).ok()) {
        return reader.status();
    }
    file.subtitle = reader.readLine().toString();
    Section section = Section::None;
    while (!reader.atEnd()) {
        const QStringView line = reader.readLine();
        if (line.startsWith(u'{') && line.endsWith(u'}')) {
            section = sectionOf(line, section);
        } else {
            takeLine(file, section, line);
        }
    }
    return {};
}

} // namespace kavro
