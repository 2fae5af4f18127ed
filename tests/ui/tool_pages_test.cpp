// The pages of the tools in the main window: keys, fields, letters and what a person sees of an
// act.

#include "tests/ui/paint_counter.h"
#include "tests/ui/settle.h"
#include "tests/ui/window_fixture.h"
#include "ui/tool_page.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

#include <ctime>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

QString manySubtitles(int count)
{
    QString text;
    for (int i = 1; i <= count; ++i) {
        const QString time =
            u"%1:%2"_s.arg(i / 60, 2, 10, QChar(u'0')).arg(i % 60, 2, 10, QChar(u'0'));
        text +=
            u"%1\n00:%2,000 --> 00:%2,500\nLine %1 of the film\n\n"_s.arg(QString::number(i), time);
    }
    return text;
}

/// The main window over a document of that many subtitles.
class ToolPageWindow : public WindowFixture
{
protected:
    void open(int subtitles)
    {
        WindowFixture::open(run.write(u"film.srt"_s, manySubtitles(subtitles)));
        run->editor.grdSubEdit.setCurrent(2, FirstTextColumn);
        run->trace.RecordAction({}, 0);
        settle();
    }
    void show(TabStrip &strip, int tab)
    {
        strip.setTab(tab);
        settle(); // letters and lists are brought up to date behind it
    }
};

TEST_F(ToolPageWindow, InsertAndDeleteAreKeysOfTheGrid)
{
    open(3);
    const int rows = run->editor.grdSubEdit.rows();
    key(Qt::Key_Insert);
    EXPECT_EQ(run->editor.grdSubEdit.rows(), rows + 1);
    EXPECT_EQ(cell(2, FirstTextColumn), QString());
    EXPECT_TRUE(grid->hasFocus());
    key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(run->editor.grdSubEdit.rows(), rows);
    EXPECT_EQ(cell(2, FirstTextColumn), u"Line 2 of the film"_s);
    view<QLineEdit>(u"rtfSubEditBasic"_s)->setFocus();
    key(Qt::Key_Insert);
    key(Qt::Key_Home);
    key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(run->editor.grdSubEdit.rows(), rows) << "in a field they are the field's";
    EXPECT_EQ(run->editor.rtfSubEditBasic.text(), u"2 of the film"_s);
}

TEST_F(ToolPageWindow, SearchKeysLeadToTheirFieldsAndGoOn)
{
    open(30);
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focus(), u"rtfSearch"_s);
    type("line 2");
    key(Qt::Key_Return);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 2);
    EXPECT_EQ(focus(), u"rtfSearch"_s) << "the focus stays for the next search";
    key(Qt::Key_F3);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 20);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return run->searchReplace.lblMatches.caption().contains(u"11"); }));
    EXPECT_EQ(view<QLabel>(u"lblMatches"_s)->text(), run->searchReplace.lblMatches.caption());

    key(Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(focus(), u"rtfReplace"_s) << "what is searched for stands already";
    EXPECT_TRUE(run->searchReplace.Option1[1].isOn());
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(view<QLineEdit>(u"rtfSearch"_s)->selectedText(), u"line 2"_s);
    EXPECT_TRUE(run->searchReplace.Option1[0].isOn());
    type("nowhere");
    key(Qt::Key_Return);
    const auto *state = view<QLabel>(u"StatusBar1.3"_s);
    EXPECT_TRUE(state->text().contains(u"nowhere"_s)) << qPrintable(state->text());
}

