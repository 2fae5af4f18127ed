#pragma once

#include "tests/support/document_text.h"
#include "tests/support/test_program.h"

#include <QStringList>

#include <string>
#include <vector>

namespace kavro::test {

/// A program with a document of the test's own and the Diagnose page.
struct DiagnoseFixture
{
    DiagnoseFixture()
    {
        run.doors.clock.time = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5), Qt::UTC);
        run.startForVerb();
    }

    /// Takes another document, a text a row: "start|end|text|text|text" without what is empty at
    /// the end. One node covers it, its first cell is the current one, and nothing else is left.
    void fill(const QStringList &subtitles)
    {
        QList<GridRow> rows{grid.allRows().constFirst()};
        QStringList fonts{QString()};
        for (const QString &subtitle : subtitles) {
            rows.append(GridRow{QString::number(rows.size())} + subtitle.split(u'|'));
            fonts.append(document.regularFontEntry());
        }
        rows.append(GridRow());
        document.clearFindings();
        grid.setAllRows(rows);
        document.editor.lstFont.setItems(fonts);
        setNodes({1}, static_cast<int>(subtitles.size()));
        grid.setTopRow(1);
        grid.setCurrent(1, StartColumn);
        document.setFileChanged(false);
        document.subtitleChanged = true;
        run->history.reset();
    }

    /// Nodes that begin at these rows and follow one another.
    void setNodes(const QList<int> &firstRows, int lastRow)
    {
        document.nodes.fill({});
        document.nodes[0] = {.firstRow = 1, .lastRow = lastRow, .name = {}, .flag = false};
        document.nodeCount = static_cast<int>(firstRows.size());
        for (int i = 0; i < firstRows.size(); ++i) {
            const int last = i + 1 < firstRows.size() ? firstRows[i + 1] - 1 : lastRow;
            document.nodes[static_cast<std::size_t>(i) + 1] = {
                .firstRow = firstRows[i], .lastRow = last, .name = {}, .flag = false};
        }
    }

    /// Switches these boxes on and all others off.
    void switchOn(const std::vector<DiagnoseSwitch> &switches)
    {
        for (CheckBox &box : run->diagnose.Check3) {
            box.setOn(std::ranges::count(switches, static_cast<DiagnoseSwitch>(box.index())) > 0);
        }
    }

    void switchAllOn()
    {
        for (CheckBox &box : run->diagnose.Check3) {
            box.setOn(true);
        }
    }

    void go() { run->diagnose.Command27.click(); }

    /// The texts below the node of that key, a line each, with two blanks a level.
    [[nodiscard]] std::string below(const QString &key)
    {
        const TreeView &tree = run->diagnose.tvDiag;
        QStringList lines;
        addLines(tree, tree.node(tree.find(key)).children, 0, lines);
        return lines.join(u'\n').toStdString();
    }

    static void addLines(const TreeView &tree, const QList<int> &numbers, int level,
                         QStringList &lines)
    {
        for (const int number : numbers) {
            lines.append(QString(level * 2, u' ') + tree.node(number).text);
            addLines(tree, tree.node(number).children, level + 1, lines);
        }
    }

    /// "row,col=RRGGBB" of the cells with a colour.
    [[nodiscard]] std::string colours() const
    {
        return test::colourLines(grid).join(u' ').toStdString();
    }

    /// "row: text" of the rows with a finding.
    [[nodiscard]] std::string errors() const
    {
        QStringList lines;
        for (int row = 0; row <= SubtitleDocument::maxSubtitles; ++row) {
            if (const QString text = document.rowErrorText(row); !text.isEmpty()) {
                lines.append(QStringLiteral("%1: %2").arg(row).arg(text));
            }
        }
        return lines.join(u'\n').toStdString();
    }

    [[nodiscard]] std::string rows() { return run.rows().join(u'\n').toStdString(); }

    TestProgram run;
    SubtitleDocument &document = run->document;
    Grid &grid = document.editor.grdSubEdit;
};

} // namespace kavro::test
