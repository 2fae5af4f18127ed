// Each format's reader over any bytes, and its writer over what was read.

#include "fuzz/fuzz_input.h"
#include "tests/formats/formats_fixture.h"

#include <string>

namespace {

using namespace kavro;
using fuzz::require;
using test::FormatsFixture;
using Kind = LoadResult::Kind;

/// What stands in the document before the load.
GridRow firstSubtitle()
{
    GridRow row(ColumnCount);
    row[NumberColumn] = QStringLiteral("1");
    row[StartColumn] = QStringLiteral("00:00:01,000");
    row[EndColumn] = QStringLiteral("98:59:59,999");
    row[FirstTextColumn] = QStringLiteral(" It was there before.");
    return row;
}

void checkRows(const FormatsFixture &fixture)
{
    const int count = fixture.document.subtitleCount();
    require(count >= 0 && count <= SubtitleDocument::maxSubtitles, "the document keeps its limit");
    require(fixture.editor.lstFont.items().size() == count + 1, "each row has its font entry");
    for (int row = 1; row <= count; ++row) {
        // The marks of nodes stand round the number.
        require(fixture.cell(row, NumberColumn).contains(QString::number(row)),
                "rows are numbered");
        for (int column = FirstTextColumn; column <= LastTextColumn; ++column) {
            const QString &cell = fixture.cell(row, column);
            require(cell.isEmpty() || (cell.size() > 1 && cell.startsWith(QChar(u' '))),
                    "a text stands behind a blank");
        }
    }
}

void checkLoad(FormatsFixture &fixture, const LoadResult &result, bool adds,
               const std::string &before)
{
    switch (result.kind) {
    case Kind::Loaded: checkRows(fixture); break;
    case Kind::Failed:
        require(!result.error.isEmpty(), "a failed load says why");
        require(fixture.rows() == before, "a failed load leaves the document as it was");
        break;
    case Kind::LimitReached:
        require(adds ? fixture.rows() == before : fixture.document.subtitleCount() == 0,
                "a file above the limit is not read in part");
        break;
    default: require(false, "a subtitle file is loaded, fails, or is too large");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const fuzz::Input input = fuzz::inputOf(data, size);
    FormatsFixture fixture;
    fixture.setRows({firstSubtitle()});
    const std::string before = fixture.rows();
    const QString path = fixture.writeBytes(QStringLiteral("film"), input.file);
    const LoadResult result =
        input.adds ? fixture.add(path, input.format) : fixture.load(path, input.format);
    checkLoad(fixture, result, input.adds, before);
    if (result.ok()) {
        const WriteResult written = fixture.save(QStringLiteral("written"), input.format);
        require(written.kind != WriteResult::Kind::Failed, "what was read can be written");
    }
    return 0;
}
