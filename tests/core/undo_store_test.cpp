#include "core/undo_store.h"

#include "tests/support/document_fixture.h"
#include "tests/support/document_text.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class UndoStoreTest : public testing::Test, public test::DocumentFixture
{
public:
    UndoStoreTest() { open(3); }

    /// Another document of so many subtitles, as a load leaves it.
    void open(int count)
    {
        QList<GridRow> subtitles;
        for (int row = 1; row <= count; ++row) {
            const QString number = QString::number(row);
            subtitles.append({number, u"start"_s, u"end"_s, u" "_s + number, u""_s, u""_s});
        }
        setRows(subtitles);
        document.ShowNodeMarks(1);
        grid.setCurrent(1, FirstTextColumn);
        document.setFileChanged(false);
        document.curFormatId = 9;
        document.savedPath = u"film.srt"_s;
        emit document.replaced();
    }

    /// One act that writes a text.
    void write(int row, const QString &text)
    {
        const SubtitleDocument::Act act(document);
        grid.setText(row, FirstTextColumn, text);
        document.markEdited();
    }

    /// Acts, a word each: "1a" writes "a" into row 1 and "1" what stands there, "~1a" does so
    /// outside an act, "m" marks a node; "(" and ")" enclose one act; "<" and ">" are steps back
    /// and forward; "s" saves, and "p" saves in part.
    void run(const char *acts)
    {
        std::optional<SubtitleDocument::Act> outer;
        for (const QString &word : QString::fromLatin1(acts).split(u' ')) {
            switch (word.front().unicode()) {
            case u'(': outer.emplace(document); break;
            case u')': outer.reset(); break;
            case u'<': undo.undo(); break;
            case u'>': undo.redo(); break;
            case u's': document.markSaved(true); break;
            case u'p': document.markSaved(false); break;
            case u'm': {
                const SubtitleDocument::Act act(document);
                document.nodes[1].flag = true;
                break;
            }
            case u'~':
                grid.setText(word[1].digitValue(), FirstTextColumn, word.sliced(2));
                document.markEdited();
                break;
            default: write(word[0].digitValue(), word.size() > 1 ? word.sliced(1) : u" "_s + word);
            }
        }
    }

    [[nodiscard]] std::string state() const
    {
        QStringList lines = test::contentLines(document) + editor.lstFont.items();
        lines += document.rowErrors();
        lines.append(u"format %1 %2, %3 errors, font %4"_s.arg(document.curFormatId)
                         .arg(document.savedPath)
                         .arg(document.errorCount)
                         .arg(document.curFontName));
        lines.append(place());
        lines.append(document.fileChanged() ? u"changed"_s : u"unchanged"_s);
        return lines.join(u'\n').toStdString();
    }

    [[nodiscard]] QString place() const
    {
        return u"%1,%2 top %3"_s.arg(grid.row()).arg(grid.col()).arg(grid.topRow());
    }

    [[nodiscard]] std::string ways() const
    {
        return std::string(menu.mnuUndo.isEnabled() ? " undo" : "")
               + (menu.mnuRedo.isEnabled() ? " redo" : "");
    }

    Grid &grid = editor.grdSubEdit;
    UndoStore undo{document, menu, diagnose, trace};
};

TEST_F(UndoStoreTest, WalksOverEachKindOfChange)
{
    const struct
    {
        const char *name;
        std::function<void(UndoStoreTest &)> change;
    } rows[] = {
        {"a cell", [](auto &t) { t.grid.setText(2, 4, u"x"_s); }},
        {"all rows but the last", [](auto &t) { t.grid.setRows(2); }},
        {"a row more", [](auto &t) { t.grid.insertRow(2, {u"n"_s}); }},
        {"a row fewer", [](auto &t) { t.grid.removeRow(3); }},
        {"the header", [](auto &t) { t.grid.setText(0, 3, u"text ahead"_s); }},
        {"a font", [](auto &t) { t.editor.lstFont.setItem(2, u"Verdana;;;"_s); }},
        {"fonts more", [](auto &t) { t.editor.lstFont.addItem(u"Verdana;;;"_s); }},
        {"nodes",
         [](auto &t) {
             t.document.clearNodeMarks();
             t.document.nodeCount = 2;
             t.document.nodes[1].lastRow = 2;
             t.document.nodes[2] = {.firstRow = 3, .lastRow = 3, .name = u"two"_s, .flag = true};
             t.document.ShowNodeMarks(1);
         }},
        {"a node's flag", [](auto &t) { t.document.nodes[1].flag = true; }},
        {"findings with a change",
         [](auto &t) {
             t.grid.setText(1, 1, u""_s);
             t.document.setRowErrorText(1, u"no time"_s);
             t.document.errorCount = 1;
             t.grid.setCellColor(1, 1, Color::fromBgr(0xFF));
         }},
        {"a format",
         [](auto &t) {
             t.document.curFormatId = 3;
             t.document.savedPath.clear();
         }},
        {"the place too",
         [](auto &t) {
             t.grid.setText(1, 1, u"x"_s);
             t.grid.setCurrent(3, 1);
             t.grid.setTopRow(2);
         }},
    };
    int formatsShown = 0;
    undo.formatChanged = [&] { ++formatsShown; };
    for (const auto &row : rows) {
        open(3);
        const std::string before = state();
        {
            const SubtitleDocument::Act act(document);
            row.change(*this);
            document.markEdited();
        }
        const std::string after = state();
        EXPECT_EQ(ways(), " undo") << row.name;
        menu.mnuUndo.click();
        EXPECT_EQ(state(), before) << row.name;
        EXPECT_EQ(ways(), " redo") << row.name;
        menu.mnuRedo.click();
        EXPECT_EQ(state(), after) << row.name;
        EXPECT_EQ(ways(), " undo") << row.name;
    }
    EXPECT_EQ(formatsShown, 2);
}

