#include "ui/time_field.h"

#include "controls/form.h"
#include "controls/text_box.h"
#include "ui/bind_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// A field over a text box of the program. Keys are written as letters, with U and D for Up and
/// Down, P and N for Page Up and Page Down, < for Backspace, x for Delete.
class TimeFields : public ::testing::Test
{
protected:
    void make(TimeField::Form kind)
    {
        field = std::make_unique<TimeField>(kind, &window);
        bind(*field, box, u"Time"_s);
    }
    /// With the cursor at `cursor`, or all selected when it is below 0.
    QString after(const QString &text, int cursor, const QString &keys)
    {
        box.setText(text);
        cursor < 0 ? field->selectAll() : field->setCursorPosition(cursor);
        for (const QChar key : keys) {
            const auto named = keyNames.constFind(key);
            named != keyNames.cend() ? QTest::keyClick(field.get(), *named)
                                     : QTest::keyClick(field.get(), key.toLatin1());
        }
        EXPECT_EQ(box.text(), field->text()) << "the program holds what the field shows";
        return field->text();
    }

    const QHash<QChar, Qt::Key> keyNames{{u'U', Qt::Key_Up},        {u'D', Qt::Key_Down},
                                         {u'P', Qt::Key_PageUp},    {u'N', Qt::Key_PageDown},
                                         {u'<', Qt::Key_Backspace}, {u'x', Qt::Key_Delete}};
    Form form{u"frmMain"_s};
    TextBox box{form, u"rtfTimeStart"_s};
    QWidget window;
    std::unique_ptr<TimeField> field;
};

struct FieldCase
{
    QStringView text;
    int cursor;
    QStringView keys;
    QStringView result;
    int end; ///< where the cursor comes to stand
};

TEST_F(TimeFields, FullTimes)
{
    static const FieldCase cases[] = {
        // Typing goes over the digits and jumps over what stands between.
        {u"00:00:04,157", 0, u"123456789", u"12:34:56,789", 12},
        {u"00:00:04,157", 1, u"9", u"09:00:04,157", 3},
        {u"00:00:04,157", 2, u"9", u"00:90:04,157", 4},
        {u"00:00:04,157", 12, u"9", u"00:00:04,157", 12},
        {u"00:00:04,157", -1, u"01", u"01:00:00,000", 3},
        {u"", 0, u"5", u"50:00:00,000", 1},
        // A separator leads to the next part, once behind a part's last digit.
        {u"00:00:04,157", 0, u"0:1", u"00:10:04,157", 4},
        {u"00:00:04,157", 0, u"01:1", u"01:10:04,157", 4},
        {u"00:00:04,157", 7, u".5", u"00:00:04,557", 10},
        {u"00:00:04,157", 0, u"ab/", u"00:00:04,157", 0},
        // The sign stands in the first column alone.
        {u"00:00:04,157", 0, u"-1", u"-1:00:04,157", 3},
        {u"00:00:04,157", 4, u"-", u"00:00:04,157", 4},
        {u"-1:59:59,000", 0, u"0", u"01:59:59,000", 1},
        // What is taken out becomes zeros.
        {u"12:34:56,789", 12, u"<<<<", u"12:34:50,000", 7},
        {u"12:34:56,789", 2, u"x", u"12:04:56,789", 4},
        {u"12:34:56,789", -1, u"x", u"00:00:00,000", 0},
        {u"12:34:56,789", 0, u"<", u"12:34:56,789", 0},
        // Steps of the part under the cursor carry, and stop at the ends.
        {u"00:00:04,157", 7, u"U", u"00:00:05,157", 7},
        {u"00:00:59,157", 8, u"U", u"00:01:00,157", 8},
        {u"00:00:04,157", 1, u"U", u"01:00:04,157", 1},
        {u"00:00:04,157", 12, u"UU", u"00:00:04,159", 12},
        {u"00:00:04,157", 10, u"P", u"00:00:04,167", 10},
        {u"00:01:04,157", 6, u"N", u"00:00:54,157", 6},
        {u"00:00:00,157", 7, u"D", u"00:00:00,157", 7},
        {u"-1:59:59,000", 7, u"UU", u"00:00:01,000", 7},
        {u"99:59:59,000", 7, u"U", u"99:59:59,000", 7},
        // What has no columns is a plain text.
        {u"1:2:3,4", 7, u"5U", u"1:2:3,45", 8},
        {u"abc", 3, u"<", u"ab", 2},
    };
    make(TimeField::Form::Hours);
    for (const FieldCase &c : cases) {
        const QString name = u"%1 at %2: %3"_s.arg(c.text).arg(c.cursor).arg(c.keys);
        EXPECT_EQ(after(c.text.toString(), c.cursor, c.keys.toString()), c.result)
            << qPrintable(name);
        EXPECT_EQ(field->cursorPosition(), c.end) << qPrintable(name);
    }
}

TEST_F(TimeFields, ShortTimes)
{
    static const FieldCase cases[] = {
        {u"00:01,000", 0, u"123456", u"12:34,560", 8}, {u"00:01,000", 0, u"-", u"00:01,000", 0},
        {u"00:59,500", 4, u"U", u"01:00,500", 4},      {u"59:59,500", 4, u"U", u"59:59,500", 4},
        {u"00:00,500", 4, u"D", u"00:00,500", 4},      {u"00:01,000", 8, u"<", u"00:01,000", 7},
    };
    make(TimeField::Form::Minutes);
    for (const FieldCase &c : cases) {
        EXPECT_EQ(after(c.text.toString(), c.cursor, c.keys.toString()), c.result)
            << qPrintable(c.text.toString() + u' ' + c.keys.toString());
        EXPECT_EQ(field->cursorPosition(), c.end) << qPrintable(c.keys.toString());
    }
}

TEST_F(TimeFields, PasteIsTypedAndUndoTakesKeysBack)
{
    make(TimeField::Form::Hours);
    QGuiApplication::clipboard()->setText(u" 01:02:03.456\n"_s);
    box.setText(u"00:00:04,157"_s);
    field->selectAll();
    QTest::keySequence(field.get(), QKeySequence::Paste);
    EXPECT_EQ(box.text(), u"01:02:03,456"_s);
    while (field->isUndoAvailable()) {
        QTest::keySequence(field.get(), QKeySequence::Undo);
    }
    EXPECT_EQ(box.text(), u"00:00:04,157"_s);
}

TEST_F(TimeFields, WhatTheProgramHoldsIsNeverRefused)
{
    make(TimeField::Form::Hours);
    const QSignalSpy typed(&box, &TextBox::typed);
    for (const QString &text : {u"-1:59:59,500"_s, u""_s, u"abc"_s, u"100:00:00,000"_s,
                                u"00:00:99,99"_s, u"00:00:04,157"_s})
    {
        box.setText(text);
        EXPECT_EQ(field->text(), text);
        EXPECT_EQ(box.text(), text);
    }
    EXPECT_EQ(typed.count(), 0);
}

} // namespace
} // namespace kavro::test
