#include "core/text.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

TEST(Text, ValReadsTheNumberAtTheHead)
{
    const struct
    {
        QStringView text;
        double value;
    } rows[] = {
        {u"", 0},
        {u"12 apples", 12},
        {u"  -7", -7},
        {u"+3", 3},
        {u"- 3", 0},
        {u"--3", 0},
        {u".5", 0.5},
        {u"5.", 5},
        {u"1.2.3", 1.2},
        {u"1,5", 1},
        {u"1e5", 1},
        {u"\t5", 0},
        {u"inf", 0},
        {u"0x10", 0},
        {u"00012", 12},
        {u"0.1", 0.1},
        {u"123456789012345678.5", 123456789012345678.5},
        {u"0.1234567890123456789", 0.1234567890123456789},
        {u".", 0},
        {u"\u0661", 0}, // a digit of another script
    };
    for (const auto &row : rows)
        EXPECT_EQ(Val(row.text), row.value) << row.text.toString().toStdString();
}

TEST(Text, ValStaysFinite)
{
    EXPECT_EQ(Val(QString(400, u'9')), std::numeric_limits<double>::max());
    EXPECT_EQ(Val(u'-' + QString(400, u'9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(intVal(u"99999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(intVal(u"-99999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(intVal(u"-2.9"), -2);
}

TEST(Text, NumbersHaveFifteenDigitsAndNoExponent)
{
    const struct
    {
        double value;
        const char *text;
    } rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {-12, "-12"},
        {0.5, "0.5"},
        {-0.25, "-0.25"},
        {0.1 + 0.2, "0.3"},
        {100.0 / 3, "33.3333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {1e15, "1000000000000000"},
        {1234567890123456789.0, "1234567890123460000"},
        {0.00001, "0.00001"},
        {1.5e-7, "0.00000015"},
        {9.9999999999999995, "10"},
        {std::numeric_limits<double>::infinity(), "0"},
        {std::numeric_limits<double>::quiet_NaN(), "0"},
    };
    QLocale::setDefault(QLocale(QLocale::German));
    for (const auto &row : rows)
        EXPECT_EQ(numberText(row.value).toStdString(), row.text);
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(blankNumberText(3), u" 3"_s);
    EXPECT_EQ(blankNumberText(0), u" 0"_s);
    EXPECT_EQ(blankNumberText(-3), u"-3"_s);
}

TEST(Text, TrimsBlanksAlone)
{
    EXPECT_EQ(trimmed(u"  a b\t "), u"a b\t"_s);
    EXPECT_EQ(leftTrimmed(u" \t a "), u"\t a "_s);
    EXPECT_EQ(rightTrimmed(u" a\u00a0 "), u" a\u00a0"_s);
}

TEST(Text, SlicesAreLenient)
{
    const QString text = u"abcdef"_s;
    EXPECT_EQ(Mid(text, 2, 3), u"bcd"_s);
    EXPECT_EQ(Mid(text, 5), u"ef"_s);
    EXPECT_EQ(Mid(text, 5, 9), u"ef"_s);
    EXPECT_EQ(Mid(text, 7, 1), u""_s);
    EXPECT_EQ(Mid(text, -5, 2), u"ab"_s);
    EXPECT_EQ(Mid(text, 2, -1), u""_s);
    EXPECT_EQ(Left(text, 9), text);
    EXPECT_EQ(Left(text, -1), u""_s);
    EXPECT_EQ(Right(text, 2), u"ef"_s);
    EXPECT_EQ(Right(text, 9), text);
    EXPECT_EQ(Right(text, -1), u""_s);
    EXPECT_EQ(Mid(QStringView(), 1, 2), u""_s);
}

TEST(Text, InStrCountsFromOne)
{
    EXPECT_EQ(InStr(u"abcabc", u"c"), 3);
    EXPECT_EQ(InStr(u"abcabc", u"C"), 0);
    EXPECT_EQ(InStr(u"", u"a"), 0);
}

TEST(Text, LowerCaseKeepsEveryPosition)
{
    const struct
    {
        QString text, lower;
    } rows[] = {
        {u"aZ[`{@ 1"_s, u"az[`{@ 1"_s},
        {u"\u00C4\u0398\u0416\u05D0"_s, u"\u00E4\u03B8\u0436\u05D0"_s},
        {u"\u0130I\u0131"_s, u"ii\u0131"_s},
        {u"\u1E9E\u00DF"_s, u"\u00DF\u00DF"_s},
        {u"\U00010400x"_s, u"\U00010428x"_s},
        {u"A"_s + QChar(0xD801), u"a"_s + QChar(0xD801)},
        {u""_s, u""_s},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(lowerCase(row.text), row.lower);
    }
}

TEST(Text, FramesAndSecondsAreCut)
{
    EXPECT_EQ(cutToWhole(8.2 * 25), 205);
    EXPECT_EQ(cutToWhole(1160 / 1000.0 * 25), 29);
    EXPECT_EQ(cutToWhole(28.999), 28);
    EXPECT_EQ(cutToWhole(-0.5), -1);

    const struct
    {
        double seconds;
        const char *text;
    } rows[] = {
        {0, "0.000"},
        {-1, "0.000"},
        {0.0399999999, "0.040"},
        {0.0399, "0.039"},
        {1.9999, "1.999"},
        {29 / 25.0, "1.160"},
        {1 / 29.97, "0.033"},
        {2 / 29.97, "0.066"},
        {864001 / 25.0, "34560.040"},
        {2.3e300, "1000000000000.000"},
        {std::numeric_limits<double>::quiet_NaN(), "0.000"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(secondsText(row.seconds).toStdString(), row.text);
}

TEST(Text, NoFrameLosesItsMillisecond)
{
    // Every quotient at a rate of whole thousandths, held against whole numbers.
    for (int frame = 0; frame < 200000; frame += 7) {
        const int thousandths = frame * 40;
        EXPECT_EQ(secondsText(frame / 25.0).remove(u'.').toInt(), thousandths);
    }
}

} // namespace
} // namespace kavro