TEST_F(ToolPageWindow, EnterPressesTheButtonOfThePage)
{
    struct Case
    {
        const char *strip;
        int tab;
        const char *field;
        int code;
    };
    static const Case cases[] = {
        {"SSTab3", 0, "rtfShiftDuration", 518}, {"SSTab3", 0, "Combo2", 518},
        {"SSTab3", 1, "Text1(3)", 522},         {"SSTab3", 2, "rtfDurShift", 530},
        {"SSTab3", 2, "Command15", 534},        {"SSTab3", 3, "Combo14(1)", 548},
        {"SSTab2", 0, "Command10", 501},        {"SSTab2", 1, "rtfSearch", 508},
        {"SSTab2", 2, "Check4(0)", 513},        {"SSTab2", 3, "Combo9(1)", 514},
    };
    open(5);
    for (const Case &c : cases) {
        show(run.control<TabStrip>(QString::fromLatin1(c.strip)), c.tab);
        run->trace.RecordAction({}, 0);
        view<QWidget>(QString::fromLatin1(c.field))->setFocus();
        key(Qt::Key_Return);
        EXPECT_EQ(run->trace.lastActionCode, c.code) << c.field;
        EXPECT_EQ(focus(), QString::fromLatin1(c.field)) << "the focus stays";
    }
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(ToolPageWindow, FieldsAreBoundBothWays)
{
    open(5);
    int fields = 0;
    for (int tab = 0; tab < 4; ++tab) {
        show(run->editor.SSTab2, tab);
        show(run->editor.SSTab3, tab);
    }
    for (const ToolPage *page : window->findChildren<ToolPage *>()) {
        for (QLineEdit *edit : page->findChildren<QLineEdit *>()) {
            auto *box = qobject_cast<TextBox *>(run->control(edit->objectName()));
            if (box == nullptr || !edit->isEnabled()) {
                continue;
            }
            ++fields;
            const QString name = box->nameWithIndex();
            box->setText(u"by code"_s);
            EXPECT_EQ(edit->text(), u"by code"_s) << qPrintable(name);
            EXPECT_EQ(edit->cursorPosition(), 0) << "a long text is seen from its beginning";
            edit->end(false);
            QTest::keyClick(edit, Qt::Key_X);
            EXPECT_EQ(box->text(), u"by codex"_s) << qPrintable(name);
        }
    }
    EXPECT_GE(fields, 12);
}

TEST_F(ToolPageWindow, TabGoesThroughThePagesThatShowInReadingOrder)
{
    open(5);
    show(run->editor.SSTab3, 2); // made after all others
    show(run->editor.SSTab2, 1);
    QStringList stops;
    grid->setFocus();
    do {
        stops.append(focus());
        key(Qt::Key_Tab);
    } while (!grid->hasFocus() && stops.size() < 100);
    qsizetype last = -1;
    for (const auto &name :
         {u"grdSubEdit"_s, u"rtfSearch"_s, u"rtfReplace"_s, u"Option1(0)"_s, u"List4"_s,
          u"cmdSearch"_s, u"rtfTimeStart"_s, u"rtfTimeEnd"_s, u"rtfDurShift"_s, u"Command15"_s,
          u"Command19"_s, u"List1"_s, u"rtfClipBoard"_s})
    {
        EXPECT_GT(stops.indexOf(name), last) << qPrintable(name + u" in "_s + stops.join(u' '));
        last = stops.indexOf(name);
    }
}

TEST_F(ToolPageWindow, LettersAreFreeAndLeadToTheirFields)
{
    open(5);
    for (int tab = 0; tab < 4; ++tab) {
        show(run->editor.SSTab2, tab);
        show(run->editor.SSTab3, tab);
        QStringList letters;
        const auto add = [&letters](const QString &text) {
            const QString letter = QKeySequence::mnemonic(text).toString();
            EXPECT_FALSE(!letter.isEmpty() && letters.contains(letter))
                << qPrintable(text + u" has the letter of another"_s);
            letters.append(letter);
        };
        for (const QAction *menu : window->menuBar()->actions()) {
            add(menu->isVisible() ? menu->text() : QString());
        }
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            if (widget->isVisible() && (label == nullptr || label->buddy() != nullptr)) {
                add(label ? label->text() : button ? button->text() : QString());
            }
        }
        EXPECT_GT(letters.count(), 15);
    }
    show(run->editor.SSTab3, 1);
    const auto labels = window->findChildren<QLabel *>(u"Label41"_s);
    ASSERT_FALSE(labels.isEmpty());
    const QKeySequence letter = QKeySequence::mnemonic(labels.first()->text());
    ASSERT_FALSE(letter.isEmpty());
    key(letter[0].key(), Qt::AltModifier);
    EXPECT_EQ(focus(), u"rtfStretchLast"_s);
}

