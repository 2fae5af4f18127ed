#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(SubRip, ReadsRows)
{
    expectRows({
        {SubRip, "plain, the numbers of the file don't count",
         u"7\n00:00:01,000 --> 00:00:02,500\nOne\n\n7\n00:00:03,000 --> 00:00:04,000\nTwo\n"
         "lines  \n"_s,
         "00:00:01,000 00:00:02,500| One\n00:00:03,000 00:00:04,000| Two| lines"},
        {SubRip, "leading blanks and lines, a number with zeros",
         u"\n\n  01\n   00:00:01,000 --> 00:00:02,000\n  One\n"_s,
         "00:00:01,000 00:00:02,000| One"},
        {SubRip, "a blank line inside a subtitle doesn't end it",
         u"1\n00:00:01,000 --> 00:00:02,000\nOne\n\nmore\n"_s,
         "00:00:01,000 00:00:02,000| One| more"},
        {SubRip, "a line of digits behind a blank line begins a row",
         u"1\n00:00:01,000 --> 00:00:02,000\nOne\n\n12 angry men\n"_s,
         "00:00:01,000 00:00:02,000| One\n "},
        {SubRip, "digits in the text without a blank line before",
         u"1\n00:00:01,000 --> 00:00:02,000\nOne\n2\n"_s, "00:00:01,000 00:00:02,000| One| 2"},
        {SubRip, "digits right behind the time line are text",
         u"1\n00:00:01,000 --> 00:00:02,000\n\n1984\n"_s, "00:00:01,000 00:00:02,000| 1984"},
        {SubRip, "a number without times leaves them empty",
         u"1\n\n2\n00:00:01,000 --> 00:00:02,000\nx\n"_s, " \n00:00:01,000 00:00:02,000| x"},
        {SubRip, "a time line without a number fills the row last begun",
         u"1\n00:00:01,000 --> 00:00:02,000\nOne\n\n00:00:05,000 --> 00:00:06,000\nTwo\n"_s,
         "00:00:05,000 00:00:06,000| Two"},
        {SubRip, "coordinates behind the end time cost its milliseconds",
         u"1\n00:00:01,500 --> 00:00:02,500 X1:40 X2:600 Y1:20 Y2:50\nx\n"_s,
         "00:00:01,500 00:00:02,000| x"},
        {SubRip, "other separators, two digits of milliseconds",
         u"1\n00.00.01.500 --> 00:00:02,12\nx\n"_s, "00:00:01,500 00:00:02,000| x"},
        {SubRip, "letters for digits, an arrow at the line's start",
         u"1\nab:cd:ef,ghi --> 00:00:02,000\nx\n\n2\n--> 00:00:05,000\ny\n"_s,
         "00:00:00,000 00:00:02,000| x\n00:00:00,000 00:00:05,000| y"},
        {SubRip, "a fourth line has no place", u"1\n00:00:01,000 --> 00:00:02,000\na\nb\nc\nd\n"_s,
         "00:00:01,000 00:00:02,000| a| b| c", 1},
        {SubRip, "zero is no number", u"0\n00:00:01,000 --> 00:00:02,000\nx\n"_s, ""},
    });
}

TEST(SubRip, PutsTextAheadOfTheFirstNumberIntoTheHeader)
{
    FormatsFixture fixture;
    const QString text = u"1\n00:00:01,000 --> 00:00:02,000\nx\n"_s;
    fixture.load(fixture.write(u"a.srt"_s, u"Subtitles\n\n"_s + text));
    EXPECT_EQ(fixture.rows(), "00:00:01,000 00:00:02,000| x");
    EXPECT_EQ(fixture.cell(0, FirstTextColumn), u" Subtitles"_s);
    fixture.load(fixture.write(u"b.srt"_s, text));
    EXPECT_EQ(fixture.cell(0, FirstTextColumn), u"Text #1"_s);

    fixture.add(fixture.write(u"c.srt"_s, u"\nmore\n\n"_s + text));
    EXPECT_EQ(fixture.rows(), "00:00:01,000 00:00:02,000| more\n00:00:03,000 00:00:04,000| x");
}

TEST(SubRip, CutsMarksBlindlyAndKeepsTheStyle)
{
    const struct
    {
        QString line;
        std::string cell;
        std::string style;
    } cases[] = {
        {u"plain"_s, "| plain", "Regular"},
        {u"<b>x</b>"_s, "| x", "Bold"},
        {u"<i>x</i>"_s, "| x", "Italic"},
        {u"<i><b>x</b></i>"_s, "| x", "Italic"},
        {u"<b><i>x</i></b>"_s, "| x", "Italic"},
        {u"a <i>word</i> here"_s, "| i>word</i>", "Italic"},
        {u"a<i>"_s, "", "Italic"},
        {u"<B>x</B>"_s, "| <B>x</B>", "Regular"},
        {u"<u>x</u>"_s, "| <u>x</u>", "Regular"},
        {u"<b></b>"_s, "", "Bold"},
    };
    for (const auto &c : cases) {
        const QString text = u"1\n00:00:01,000 --> 00:00:02,000\n"_s + c.line;
        const std::string rows = "00:00:01,000 00:00:02,000" + c.cell;
        const std::string font = "Arial;Western;" + c.style + ";16";
        expectRows({{SubRip, qPrintable(c.line), text, rows.c_str(), 0, font.c_str()}});
    }
}

TEST(SubRip, TakesTheStyleOfTheLastLineThatHasAPlace)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"a.srt"_s,
                               u"1\n00:00:01,000 --> 00:00:02,000\n<b>a</b>\n<i>b</i>\n\n"
                               "2\n00:00:03,000 --> 00:00:04,000\n<i>a</i>\nb\n\n"
                               "3\n00:00:05,000 --> 00:00:06,000\na\nb\n<b>c</b>\n<i>d</i>\n"_s));
    EXPECT_EQ(fixture.editor.lstFont.items(),
              (QStringList{QString(), u"Arial;Western;Italic;16"_s, u"Arial;Western;Regular;16"_s,
                           u"Arial;Western;Bold;16"_s}));
}

} // namespace
} // namespace kavro::test
