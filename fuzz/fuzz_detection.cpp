// The search for a file's format over any bytes, under any extension.

#include "core/line_reader.h"
#include "core/text.h"
#include "formats/detection.h"
#include "fuzz/fuzz_input.h"
#include "tests/formats/formats_fixture.h"

#include <algorithm>
#include <string>

namespace {

using namespace kavro;
using fuzz::require;
using test::FormatsFixture;
using Kind = LoadResult::Kind;

/// The format of the first line that is typical of one.
int firstTypicalFormat(LineReader &lines)
{
    lines.restart();
    while (!lines.atEnd()) {
        const QString line = lines.readLine().toString();
        const FormatId format = formatOfLine(line);
        require(formatOfLine(lowerCase(line)) == format, "the case of letters doesn't count");
        require(formatOfLine(QChar(u' ') + line + QChar(u' ')) == format,
                "blanks round a line don't count");
        if (format != UnknownFormat)
            return format;
    }
    return UnknownFormat;
}

void checkLines(const QString &path)
{
    LineReader lines;
    if (!lines.open(path).ok())
        return;
    const int typical = firstTypicalFormat(lines);
    if (!lines.status().ok())
        return;
    require(detectFormat(lines, UnknownFormat).format == typical, "the first typical line decides");
    for (const FormatInfo &info : formatTable()) {
        const Detection found = detectFormat(lines, info.id);
        const FormatId ofLine = formatOfLine(found.lastLine);
        require(found.format == (ofLine == UnknownFormat ? info.id : ofLine),
                "the first line decides over what is believed");
    }
}

void checkLoad(FormatsFixture &fixture, LoadRequest request)
{
    const std::string before = fixture.rows();
    request.detectOnly = true;
    const LoadResult result = fixture.loader.LoadSubFile(request);
    require(result.kind == Kind::Detected || result.kind == Kind::Failed,
            "a format is found or not");
    if (result.kind == Kind::Detected)
        require(formatInfo(request.format) != nullptr, "what is found is a format");
    else
        require(!result.error.isEmpty(), "a search that fails says why");
    require(fixture.rows() == before && fixture.host.calls.isEmpty(), "a search touches nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const fuzz::Input input = fuzz::inputOf(data, size);
    FormatsFixture fixture;
    const QString name = QStringLiteral("film") + SetSubFileExt(input.format);
    const QString path = fixture.writeBytes(name, input.file);
    checkLines(path);
    checkLoad(fixture, {.path = path});
    checkLoad(fixture, {.path = path, .format = input.format});
    checkLoad(fixture, {.path = path, .linesDecide = true});
    return 0;
}
