#include "controls/control_array.h"
#include "controls/drop_list.h"
#include "controls/form.h"
#include "controls/indicators.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "ui/bind_buttons.h"
#include "ui/bind_indicators.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"
#include "ui/mnemonics.h"
#include "ui/page_tabs.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class Bind : public ::testing::Test
{
protected:
    Bind() { window.resize(400, 300); }
    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    Form form{u"frmMain"_s};
    QWidget window;
};

TEST_F(Bind, WidgetIsNamedAfterItsControlAndFollowsIt)
{
    ControlArray<Button, 0, 1> buttons(form, u"Command8"_s);
    auto *view = new QPushButton(&window);
    bind(*view, buttons[1]);
    EXPECT_EQ(view->objectName(), u"Command8(1)"_s);
    buttons[1].setToolTip(u"Stops the movie"_s);
    EXPECT_EQ(view->accessibleName(), u"Stops the movie"_s)
        << "a tool tip names what has no caption";
    buttons[1].setCaption(u">>"_s);
    EXPECT_EQ(view->accessibleName(), u"Stops the movie"_s) << "signs are no name";
    buttons[1].setCaption(u"Stop & go"_s);
    EXPECT_EQ(view->accessibleName(), u"Stop & go"_s);
    EXPECT_EQ(view->text(), u"Stop && go"_s);
    buttons[1].setEnabled(false);
    EXPECT_FALSE(view->isEnabled());
    buttons[1].setVisible(false);
    EXPECT_TRUE(view->isHidden());
}

class BindField : public Bind
{
protected:
    BindField() { bind(*edit, box, u"Search for"_s); }

    TextBox box{form, u"rtfSearch"_s};
    QLineEdit *edit = new QLineEdit(&window);
};

TEST_F(BindField, TypingIsOneActWithoutEcho)
{
    const QSignalSpy typed(&box, &TextBox::typed);
    const QSignalSpy changed(&box, &TextBox::textChanged);
    QTest::keyClicks(edit, u"ac"_s);
    edit->setCursorPosition(1);
    QTest::keyClicks(edit, u"b"_s);
    EXPECT_EQ(box.text(), u"abc"_s);
    EXPECT_EQ(edit->cursorPosition(), 2) << "the echo would move the cursor to the end";
    EXPECT_EQ(typed.count(), 3);
    EXPECT_EQ(changed.count(), 3);

    box.setText(u"by code"_s);
    EXPECT_EQ(edit->text(), u"by code"_s);
    EXPECT_EQ(typed.count(), 3) << "the program's own write is no act";
    EXPECT_EQ(edit->accessibleName(), u"Search for"_s);

    QObject::connect(&box, &TextBox::typed, &box, [this] { box.setText(u"40"_s); });
    QTest::keyClicks(edit, u"x"_s);
    EXPECT_EQ(edit->text(), u"40"_s) << "a listener corrects what is typed";
}

TEST_F(BindField, PastedLinesBecomeOne)
{
    box.setText(u"ad"_s);
    edit->setCursorPosition(1);
    edit->insert(u"b\r\nc\nc\r"_s);
    EXPECT_EQ(box.text(), u"ab c c d"_s);
    EXPECT_EQ(edit->text(), box.text());
    EXPECT_EQ(edit->cursorPosition(), 7) << "where the paste ended";
}

TEST_F(BindField, SelectionGoesBothWays)
{
    box.setText(u"Good morning"_s);
    box.setSelection(5, 7);
    EXPECT_EQ(edit->selectedText(), u"morning"_s);
    edit->setSelection(0, 4);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 4);
}

TEST_F(BindField, EnterAndEscapeAreKeysOfTheField)
{
    QList<Key> keys;
    QObject::connect(&box, &Control::keyPressed, &box, [&keys](Key key) { keys.append(key); });
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(keys, (QList<Key>{Key::Enter, Key::Escape}));
}

