#pragma once

#include "tests/support/test_program.h"

#include <gtest/gtest.h>

namespace kavro::test {

/// A program with a document of a few lines, for tools that need others around them.
class ToolTest : public testing::Test
{
protected:
    ToolTest() { run.startForVerb(); }

    /// A loaded document that was not changed yet, its cells one subtitle a text:
    /// "start|end|text|text|text", without the "|" of empty cells at the end.
    void fill(const QStringList &subtitles)
    {
        QList<GridRow> rows{grid.allRows().constFirst()};
        QStringList entries{QString()};
        for (const QString &subtitle : subtitles) {
            rows.append(GridRow{QString::number(rows.size())} + subtitle.split(u'|'));
            entries.append(document.regularFontEntry());
        }
        rows.append(GridRow());
        grid.setAllRows(rows);
        document.editor.lstFont.setItems(entries);
        document.searchIndex = 0;
        run->history.reset();
        grid.setCurrent(1, FirstTextColumn);
        document.RefreshCurrentRow();
        clearFlags();
    }

    void clearFlags()
    {
        document.setFileChanged(false);
        document.subtitleChanged = true;
        run->trace.RecordAction({}, -1);
    }

    /// The cells in the notation of `fill`.
    [[nodiscard]] QStringList cells() const
    {
        QStringList lines;
        for (int row = 1; row <= document.subtitleCount(); ++row) {
            QString line = grid.allRows().at(row).sliced(StartColumn).join(u'|');
            while (line.endsWith(u'|')) {
                line.chop(1);
            }
            lines.append(line);
        }
        return lines;
    }

    /// "row,col" of the current cell.
    [[nodiscard]] std::string current() const
    {
        return std::to_string(grid.row()) + ',' + std::to_string(grid.col());
    }

    /// What the last line of the history tells, "action: detail"; empty for an empty list.
    [[nodiscard]] QString lastHistory()
    {
        const EditHistory &history = run->history;
        const QString line = history.List1.item(history.List1.count() - 1);
        return line.isEmpty() ? line
                              : line.section(QStringLiteral("] "), 1) + QStringLiteral(": ")
                                    + history.List2.item(history.List2.count() - 1);
    }

    /// How often a view of the grid would be painted anew.
    struct Repaints
    {
        explicit Repaints(Grid &grid)
        {
            const auto count = [this] { ++painted; };
            QObject::connect(&grid, &Grid::cellChanged, &context, count);
            QObject::connect(&grid, &Grid::reset, &context, count);
        }

        int painted = 0;
        QObject context;
    };

    TestProgram run;
    SubtitleDocument &document = run.program().document;
    Grid &grid = document.editor.grdSubEdit;
};

} // namespace kavro::test
