#pragma once

#include "core/text.h"
#include "tests/support/document_fixture.h"
#include "tests/support/document_text.h"
#include "tools/basic_edit.h"

#include <gtest/gtest.h>

namespace kavro::test {

class BasicEditTest : public testing::Test, public DocumentFixture
{
protected:
    /// "start|end|text|text|text" a subtitle, without the "|" of empty cells at the end.
    void fill(const QStringList &subtitles)
    {
        QList<GridRow> cells;
        for (const QString &subtitle : subtitles) {
            cells.append(GridRow{QString::number(cells.size() + 1)} + subtitle.split(u'|'));
        }
        document.clearFindings();
        setRows(cells);
        document.nodes[0] = document.nodes[1];
        document.ShowNodeMarks(1);
        grid.setCurrent(1, FirstTextColumn);
        document.RefreshCurrentRow();
        document.setFileChanged(false);
        document.subtitleChanged = true;
        trace.RecordAction({}, -1);
    }

    /// A subtitle a second, with its number for a text.
    void fillRows(int count)
    {
        QStringList subtitles;
        for (int row = 1; row <= count; ++row) {
            subtitles.append(QStringLiteral("00:00:01,000|00:00:02,000| %1").arg(row));
        }
        fill(subtitles);
    }

    void fillTwo()
    {
        fill({QStringLiteral("00:00:01,000|00:00:02,000| old"),
              QStringLiteral("00:00:03,000|00:00:04,000| other")});
    }

    /// The first texts of the rows, the end row's number included: what stands where.
    [[nodiscard]] std::string texts(int col = FirstTextColumn) const
    {
        QStringList texts;
        for (int row = 1; row < grid.rows(); ++row) {
            texts.append(trimmed(grid.text(row, col)).toString());
        }
        return texts.join(u'|').toStdString();
    }

    /// "first-last" of the nodes, element 0 first.
    [[nodiscard]] std::string nodes() const
    {
        QStringList ranges;
        for (int n = 0; n <= document.nodeCount; ++n) {
            const Node &node = document.nodes[static_cast<std::size_t>(n)];
            ranges.append(QStringLiteral("%1-%2").arg(node.firstRow).arg(node.lastRow));
        }
        return ranges.join(u' ').toStdString();
    }

    void setNodes(const QList<QPair<int, int>> &ranges)
    {
        document.clearNodeMarks();
        document.nodeCount = static_cast<int>(ranges.size());
        for (int n = 1; n <= document.nodeCount; ++n) {
            const auto [first, last] = ranges[n - 1];
            document.nodes[static_cast<std::size_t>(n)] = {first, last, {}, false};
        }
        document.ShowNodeMarks(1);
    }

    [[nodiscard]] std::string colours() const
    {
        return test::colourLines(grid).join(u' ').toStdString();
    }

    CountedScan scan;
    Grid &grid = editor.grdSubEdit;
    BasicEdit basicEdit{{.document = document,
                         .history = history,
                         .diagnose = scan,
                         .messages = messages,
                         .language = language,
                         .trace = trace}};
};

} // namespace kavro::test
