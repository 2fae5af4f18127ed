// Laws over all tools: what was done can be walked back and forward, and a restore is the moment
// before.

#include "tests/support/document_text.h"
#include "tests/tools/tool_test.h"

#include <random>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class UndoLaws : public ToolTest
{
protected:
    UndoLaws()
    {
        const QString text = u"Some words of a line that is long\n"_s;
        QString file;
        for (int i = 1; i <= 30; ++i) {
            file += u"%1\n00:00:%2,000 --> 00:00:%2,900\n%3\n"_s.arg(i)
                        .arg(i, 2, 10, '0'_L1)
                        .arg(i % 3 == 0 ? text + text : text);
        }
        write(u"film.srt"_s, file);
        write(u"more.txt"_s, u"00:00:40,0=More\n00:00:42,0=\n00:00:43,0=and more\n00:00:44,0=\n"_s);
        load();
    }

    void load()
    {
        run.doors.files.choose(run.path(u"film.srt"_s), 0);
        run->menu.mnuLoadFile.click();
        ASSERT_EQ(document.subtitleCount(), 30);
    }

    void write(const QString &name, const QString &text) { run.write(name, text); }

    /// What a step keeps.
    [[nodiscard]] std::string content() const
    {
        QStringList lines;
        for (const GridRow &row : grid.allRows()) {
            lines.append(row.join(u'|'));
        }
        lines += document.editor.lstFont.items();
        for (int row = 0; row < grid.rows(); ++row) {
            lines.append(document.rowErrorText(row));
        }
        lines += nodeLines(document);
        lines += colourLines(grid);
        lines.append(u"format %1, %2 errors"_s.arg(document.curFormatId).arg(document.errorCount));
        return lines.join(u'\n').toStdString();
    }

    /// All that a person sees of it: the flag, the node and the place too.
    [[nodiscard]] std::string state() const
    {
        const QString rest = u"\nnode %1, changed %2, at %3,%4 top %5"_s.arg(document.curNode)
                                 .arg(document.fileChanged())
                                 .arg(grid.row())
                                 .arg(grid.col())
                                 .arg(grid.topRow());
        return content() + rest.toStdString();
    }

    /// One act of a person's on the current cell or on all.
    void act(int kind)
    {
        Program &program = run.program();
        switch (kind) {
        case 0: program.editor.Command10.click(); break;
        case 1: program.editor.Command11.click(); break;
        case 2:
            program.editor.rtfSubEditBasic.type(QString::number(grid.row()) + u" typed"_s);
            program.editor.Command14.click();
            break;
        case 3:
            program.times.Text1[0].type(u"1"_s);
            program.times.Text1[1].type(QString::number(document.subtitleCount()));
            program.shift.rtfShiftDuration.type(u"00:00:01,500"_s);
            program.shift.Combo2.pick(1);
            program.shift.Command13.click();
            break;
        case 4:
            program.frameRates.Combo14[1].pick(4);
            program.frameRateConversion.Command52.click();
            break;
        case 5: program.editor.btnNode[0].click(); break;
        case 6:
            program.fonts.Combo9[1].pick(2);
            program.fonts.Command42.click();
            break;
        case 7:
            program.filters.Check4[1].check(true);
            program.filters.txtMaxCount.type(u"12"_s);
            program.filters.Command30.click();
            break;
        case 8:
            run.doors.files.choose(run.path(u"more.txt"_s), 0);
            program.menu.mnuAddFile.click();
            break;
        default: program.history.RestoreHistory(program.history.List1.item(0)); break;
        }
    }

    static constexpr int kinds = 10;
};

TEST_F(UndoLaws, EveryActIsWalkedBackAndForward)
{
    for (int kind = 0; kind < kinds; ++kind) {
        load();
        if (kind == kinds - 1) {
            act(2); // something to restore
            document.setFileChanged(false);
        }
        grid.moveTo(7, FirstTextColumn);
        const std::string before = state();
        act(kind);
        const std::string after = state();
        ASSERT_NE(before, after) << kind;
        ASSERT_TRUE(run->menu.mnuUndo.isEnabled()) << kind;
        run->menu.mnuUndo.click();
        EXPECT_EQ(state(), before) << kind;
        run->menu.mnuRedo.click();
        EXPECT_EQ(state(), after) << kind;
        document.setFileChanged(false);
    }
}

TEST_F(UndoLaws, RandomActsAreWalkedBackAndForward)
{
    std::mt19937 random(20240301);
    const auto upTo = [&](int last) {
        return static_cast<int>(random() % static_cast<unsigned>(last)) + 1;
    };
    // A walk scans where a scan had found something; that has a test of its own.
    for (CheckBox &box : run->diagnose.Check3) {
        box.setOn(false);
    }
    for (int round = 0; round < 20; ++round) {
        load();
        std::vector<std::string> states{content()};
        for (int i = 0; i < 25; ++i) {
            grid.moveTo(upTo(grid.rows() - 1), upTo(LastTextColumn));
            grid.scrollTo(upTo(grid.rows() - 1));
            act(upTo(kinds) - 1);
            if (content() != states.back()) {
                states.push_back(content());
            }
        }
        for (auto before = states.rbegin(); before != states.rend(); ++before) {
            ASSERT_EQ(content(), *before) << round;
            run->undo.undo();
        }
        EXPECT_FALSE(run->undo.canUndo()) << round;
        for (const std::string &after : states) {
            ASSERT_EQ(content(), after) << round;
            run->undo.redo();
        }
        document.setFileChanged(false);
    }
}

TEST_F(UndoLaws, RestoreIsTheMomentBefore)
{
    for (const int kind : {1, 2, 3, 4, 7}) {
        load();
        grid.moveTo(7, FirstTextColumn);
        const QList<GridRow> before = grid.allRows();
        const auto nodes = document.nodes;
        act(kind);
        ASSERT_EQ(run->history.List1.count(), 1) << kind;
        act(0);
        act(5);
        run->history.RestoreHistory(run->history.List1.item(0));
        EXPECT_EQ(grid.allRows(), before) << kind;
        EXPECT_EQ(document.nodes[1], nodes[1]) << kind;
        document.setFileChanged(false);
    }
}

// Findings come and go with the lines that have them; the repairs stay off on the way.
TEST_F(UndoLaws, FindingsAreWalkedBackAndForward)
{
    for (CheckBox &box : run->diagnose.Check3) {
        box.check(box.index() < 4);
    }
    run->diagnose.Command27.click();
    EXPECT_EQ(document.errorCount, 0);
    grid.moveTo(7, StartColumn);
    run->editor.rtfSubEditBasic.type(u"00:00:06,100"_s); // ahead of the end of line 6
    run->editor.Command14.click();
    run->diagnose.Command27.click();
    EXPECT_GT(document.errorCount, 0);
    const std::string faulty = content();
    grid.moveTo(7, StartColumn);
    act(1);
    EXPECT_EQ(document.errorCount, 0);
    run->diagnose.Check3[7].check(true);
    run->diagnose.Check3[9].check(true);
    run->menu.mnuUndo.click();
    EXPECT_EQ(content(), faulty);
    run->menu.mnuUndo.click();
    EXPECT_EQ(document.errorCount, 0);
    run->menu.mnuRedo.click();
    EXPECT_EQ(content(), faulty);
    run->diagnose.Command27.click(); // repairs, in one step
    EXPECT_EQ(document.errorCount, 0);
    EXPECT_TRUE(run->menu.mnuUndo.isEnabled());
    run->menu.mnuUndo.click();
    EXPECT_EQ(content(), faulty);
}

} // namespace
} // namespace kavro::test
