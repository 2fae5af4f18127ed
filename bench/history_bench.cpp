// Lines that come and go, the snapshots of the history and the way back, in the middle of documents
// of 9,999 and of 1,000 lines.

#include "bench/edited_document.h"
#include "core/undo_store.h"
#include "tools/basic_edit.h"

namespace kavro {
namespace {

using namespace Qt::StringLiterals;

/// A document with the tool of its lines and a store that keeps what it did.
struct KeptDocument : bench::EditedDocument
{
    explicit KeptDocument(int count) : EditedDocument(count)
    {
        folders.prepare();
        start();
    }

    void start()
    {
        editor.grdSubEdit.setAllRows(loaded);
        editor.grdSubEdit.setRow(document.subtitleCount() / 2);
        emit document.replaced();
    }

    BasicEdit tool{{.document = document,
                    .history = bareHistory,
                    .diagnose = diagnose,
                    .messages = messages,
                    .language = language,
                    .trace = trace}};
    UndoStore undo{document, menu, diagnose, trace};
};

/// Runs `act` on the document as it was loaded and `prepare` left it.
template <class Prepare, class Act>
void measure(benchmark::State &state, KeptDocument &fixture, Prepare prepare, Act act)
{
    for (auto _ : state) {
        state.PauseTiming();
        fixture.start();
        prepare();
        state.ResumeTiming();
        act();
    }
}

void insertInTheMiddle(benchmark::State &state, int count)
{
    KeptDocument fixture(count - 1); // the last line that there is room for
    measure(
        state, fixture, [] {}, [&] { fixture.editor.Command10.click(); });
}

void deleteInTheMiddle(benchmark::State &state, int count)
{
    KeptDocument fixture(count);
    measure(
        state, fixture, [] {}, [&] { fixture.editor.Command11.click(); });
}

void undoInsert(benchmark::State &state, int count)
{
    KeptDocument fixture(count - 1);
    measure(
        state, fixture, [&] { fixture.editor.Command10.click(); }, [&] { fixture.undo.undo(); });
}

void undoOfEveryRow(benchmark::State &state, int count)
{
    KeptDocument fixture(count);
    const auto writeAll = [&] {
        const SubtitleDocument::Act act(fixture.document);
        const Grid::Batch batch(fixture.editor.grdSubEdit);
        for (int row = 1; row <= count; ++row)
            fixture.editor.grdSubEdit.setText(row, StartColumn, bench::timeAt(row));
    };
    measure(state, fixture, writeAll, [&] { fixture.undo.undo(); });
}

void writeOneSnapshot(benchmark::State &state, int count)
{
    KeptDocument fixture(count);
    measure(
        state, fixture, [&] { fixture.history.reset(); },
        [&] { fixture.history.LogHistory(u"Acted"_s, {}); });
}

void restoreSnapshot(benchmark::State &state, int count)
{
    KeptDocument fixture(count);
    fixture.history.LogHistory(u"Acted"_s, {});
    const QString line = fixture.history.List1.item(0);
    measure(
        state, fixture, [] {}, [&] { fixture.history.RestoreHistory(line); });
}

struct Row
{
    const char *name;
    void (*run)(benchmark::State &, int);
};

const bool registered = [] {
    for (const auto &[name, run] :
         {Row{"insert_line", insertInTheMiddle}, Row{"delete_line", deleteInTheMiddle},
          Row{"undo_insert", undoInsert}, Row{"undo_every_row", undoOfEveryRow},
          Row{"snapshot", writeOneSnapshot}, Row{"restore", restoreSnapshot}})
    {
        for (const int count : {9999, 1000}) {
            const std::string suffix = count == 9999 ? "" : "_1000";
            benchmark::RegisterBenchmark((name + suffix).c_str(), run, count)
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}();

} // namespace
} // namespace kavro