TEST_F(UndoStoreTest, StepsAreWhatChangedTheDocument)
{
    const struct
    {
        const char *name;
        const char *acts;
        const char *after; ///< the texts, the ways, and "*" for changed
    } rows[] = {
        {"what changed nothing is no step", "1", " 1 2 3*"},
        {"nested acts are one step", "( 1a 2b ) <", " 1 2 3 redo"},
        {"a new change ends the way forward", "1a 1b < 2c > >", "ac 3 undo*"},
        {"and the way back leads past it", "1a 1b < 2c < <", " 1 2 3 redo"},
        {"a change outside an act", "~1a 2b <", "a 2 3 undo redo*"},
        {"is a step of its own", "~1a 2b < <", " 1 2 3 redo"},
        {"a saved state", "1a 1b s", "b 2 3 undo"},
        {"back from it", "1a 1b s <", "a 2 3 undo redo*"},
        {"and further", "1a 1b s < <", " 1 2 3 redo*"},
        {"forward to it", "1a 1b s < < > >", "b 2 3 undo"},
        {"back from one saved on the way", "1a 1b s < s <", " 1 2 3 redo*"},
        {"and forward to it", "1a 1b s < s < >", "a 2 3 undo redo"},
        {"the text of the first one saved is not saved now", "1a 1b s < s 1b", "b 2 3 undo*"},
        {"back to the second one", "1a 1b s < s 1b <", "a 2 3 undo redo"},
        {"and forward", "1a 1b s < s 1b < >", "b 2 3 undo*"},
        {"a save that left rows out of the file of the first", "1a p <", " 1 2 3 redo*"},
        {"and one of all rows behind it", "1a p < s", " 1 2 3 redo"},
        {"a mark, which is in no file", "m", " 1 2 3 undo"},
        {"back from a mark", "m <", " 1 2 3 redo"},
        {"forward to a mark", "m < >", " 1 2 3 undo"},
    };
    for (const auto &row : rows) {
        open(3);
        run(row.acts);
        std::string after;
        for (int line = 1; line <= 3; ++line) {
            after += grid.text(line, FirstTextColumn).toStdString();
        }
        after += ways() + (document.fileChanged() ? "*" : "");
        EXPECT_EQ(after, row.after) << row.name;
    }
}

TEST_F(UndoStoreTest, PlacesMarksAndTheHeaderAreNoStep)
{
    {
        const SubtitleDocument::Act act(document);
        grid.setAllRows(QList<GridRow>(grid.allRows())); // the same again
        grid.setCurrent(2, 2);
        document.curNode = 0;
        grid.setCellColor(1, 4, Color::fromBgr(0xFF));
    }
    EXPECT_EQ(ways(), "");
    undo.undo();
    undo.redo();
    EXPECT_EQ(grid.row(), 2);
    grid.setText(0, 3, u"another language"_s);
    run("2x <");
    EXPECT_EQ(grid.text(0, 3), u"another language"_s);
    EXPECT_EQ(ways(), " redo");
}

TEST_F(UndoStoreTest, NewDocumentHasNothingBehindIt)
{
    run("1a");
    document.startNew();
    EXPECT_EQ(ways(), "");
    document.setFileChanged(false);
    run("1b <");
    EXPECT_FALSE(document.fileChanged());
    EXPECT_EQ(ways(), " redo");
    document.setFileChanged(true);
    emit document.replaced(); // one that was brought back from nowhere
    run("1c <");
    EXPECT_TRUE(document.fileChanged());
}

