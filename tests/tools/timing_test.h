#pragma once

#include "core/text.h"
#include "core/timecode.h"
#include "tests/tools/tool_test.h"

namespace kavro::test {

/// What the tests of the timing pages share.
class TimingTest : public ToolTest
{
protected:
    static QString timeOf(double ms) { return SecondsToTimeCode(secondsText(ms / 1000)); }

    /// A subtitle for each start, two seconds long.
    void fillSeconds(const QList<int> &starts)
    {
        QStringList subtitles;
        for (const int start : starts) {
            subtitles.append(timeOf(start * 1000.0) + u'|' + timeOf(start * 1000.0 + 2000));
        }
        fill(subtitles);
    }

    /// First and last row of nodes 1 and on; node 0 is the whole document.
    void setNodes(const QList<QPair<int, int>> &rows)
    {
        document.nodes[0] = {.firstRow = 1, .lastRow = document.subtitleCount(), .name = {}};
        document.nodeCount = static_cast<int>(rows.size());
        for (int i = 0; i < rows.size(); ++i) {
            document.nodes[static_cast<std::size_t>(i) + 1] = {
                .firstRow = rows[i].first, .lastRow = rows[i].second, .name = {}};
        }
    }

    /// The document and its flags are as `fill` left them.
    void expectUntouched(const QList<GridRow> &rows, const std::string &name)
    {
        EXPECT_EQ(grid.allRows(), rows) << name;
        EXPECT_FALSE(document.fileChanged()) << name;
        EXPECT_TRUE(document.subtitleChanged) << name;
    }

    TimePage &times = run.program().times;
};

} // namespace kavro::test
