// What the editor's pages do to a whole document of 9,999 and of 1,000 lines, without the snapshot
// of the history.

#include "bench/edited_document.h"
#include "core/frame_rate_page.h"
#include "tools/filters.h"
#include "tools/frame_rate_conversion.h"
#include "tools/search_replace.h"
#include "tools/shift.h"
#include "tools/stretch.h"

#include <benchmark/benchmark.h>

namespace kavro {
namespace {

using namespace Qt::StringLiterals;
using bench::EditedDocument;

struct SearchedDocument : EditedDocument
{
    using EditedDocument::EditedDocument;

    SearchReplace tool{frmMain,
                       {.menu = menu,
                        .status = status,
                        .document = document,
                        .history = bareHistory,
                        .language = language,
                        .trace = trace}};
};

void replaceInEveryCell(benchmark::State &state, int count)
{
    SearchedDocument fixture(count);
    fixture.tool.rtfReplace.setText(u"x"_s); // an empty search text stands in every cell
    fixture.measure(state, [&] { fixture.tool.cmdSearch.click(); });
}

void searchToTheEnd(benchmark::State &state, int count)
{
    SearchedDocument fixture(count);
    fixture.tool.rtfSearch.setText(u"nowhere"_s);
    fixture.measure(state, [&] { fixture.tool.cmdSearch.click(); });
}

void countMatches(benchmark::State &state, int count)
{
    SearchedDocument fixture(count);
    fixture.tool.rtfSearch.setText(u"here"_s);
    fixture.measure(state, [&] {
        fixture.tool.timMatches.setOn(true);
        fixture.tool.timMatches.fire();
    });
}

void bothFilters(benchmark::State &state, int count)
{
    EditedDocument fixture(count);
    Filters tool(fixture.frmMain, fixture.document, fixture.bareHistory, fixture.language,
                 fixture.trace);
    tool.Check4[0].setOn(true);
    tool.Check4[1].setOn(true);
    tool.txtMaxCount.setText(u"20"_s);
    fixture.measure(state, [&] { tool.Command30.click(); });
}

void shiftAll(benchmark::State &state, int count)
{
    EditedDocument fixture(count);
    Shift tool(fixture.frmMain, fixture.document, fixture.bareHistory, fixture.messages,
               fixture.language, fixture.trace);
    fixture.times.Text1[0].setText(u"1"_s);
    fixture.times.Text1[1].setText(QString::number(count));
    tool.rtfShiftDuration.setText(u"00:00:01,234"_s);
    tool.fillDirections();
    tool.Combo2.setSelected(1);
    fixture.measure(state, [&] { tool.Command13.click(); });
}

void stretchAll(benchmark::State &state, int count)
{
    EditedDocument fixture(count);
    Stretch tool(fixture.frmMain, fixture.document, fixture.bareHistory, fixture.control,
                 fixture.messages, fixture.language, fixture.trace);
    fixture.times.Text1[2].setText(u"1"_s);
    fixture.times.Text1[3].setText(QString::number(count));
    fixture.times.rtfStretchFirst.setText(u"00:00:02,345"_s);
    fixture.times.rtfStretchLast.setText(u"02:01:00,001"_s);
    fixture.measure(state, [&] { tool.Command12.click(); });
}

void convertFrameRate(benchmark::State &state, int count)
{
    EditedDocument fixture(count);
    FrameRatePage rates(fixture.frmMain);
    FrameRateConversion tool(fixture.frmMain, rates, fixture.document, fixture.bareHistory,
                             fixture.messages, fixture.language, fixture.trace);
    rates.Combo14[0].setSelected(2);
    rates.Combo14[1].setSelected(0);
    fixture.measure(state, [&] { tool.Command52.click(); });
}

BENCHMARK_CAPTURE(replaceInEveryCell, 9999, 9999)
    ->Name("replace_every_cell")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(replaceInEveryCell, 1000, 1000)
    ->Name("replace_every_cell_1000")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchToTheEnd, 9999, 9999)->Name("search_to_end")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchToTheEnd, 1000, 1000)
    ->Name("search_to_end_1000")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countMatches, 9999, 9999)->Name("count_matches")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countMatches, 1000, 1000)
    ->Name("count_matches_1000")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(bothFilters, 9999, 9999)->Name("both_filters")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(bothFilters, 1000, 1000)
    ->Name("both_filters_1000")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shiftAll, 9999, 9999)->Name("shift_all")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shiftAll, 1000, 1000)->Name("shift_all_1000")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stretchAll, 9999, 9999)->Name("stretch_all")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stretchAll, 1000, 1000)->Name("stretch_all_1000")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convertFrameRate, 9999, 9999)
    ->Name("convert_frame_rate")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convertFrameRate, 1000, 1000)
    ->Name("convert_frame_rate_1000")
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kavro
