#include "core/edit_history.h"

#include "tests/support/document_fixture.h"
#include "tests/support/document_text.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class EditHistoryTest : public testing::Test, public test::DocumentFixture
{
public:
    EditHistoryTest() { EXPECT_TRUE(folders.prepare().ok()); }

    /// Two nodes over three subtitles.
    void fill()
    {
        setRows({{u"1"_s, u"00:00:01,000"_s, u"00:00:02,000"_s, u" One"_s, u" more "_s, u""_s},
                 {u"2"_s, u"00:00:03,000"_s, u"00:00:04,000"_s, u""_s, u""_s, u"third"_s},
                 {u"3"_s, u"00:00:05,000"_s, u""_s, u"é, שלום"_s, u""_s, u""_s}});
        document.nodes[0] = {.firstRow = 1, .lastRow = 3, .name = u"film"_s, .flag = false};
        document.nodes[1] = {.firstRow = 1, .lastRow = 2, .name = u"Part_1"_s, .flag = true};
        document.nodes[2] = {.firstRow = 3, .lastRow = 3, .name = u"Part 2"_s, .flag = false};
        document.nodeCount = 2;
        document.curNode = 2;
        document.ShowNodeMarks(1);
        grid.setCurrent(1, FirstTextColumn);
        document.setFileChanged(false);
        document.subtitleChanged = true;
    }

    [[nodiscard]] QString snapshotPath(const QString &number) const
    {
        return folders.path(Folder::Temporary, QString(number + u".shd"_s));
    }

    /// Puts other bytes into the first snapshot.
    void writeSnapshot(const QByteArray &bytes)
    {
        writeBytes(u"app/Data/Temporarily/0000.shd"_s, bytes);
    }

    /// Rows with their numbers, nodes and the cells with a colour: what a snapshot brings back.
    [[nodiscard]] std::string content() const
    {
        return test::contentLines(document).join(u'\n').toStdString();
    }

    void log(const QString &action = u"Acted"_s) { history.LogHistory(action, u"how"_s); }
    void restore(int line) { history.RestoreHistory(history.List1.item(line)); }

    Grid &grid = editor.grdSubEdit;
};

TEST_F(EditHistoryTest, SnapshotHoldsOneValueALine)
{
    fill();
    log(u"Row 1 deleted"_s);
    EXPECT_EQ(history.List1.items(), QStringList{u"0000 [2024-03-01,12:30:15] Row 1 deleted"_s});
    EXPECT_EQ(history.List2.items(), QStringList{u"how"_s});
    EXPECT_EQ(QString::fromStdString(read(snapshotPath(u"0000"_s))).replace(u"\r\n"_s, u"\n"_s),
              u"4.00:=4\n2\n2\n"
              "film\n1\n3\n0\n"
              "Part_1\n1\n2\n1\n"
              "Part 2\n3\n3\n0\n"
              "00:00:01,000\n00:00:02,000\n One\n more \n\n"
              "00:00:03,000\n00:00:04,000\n\n\nthird\n"
              "00:00:05,000\n\né, שלום\n\n\n"
              "\n\n\n\n\n"_s);
    EXPECT_FALSE(document.fileChanged()); // logging changes nothing
}

TEST_F(EditHistoryTest, RestoreGoesBackToTheMomentBefore)
{
    const struct
    {
        const char *name;
        std::function<void(EditHistoryTest &)> change;
    } rows[] = {
        {"fewer rows", [](auto &t) { t.setRows({}); }},
        {"more rows", [](auto &t) { t.setRows(QList<GridRow>(50, GridRow(6, u"x"_s))); }},
        {"all that stands in them",
         [](auto &t) {
             t.grid.setText(2, 3, u"other"_s);
             t.grid.setText(4, 1, u"in the end row"_s);
             t.document.clearNodeMarks();
             t.document.nodeCount = 1;
             t.document.curNode = 1;
             t.document.nodes[1].flag = false;
             t.document.setRowErrorText(2, u"empty"_s);
             t.grid.setCellColor(2, 3, Color::fromBgr(0xFF0000));
         }},
    };
    for (const auto &row : rows) {
        fill();
        const std::string before = content();
        log();
        row.change(*this);
        grid.setTopRow(3);
        const int lines = history.List1.count();
        restore(lines - 1);
        EXPECT_EQ(content(), before) << row.name;
        EXPECT_EQ(document.rowErrorText(2), QString()) << row.name;
        EXPECT_EQ(editor.lstFont.count(), 4) << row.name;
        EXPECT_EQ(grid.topRow(), 1) << row.name;
        EXPECT_TRUE(document.fileChanged()) << row.name;
        EXPECT_FALSE(document.subtitleChanged) << row.name;
        EXPECT_FALSE(editor.rtfEdit.isVisible()) << row.name;
        EXPECT_FALSE(editor.cmdInvCalc.isVisible()) << row.name;
        EXPECT_EQ(history.List1.count(), lines) << row.name; // later lines stay
    }
    EXPECT_EQ(diagnose.runs, static_cast<int>(std::size(rows)));
    EXPECT_EQ(takeMessages(), "");
}

