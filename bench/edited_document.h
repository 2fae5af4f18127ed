#pragma once

#include "controls/form.h"
#include "core/edit_history.h"
#include "core/status_panels.h"
#include "core/text.h"
#include "core/timecode.h"
#include "tests/support/document_fixture.h"

#include <benchmark/benchmark.h>

namespace kavro::bench {

inline QString timeAt(int ms)
{
    return SecondsToTimeCode(secondsText(ms / 1000.0));
}

/// A document of so many lines, as a loader leaves it.
struct EditedDocument : test::DocumentFixture
{
    explicit EditedDocument(int count)
    {
        while (bareHistory.List1.count() < 100) { // as many as a bounded history writes
            bareHistory.LogHistory({}, {});
        }
        for (int row = 1; row <= count; ++row) {
            lines.append({QString::number(row), timeAt(row * 700), timeAt(row * 700 + 600),
                          QStringLiteral(" We never thought it could end here "),
                          row % 3 == 0 ? QStringLiteral("before the lights went out ") : QString(),
                          QString()});
        }
        setRows(lines);
        loaded = editor.grdSubEdit.allRows();
    }

    /// Runs `act` on the document as it was loaded, rows shared as with a store that keeps them.
    template <class Act>
    void measure(benchmark::State &state, Act act)
    {
        for (auto _ : state) {
            state.PauseTiming();
            editor.grdSubEdit.setAllRows(loaded);
            state.ResumeTiming();
            act();
        }
    }

    QList<GridRow> lines;
    QList<GridRow> loaded;
    Form frmBareHistory{QStringLiteral("frmHistory")};
    /// Writes no snapshot that is measured: those of its one long act were of the empty document.
    EditHistory bareHistory{frmBareHistory,
                            {.document = document,
                             .forms = formWindows,
                             .clock = clock,
                             .folders = folders,
                             .store = store,
                             .messages = messages,
                             .diagnose = diagnose,
                             .versionNumber = {}}};
    EditHistory::Bounded longAct{bareHistory};
    StatusPanels status{frmMain};
};

} // namespace kavro::bench