TEST_F(Bind, CheckBoxActsOnClicksAlone)
{
    CheckBox box(form, u"Check3"_s);
    auto *view = new QCheckBox(&window);
    bind(*view, box);
    const QSignalSpy clicked(&box, &CheckBox::clicked);
    box.setOn(true);
    EXPECT_TRUE(view->isChecked());
    EXPECT_EQ(clicked.count(), 0);
    view->click();
    EXPECT_FALSE(box.isOn());
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(Bind, FoldedListIsAComboBoxThatCanAlwaysBePicked)
{
    DropList list(form, u"Combo6"_s, Control::noIndex, {.toggle = u"Label54"_s, .label = {}});
    auto *view = new QComboBox(&window);
    bind(*view, list, u"Macro"_s);
    for (int i = 0; i < 100; ++i) {
        list.addItem(QString::number(i));
    }
    list.setSelected(99);
    QTest::qWait(1);
    EXPECT_EQ(view->count(), 100);
    EXPECT_EQ(view->currentIndex(), 99) << "a selection ahead of its entries is shown with them";
    EXPECT_TRUE(view->isEnabled()) << "folded is no reason to refuse";
    list.setAvailable(false);
    EXPECT_FALSE(view->isEnabled());
    list.setAvailable(true);

    show();
    const QSignalSpy picked(&list, &ListBox::picked);
    const auto turnWheel = [view] {
        QWheelEvent turn({5, 5}, view->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view, &turn);
    };
    window.setFocus();
    turnWheel();
    EXPECT_EQ(list.selected(), 99) << "who scrolls past picks nothing";
    view->setFocus();
    turnWheel();
    EXPECT_EQ(list.selected(), 98);
    list.setSelected(99);
    QTest::keyClick(view, Qt::Key_Up);
    EXPECT_EQ(list.selected(), 98);
    EXPECT_EQ(picked.count(), 2);
    list.setSelected(3);
    EXPECT_EQ(view->currentIndex(), 3);
    EXPECT_EQ(picked.count(), 2);
}

TEST_F(Bind, MenuEntryFollowsAndClicksItsButton)
{
    Button entry(form, u"mnuAddFile"_s);
    entry.setCaption(u"Add File .."_s);
    entry.setEnabled(false);
    QAction action;
    bind(action, entry);
    const QSignalSpy clicked(&entry, &Button::clicked);
    action.trigger();
    EXPECT_EQ(clicked.count(), 0) << "a disabled entry does nothing";
    entry.setEnabled(true);
    action.trigger();
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(action.text(), u"Add File .."_s);
}

TEST_F(Bind, TimerRunsByTheClock)
{
    Timer timer(form, u"Timer2"_s, 1);
    runByTheClock(timer, window);
    const QSignalSpy fired(&timer, &Timer::fired);
    QTest::qWait(10);
    EXPECT_EQ(fired.count(), 0);
    timer.setOn(true);
    EXPECT_TRUE(QTest::qWaitFor([&fired] { return fired.count() >= 3; }));
    timer.setOn(false);
    const qsizetype count = fired.count();
    QTest::qWait(10);
    EXPECT_EQ(fired.count(), count);
}

class Tabs : public Bind
{
protected:
    Tabs()
    {
        for (const int number : {4, 2}) {
            view->addPage(number, [this](QWidget *page) {
                ++made;
                return new QWidget(page);
            });
        }
    }

    TabStrip strip{form, u"tabMain"_s, {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E & F"_s}};
    int made = 0;
    PageTabs *view = new PageTabs(strip, u"Pages"_s, &window);
};

TEST_F(Tabs, OnlyPagesThatExistStandInTheStripsOrder)
{
    ASSERT_EQ(view->count(), 2);
    EXPECT_EQ(view->tabText(0), u"C"_s);
    EXPECT_EQ(view->tabText(1), u"E && F"_s);
    EXPECT_EQ(made, 0) << "no page is made before it is shown";
    strip.setTab(4);
    EXPECT_EQ(view->currentIndex(), 1);
    EXPECT_EQ(made, 1);
    strip.setTab(1);
    EXPECT_EQ(view->currentIndex(), 1) << "a tab without a page leaves the view as it is";
    strip.setTabCaption(2, u"Editor"_s);
    EXPECT_EQ(view->tabText(0), u"Editor"_s);
}

TEST_F(Tabs, ClickIsAnActAlsoOnTheTabThatShows)
{
    view->resize(window.size());
    show();
    QList<QPair<int, int>> picks;
    QObject::connect(&strip, &TabStrip::picked, &strip, [&picks](int tab, int previous) {
        picks.append({tab, previous});
    });
    const auto click = [this](int index) {
        QTest::mouseClick(view->tabBar(), Qt::LeftButton, {},
                          view->tabBar()->tabRect(index).center());
    };
    click(0);
    click(1);
    click(1);
    QTest::keyClick(view->tabBar(), Qt::Key_Left);
    strip.setTab(4);
    EXPECT_EQ(picks, (QList<QPair<int, int>>{{2, 0}, {4, 2}, {4, 4}, {2, 4}}));
}

TEST(Mnemonics, EachEntryHasALetterOfItsOwn)
{
    QAction save(u"Save"_s);
    QAction saveAs(u"Save Subtitle File .."_s);
    QAction sound(u"R&&B"_s);
    QAction again(u"Sa"_s);
    const QList<QAction *> actions{&save, &saveAs, &sound, &again};
    const auto texts = [&actions] {
        QStringList all;
        for (const QAction *action : actions) {
            all.append(action->text());
        }
        return all;
    };
    assignMnemonics(actions);
    EXPECT_EQ(texts(),
              (QStringList{u"&Save"_s, u"Save Subtitle &File .."_s, u"&R&&B"_s, u"S&a"_s}));
    const QStringList once = texts();
    assignMnemonics(actions);
    EXPECT_EQ(texts(), once);
}

} // namespace
} // namespace kavro::test
