// The scan over documents of 9,999 lines, and the repair of lines that are empty.

#include "core/text.h"
#include "core/timecode.h"
#include "tests/diagnose/diagnose_fixture.h"

#include <QStringBuilder>

#include <benchmark/benchmark.h>

namespace kavro {
namespace {

using namespace Qt::StringLiterals;
using test::DiagnoseFixture;
using enum DiagnoseSwitch;

QString timeAt(int ms)
{
    return SecondsToTimeCode(secondsText(ms / 1000.0));
}

/// So many lines, each lasting so long of the 700 ms until the next.
QStringList lines(int count, int length, QStringView text)
{
    QStringList rows;
    for (int i = 1; i <= count; ++i) {
        rows.append(timeAt(i * 700) % u'|' % timeAt(i * 700 + length) % u'|' % text);
    }
    return rows;
}

void scan(benchmark::State &state, const QStringList &rows, int findings)
{
    DiagnoseFixture fixture;
    fixture.fill(rows);
    fixture.switchOn({CheckEmpty, CheckOverlapping, CheckInvalid, CheckNegative, CountWords,
                      CountMultiLines, CountTime});
    for (auto _ : state) {
        fixture.go();
    }
    if (fixture.document.errorCount != findings) {
        state.SkipWithError("other findings than there are");
    }
}

void scanClean(benchmark::State &state)
{
    scan(state, lines(9999, 600, u" We never thought it could end here| or here"), 0);
}

void scanFaulty(benchmark::State &state)
{
    scan(state, lines(9999, 800, u" We never thought it could end here| or here"), 9998);
}

/// @param state  range 0 empty lines, and 999 others among them, each with its turn
void repairEmpty(benchmark::State &state)
{
    const int empty = static_cast<int>(state.range(0));
    const int every = empty / 999;
    QStringList rows = lines(empty + (every > 1 ? 999 : 0), 600, u" ");
    for (int i = 0; every > 1 && i < 999; ++i) {
        rows[i * every] += u"text"_s;
    }
    DiagnoseFixture fixture;
    fixture.switchAllOn();
    for (auto _ : state) {
        state.PauseTiming();
        fixture.fill(rows);
        state.ResumeTiming();
        fixture.go();
    }
    if (fixture.document.subtitleCount() != rows.size() - empty) {
        state.SkipWithError("not all are gone");
    }
}

BENCHMARK(scanClean)->Name("diagnose_clean")->Unit(benchmark::kMillisecond);
BENCHMARK(scanFaulty)->Name("diagnose_faulty")->Unit(benchmark::kMillisecond);
BENCHMARK(repairEmpty)->Name("diagnose_repair")->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(repairEmpty)->Name("diagnose_repair")->Arg(9000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kavro