TEST_F(UndoStoreTest, SaveUnderAnotherNameStaysItsName)
{
    run("1a");
    document.curFormatId = 3;
    document.savedPath = u"other.sub"_s;
    run("s 1b < <");
    EXPECT_EQ(document.curFormatId, 3);
    EXPECT_EQ(document.savedPath, u"other.sub"_s);
    EXPECT_EQ(ways(), " redo");
}

TEST_F(UndoStoreTest, PlaceOfTheChangeComesIntoSight)
{
    const struct
    {
        const char *name;
        int changed, row, top;
        const char *place;
    } rows[] = {
        {"nobody moved", 50, 50, 45, "50,3 top 45"},
        {"moved within sight", 50, 48, 45, "50,3 top 45"},
        {"scrolled, still in sight", 50, 50, 42, "50,3 top 42"},
        {"moved far away", 50, 90, 85, "50,3 top 50"},
        {"moved above", 50, 2, 1, "50,3 top 50"},
    };
    for (const auto &row : rows) {
        open(100);
        grid.setCurrent(row.changed, 3);
        grid.setTopRow(45);
        write(row.changed, u"x"_s);
        grid.setCurrent(row.row, 3);
        grid.setTopRow(row.top);
        undo.undo();
        EXPECT_EQ(place().toStdString(), row.place) << row.name;
        EXPECT_EQ(document.curRow, row.changed) << row.name; // and the panels show it
    }
}

TEST_F(UndoStoreTest, ScansWhereThereWereFindings)
{
    const struct
    {
        int before, after, scans;
    } rows[] = {{0, 0, 0}, {1, 0, 1}, {0, 2, 1}, {2, 2, 1}};
    for (const auto &row : rows) {
        open(3);
        diagnose.quietRuns = 0;
        document.errorCount = row.before;
        {
            const SubtitleDocument::Act act(document);
            grid.setText(1, 3, u"x"_s);
            document.errorCount = row.after;
        }
        undo.undo();
        EXPECT_EQ(diagnose.quietRuns, row.scans) << row.before << ' ' << row.after;
        EXPECT_EQ(document.errorCount, row.before);
        undo.redo();
        EXPECT_EQ(document.errorCount, row.after);
    }
    EXPECT_EQ(diagnose.runs, 0); // the repairs stay off
}

TEST_F(UndoStoreTest, ScanIsNoActOfThePersons)
{
    diagnose.during = [this] {
        const SubtitleDocument::Act act(document); // no step either
        trace.RecordAction({}, 719);
        grid.setCurrent(3, 1);
    };
    document.errorCount = 1;
    run("1x");
    trace.RecordAction(u"kept"_s, 504);
    const QString before = place();
    undo.undo();
    EXPECT_EQ(diagnose.quietRuns, 1);
    EXPECT_EQ(trace.lastActionCode, 504);
    EXPECT_EQ(trace.lastActionText, u"kept"_s);
    EXPECT_EQ(place(), before);
    EXPECT_EQ(ways(), " redo");
}

TEST_F(UndoStoreTest, RangesEndWithTheDocument)
{
    times.Text1[1].setText(u"3"_s);
    times.Text1[3].setText(u"2"_s);
    run("1x <");
    EXPECT_EQ(times.Text1[3].text(), u"2"_s); // a person's own, as long as the rows are there
    {
        const SubtitleDocument::Act act(document);
        grid.removeRow(3);
    }
    undo.undo();
    EXPECT_EQ(times.Text1[1].text(), u"3"_s);
    EXPECT_EQ(times.Text1[3].text(), u"3"_s);
}

TEST_F(UndoStoreTest, OldestStepsGo)
{
    for (int i = 1; i <= 1010; ++i) {
        write(1, QString::number(i));
    }
    const auto stepsBack = [this] {
        int steps = 0;
        for (; undo.canUndo(); ++steps) {
            undo.undo();
        }
        return steps;
    };
    EXPECT_EQ(stepsBack(), 1000);
    EXPECT_EQ(grid.text(1, 3), u"10"_s);

    open(1);
    const QString large(1 << 22, u'x'); // eight MiB each
    for (int i = 1; i <= 20; ++i) {
        write(1, large + QString::number(i));
    }
    const int steps = stepsBack();
    EXPECT_GE(steps, 5);
    EXPECT_LE(steps, 8);

    open(1);
    const QString huge(1 << 26, u'x');
    write(1, huge);
    write(1, u"small"_s);
    undo.undo();
    EXPECT_EQ(grid.text(1, 3).size(), huge.size()); // the last step always stays
}

} // namespace
} // namespace kavro