TEST_F(EditHistoryTest, FontsStayInStepWithTheRows)
{
    fill();
    editor.lstFont.setItem(1, u"Verdana;Western;Bold;12"_s);
    log();
    setRows({{u"1"_s}});
    editor.lstFont.setItem(1, u"Verdana;Western;Bold;12"_s);
    restore(0);
    const QString regular = document.regularFontEntry();
    EXPECT_EQ(editor.lstFont.items(),
              (QStringList{u""_s, u"Verdana;Western;Bold;12"_s, regular, regular}));
    history.reset();
    log();
    setRows(QList<GridRow>(9, GridRow(6)));
    restore(0);
    EXPECT_EQ(editor.lstFont.count(), 4);
}

TEST_F(EditHistoryTest, EveryTextComesBack)
{
    const QString texts[] = {
        u"two\r\nlines"_s,
        u"\n"_s,
        u"\r"_s,
        u"\x1B[0m"_s,
        u"\x1B"_s,
        u"back\\slash"_s,
        u"\\000A\n\\"_s,
        u"a\tb"_s,
        u"\U0001F600"_s,
        u"\uFEFFmark"_s,
        u"4.00:=9"_s,
        u"\u2028"_s,
        QString(QChar(0)),
        QString(QChar(0xD800)),
        u"x"_s + QChar(0xDC00) + u"\\"_s,
    };
    for (const QString &text : texts) {
        fill();
        grid.setText(1, StartColumn, text);
        grid.setText(3, LastTextColumn, text);
        document.nodes[2].name = text;
        const std::string before = content();
        log();
        setRows({});
        restore(history.List1.count() - 1);
        EXPECT_EQ(content(), before);
        EXPECT_EQ(grid.text(1, StartColumn), text);
        EXPECT_EQ(grid.text(3, LastTextColumn), text);
    }
    EXPECT_EQ(takeMessages(), "");
}

TEST_F(EditHistoryTest, DamagedSnapshotLeavesTheDocument)
{
    fill();
    log();
    const QByteArray whole = QByteArray::fromStdString(read(snapshotPath(u"0000"_s)));
    const auto with = [&](const char *from, const char *to) {
        QByteArray bytes = whole;
        const qsizetype at = bytes.indexOf(from);
        EXPECT_GE(at, 0);
        return bytes.replace(at, static_cast<qsizetype>(std::strlen(from)), to);
    };
    const struct
    {
        const char *name;
        QByteArray bytes;
    } rows[] = {
        {"empty", {}},
        {"cut in a row", whole.first(whole.size() - 4)},
        {"cut in the nodes", whole.first(30)},
        {"too long", whole + "more\r\n"},
        {"no mark", with(":=4", "4")},
        {"no number of rows", with(":=4", ":=x")},
        {"no end row", with(":=4", ":=0")},
        {"too many rows", with(":=4", ":=10001")},
        {"fewer rows than told", with(":=4", ":=5")},
        {"too many nodes", with("\r\n2\r\n2", "\r\n100\r\n2")},
        {"current node that can't be", with("\r\n2\r\n2", "\r\n2\r\n-1")},
        {"a flag that is none", with("1\r\n3\r\n0", "1\r\n3\r\nyes")},
        {"bytes of another kind", QByteArray(200, '\0')},
    };
    const std::string logged = content();
    grid.setText(1, 3, u"changed since"_s);
    document.setFileChanged(false);
    const std::string before = content();
    for (const auto &row : rows) {
        writeSnapshot(row.bytes);
        restore(0);
        EXPECT_EQ(content(), before) << row.name;
        EXPECT_FALSE(document.fileChanged()) << row.name;
        const std::string told = takeMessages();
        EXPECT_EQ(told.find("History: The document can't be brought back to '0000 ["), 0U) << told;
    }
    QFile::remove(snapshotPath(u"0000"_s));
    restore(0);
    EXPECT_EQ(takeMessages(), "History: The document can't be brought back to '0000 "
                              "[2024-03-01,12:30:15] Acted'./The file doesn't exist.");
    EXPECT_EQ(content(), before);
    EXPECT_EQ(diagnose.runs, 0);
    writeSnapshot(with("4.00:=", "3.10:=")); // the version isn't compared
    restore(0);
    EXPECT_EQ(content(), logged);
}

