// Read and write path, time codes and the row's refresh, over documents of 9,999 and 1,000 lines.

#include "core/text.h"
#include "core/timecode.h"
#include "tests/formats/formats_fixture.h"

#include <QStringBuilder>

#include <benchmark/benchmark.h>

namespace kavro {
namespace {

using namespace Qt::StringLiterals;
using test::FormatsFixture;

QString timeAt(int ms)
{
    return SecondsToTimeCode(secondsText(ms / 1000.0));
}

/// A film's worth of subtitles; every third has two text lines.
QString subRip(int count)
{
    QString text;
    for (int i = 1; i <= count; ++i) {
        const QString times = timeAt(i * 700) % u" --> " % timeAt(i * 700 + 600);
        text +=
            QString::number(i) % u"\r\n" % times % u"\r\nWe never thought it could end here\r\n";
        if (i % 3 == 0)
            text += u"before the lights went out, é?\r\n"_s;
        text += u"\r\n"_s;
    }
    return text;
}

/// The most subtitles of our own writing that a reader takes: some count lines, not subtitles.
int mostSubtitles(FormatId format)
{
    switch (format) {
    case TmPlayer: return 4999;
    case SubViewer1: return 2495;
    case ViPlay: return 9998;
    default: return 9999;
    }
}

WriteRequest wholeDocument(const FormatsFixture &fixture, FormatId format)
{
    return {.format = format,
            .lastRow = fixture.document.subtitleCount(),
            .showProgress = true,
            .path = fixture.path(u"out"_s),
            .askOverwrite = false};
}

void loadFormat(benchmark::State &state, FormatId format, int count)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"film.srt"_s, subRip(count)));
    const QString path = fixture.writer.CreateSubFile(wholeDocument(fixture, format)).path;
    for (auto _ : state) {
        if (!fixture.load(path, format).ok())
            state.SkipWithError("not loaded");
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void writeFormat(benchmark::State &state, FormatId format, int count)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"film.srt"_s, subRip(count)));
    const WriteRequest request = wholeDocument(fixture, format);
    for (auto _ : state) {
        if (fixture.writer.CreateSubFile(request).kind != WriteResult::Kind::Written)
            state.SkipWithError("not written");
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void timeCodeAdd(benchmark::State &state)
{
    const QString a = u"01:59:59,999"_s;
    const QString b = u"00:00:00,001"_s;
    for (auto _ : state)
        benchmark::DoNotOptimize(TimeCodeAdd(a, b, u'+'));
}

void refreshCurrentRow(benchmark::State &state)
{
    FormatsFixture fixture;
    QStringList fonts;
    for (int i = 0; i < 299; ++i)
        fonts.append(u"A font of number %1"_s.arg(i));
    fonts.append(u"Arial"_s); // found at the end
    fixture.fonts.Combo9[0].setItems(fonts);
    fixture.load(fixture.write(u"film.srt"_s, subRip(9999)));
    int row = 1;
    fixture.document.editorBlocked = true;
    for (auto _ : state) {
        row = row % 9999 + 1;
        fixture.editor.grdSubEdit.setRow(row);
        fixture.document.editorBlocked = false;
        fixture.document.RefreshCurrentRow();
        fixture.document.editorBlocked = true;
    }
}

} // namespace
} // namespace kavro

int main(int argc, char **argv)
{
    using benchmark::RegisterBenchmark;
    using namespace kavro;
    for (const FormatInfo &info : formatTable()) {
        const std::string name =
            info.name.toString().toLower().remove(u'+').replace(u' ', u'_').toStdString();
        const int count = mostSubtitles(info.id);
        RegisterBenchmark(("load_" + name).c_str(), loadFormat, info.id, count)
            ->Unit(benchmark::kMillisecond);
        RegisterBenchmark(("write_" + name).c_str(), writeFormat, info.id, count)
            ->Unit(benchmark::kMillisecond);
    }
    RegisterBenchmark("load_subrip_1000", loadFormat, SubRip, 1000)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("write_subrip_1000", writeFormat, SubRip, 1000)
        ->Unit(benchmark::kMillisecond);
    RegisterBenchmark("TimeCodeAdd", timeCodeAdd);
    RegisterBenchmark("RefreshCurrentRow", refreshCurrentRow)->Unit(benchmark::kMicrosecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