TEST_F(ToolPageWindow, AnActRepaintsTheGridOnceAndKeepsTheView)
{
    open(1000);
    Grid &control = run->editor.grdSubEdit;
    grid->grid().scrollTo(400);
    control.setCurrent(405, EndColumn);
    run->shift.rtfShiftDuration.setText(u"00:00:10,000"_s);
    run->shift.Combo2.setSelected(1);
    settle();
    PaintCounter paints(*grid->viewport());
    run->shift.Command13.click();
    settle();
    EXPECT_EQ(paints.count, 1);
    EXPECT_EQ(cell(1, StartColumn), u"00:00:11,000"_s);
    EXPECT_EQ(control.topRow(), 400);
    EXPECT_EQ(control.row(), 405);
    EXPECT_EQ(control.col(), EndColumn);
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(ToolPageWindow, ButtonTakesWhatIsBeingTypedFirst)
{
    open(5);
    type("typed");
    QTest::mouseClick(view<QPushButton>(u"Command10"_s), Qt::LeftButton);
    EXPECT_EQ(cell(3, FirstTextColumn), u"typed"_s) << "the line moved down by the insert";
    EXPECT_EQ(cell(2, FirstTextColumn), QString());
}

TEST_F(ToolPageWindow, BottomPanelFoldsAwayAndGivesItsRoom)
{
    open(5);
    const int before = grid->height();
    auto *fold = view<QToolButton>(u"command55(0)"_s);
    QTest::mouseClick(fold, Qt::LeftButton);
    settle();
    EXPECT_FALSE(view<QWidget>(u"tabClipboard"_s)->isVisible());
    EXPECT_TRUE(fold->isVisible());
    EXPECT_GT(grid->height(), before + 80);
    QTest::mouseClick(fold, Qt::LeftButton);
    settle();
    EXPECT_TRUE(view<QWidget>(u"tabClipboard"_s)->isVisible());
    EXPECT_EQ(grid->height(), before);
}

TEST_F(ToolPageWindow, FindingCanBePutAwayAndBroughtBack)
{
    open(5);
    run->document.setRowErrorText(2, u"Overlap"_s);
    run->document.RefreshCurrentRow();
    for (const bool shown : {false, true}) {
        key(Qt::Key_Return, Qt::AltModifier);
        EXPECT_EQ(run->editor.errExp.isVisible(), shown);
    }
    run->editor.grdSubEdit.setRow(3);
    key(Qt::Key_Return, Qt::AltModifier);
    EXPECT_FALSE(run->editor.errExp.isVisible()) << "there is none on this row";
}

TEST_F(ToolPageWindow, StepToAFindingShowsItsLine)
{
    open(5);
    run->editor.grdSubEdit.setText(4, EndColumn, u"00:00:01,000"_s);
    run->diagnose.Command27.click();
    show(run->navigation.tabMain, DiagnoseTab);
    view<QTreeView>(u"tvDiag"_s)->setFocus();
    key(Qt::Key_F8);
    EXPECT_EQ(run->navigation.tabMain.tab(), EditorTab);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 4);
    EXPECT_TRUE(grid->hasFocus());
    view<QLineEdit>(u"rtfSubEditBasic"_s)->setFocus();
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), u"rtfSubEditBasic"_s) << "where the line shows the focus stays";
}

TEST_F(ToolPageWindow, ListOfPartsIsEditedInPlace)
{
    open(5);
    show(run->navigation.tabMain, PartitionTab);
    Grid &parts = run->partition.grid;
    auto *list = view<GridView>(u"grid"_s);
    list->setFocus();
    parts.setCurrent(1, PartNameColumn);
    type("disc1");
    key(Qt::Key_Tab);
    type("00:00:10,000");
    key(Qt::Key_Return);
    EXPECT_EQ(run->partition.partCount(), 1) << "the end row became a part";
    EXPECT_EQ(parts.text(1, PartNameColumn), u"disc1"_s);
    EXPECT_EQ(parts.text(1, PartLengthColumn), u"00:00:10,000"_s);
    EXPECT_TRUE(list->hasFocus());
    parts.setCurrent(1, PartNameColumn);
    type("lost");
    key(Qt::Key_Escape);
    EXPECT_EQ(parts.text(1, PartNameColumn), u"disc1"_s);
    type("kept");
    window->finishEdit();
    EXPECT_EQ(parts.text(1, PartNameColumn), u"kept"_s);
}

TEST_F(ToolPageWindow, TreeOfFortyThousandNodesShowsAtOnce)
{
    open(5);
    run->navigation.tabMain.setTab(DiagnoseTab);
    auto *tree = view<QTreeView>(u"tvDiag"_s);
    TreeView &tvDiag = run->diagnose.tvDiag;
    std::clock_t begun = 0; // the process's own time, whatever else the machine has to do
    int lines = 0;
    {
        const TreeView::Batch batch(tvDiag);
        tvDiag.clear();
        const int root = tvDiag.add(TreeView::noNode, u"Errors"_s, u"err"_s);
        lines = tvDiag.add(root, u"Line"_s, u"sol_line"_s);
        for (int i = 1; i <= 20000; ++i) {
            const int line = tvDiag.add(lines, u"Line %1"_s.arg(i, 4, 10, QChar(u'0')));
            tvDiag.add(line, u"Mark [Repair.Overlapping] to repair"_s);
        }
        tvDiag.expand(root);
        tvDiag.expand(lines);
        begun = std::clock();
    }
    const QAbstractItemModel &model = *tree->model();
    const QModelIndex branch = model.index(0, 0, model.index(0, 0));
    const QModelIndex last = model.index(model.rowCount(branch) - 1, 0, branch);
    tree->scrollTo(last);
    tree->repaint();
    EXPECT_LT((std::clock() - begun) * 1000 / CLOCKS_PER_SEC, 300);
    EXPECT_EQ(last.data().toString(), u"Line 20000"_s);
    EXPECT_TRUE(tree->viewport()->rect().intersects(tree->visualRect(last)))
        << "the branch is open to its end";
}

} // namespace
} // namespace kavro::test