TEST_F(EditHistoryTest, FailedSnapshotIsToldOnce)
{
    fill();
    log(); // 0000 of this list is whole
    history.reset();
    store.setFreeBytes(20);
    log();
    EXPECT_EQ(takeMessages(),
              "History: The history can't keep the document as it stands./No space left on "
              "device//The change is made all the same; 'Undo' takes it back.");
    log();
    EXPECT_EQ(takeMessages(), "");
    EXPECT_EQ(history.List1.count(), 2);
    EXPECT_FALSE(QFile::exists(snapshotPath(u"0000"_s))); // no half a file, and not the old one
    restore(0);
    EXPECT_EQ(takeMessages(), "History: The document can't be brought back to '0000 "
                              "[2024-03-01,12:30:15] Acted'./No snapshot was written.");
    store.setFreeBytes(std::nullopt);
    log();
    setRows({});
    restore(2);
    EXPECT_EQ(document.subtitleCount(), 3);
    store.setFreeBytes(0);
    log();
    EXPECT_NE(takeMessages(), ""); // a new failure is told anew
}

TEST_F(EditHistoryTest, BoundedScopeSharesItsLastSnapshot)
{
    {
        const EditHistory::Bounded outer(history);
        const EditHistory::Bounded inner(history);
        for (int i = 0; i < 10'001; ++i) {
            if (i <= 110) {
                setRows(QList<GridRow>(i + 1, GridRow{u"x"_s}));
            }
            log();
        }
    }
    setRows({});
    log();
    EXPECT_EQ(folders.files(Folder::Temporary, u"*.shd").size(), 101);
    const struct
    {
        int line, subtitles;
    } rows[] = {{0, 1}, {98, 99}, {99, 100}, {100, 100}, {10'000, 100}, {10'001, 0}};
    for (const auto &row : rows) { // the numbers grow beyond four digits: 1000 is another line
        restore(row.line);
        EXPECT_EQ(document.subtitleCount(), row.subtitles) << row.line;
    }
    {
        const EditHistory::Bounded next(history);
        log();
        EXPECT_TRUE(QFile::exists(snapshotPath(u"10002"_s))); // each scope has its own hundred
    }
}

TEST_F(EditHistoryTest, WindowShowsDetailsAndRestores)
{
    log(u"first"_s);
    setRows({{u"1"_s, u"changed"_s}});
    history.LogHistory(u"second"_s, u"why"_s);
    setRows({});
    EXPECT_FALSE(history.Command1[1].isEnabled());
    formWindows.during = [this](Form &form) {
        EXPECT_TRUE(form.isOpen());
        history.List1.pick(0);
        EXPECT_EQ(history.lblHistComment.caption(), u"how"_s);
        history.List1.pick(1);
        EXPECT_EQ(history.lblHistComment.caption(), u"why"_s);
        EXPECT_TRUE(history.Command1[1].isEnabled());
        history.Command1[1].click();
        EXPECT_FALSE(form.isOpen());
    };
    history.show();
    EXPECT_EQ(formWindows.shown, QStringList{u"frmHistory"_s});
    EXPECT_EQ(grid.text(1, StartColumn), u"changed"_s);

    setRows({});
    for (const bool button : {true, false}) {
        formWindows.during = [&](Form &form) {
            button ? history.Command1[0].click() : form.requestClose();
            EXPECT_FALSE(form.isOpen());
        };
        history.show();
    }
    EXPECT_EQ(document.subtitleCount(), 0);

    history.reset();
    EXPECT_EQ(history.List1.count() + history.List2.count(), 0);
    EXPECT_EQ(history.lblHistComment.caption(), QString());
    EXPECT_FALSE(history.Command1[1].isEnabled());
    log();
    EXPECT_TRUE(history.List1.item(0).startsWith(u"0000 ["_s));
}

} // namespace
} // namespace kavro
