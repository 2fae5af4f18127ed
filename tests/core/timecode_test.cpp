#include "core/timecode.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

TEST(TimeCode, AddsAndTakesAwayByField)
{
    const struct
    {
        QStringView a;
        char16_t op;
        QStringView b;
        const char *result;
    } rows[] = {
        // carries
        {u"00:00:59,999", u'+', u"00:00:00,001", "00:01:00,000"},
        {u"00:59:59,999", u'+', u"00:00:00,001", "01:00:00,000"},
        {u"01:00:00,000", u'-', u"00:00:00,001", "00:59:59,999"},
        {u"00:00:00,000", u'-', u"00:00:01,000", "-1:59:59,000"},
        {u"-1:59:59,000", u'+', u"00:00:01,000", "00:00:00,000"},
        {u"-1:59:59,000", u'-', u"01:00:00,000", "-2:59:59,000"},
        // the ends of the range
        {u"99:59:59,999", u'+', u"00:00:00,001", "99:59:59,999"},
        {u"99:59:59,998", u'+', u"00:00:00,001", "99:59:59,999"},
        {u"-9:00:00,000", u'-', u"01:00:00,000", "-9:00:00,000"},
        {u"-8:00:00,000", u'-', u"01:00:00,000", "-9:00:00,000"},
        {u"99.x", u'+', u"01:00:00,000", "99.x"},
        // fields out of their range are carried once
        {u"00:75:00,000", u'+', u"00:00:00,000", "01:15:00,000"},
        {u"00:99:99,000", u'+', u"00:99:99,000", "01:139:138,000"},
        {u"00:00:00,000", u'-', u"00:99:00,000", "-1:-39:00,000"},
        {u"00:00:00,-50", u'+', u"00:00:00,000", "00:00:00,-50"},
        {u"00:00:00,0-5", u'+', u"00:00:00,000", "00:00:00,000"},
        {u"00:00:00, -5", u'+', u"00:00:00,000", "00:00:00,0-5"},
        // what is read, and what never is
        {u"00.00.01.500", u'+', u"", "00:00:01,500"},
        {u"1", u'+', u"", "01:00:00,001"},
        {u"00:00:01,50", u'+', u"", "00:00:01,000"},
        {u"00:00:01,5", u'+', u"", "00:00:01,001"},
        {u"00:00:01,5000", u'+', u"", "00:00:01,000"},
        {u"00:00:01,500 X1:20", u'+', u"", "00:00:01,000"},
        {u"aa:bb:cc,ddd", u'+', u"00:00:01,000", "00:00:01,000"},
        {u" 1: 2: 3,  4", u'+', u"", "01:02:03,004"},
        {u"0\u0661:00:00,000", u'+', u"", "00:00:00,000"},
        {u"", u'+', u"", "00:00:00,000"},
        {u"", u'-', u"", "00:00:00,000"},
        // any other sign
        {u"11:11:11,111", u'*', u"00:00:01,000", "00:00:00,000"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(TimeCodeAdd(row.a, row.b, row.op).toStdString(), row.result)
            << row.a.toString().toStdString() << ' ' << row.b.toString().toStdString();
    }
}

TEST(TimeCode, Milliseconds)
{
    EXPECT_EQ(TimeCodeToMs(u""), 0);
    EXPECT_EQ(TimeCodeToMs(u"01:02:03,004"), 3723004);
    EXPECT_EQ(TimeCodeToMs(u"-1:59:59,000"), -1000);
    EXPECT_EQ(TimeCodeToMs(u"99:99:99,999"), 362439999);
    EXPECT_EQ(TimeCodeToMs(u"nonsense"), 0);
}

TEST(TimeCode, Seconds)
{
    const struct
    {
        QStringView seconds;
        const char *time;
    } rows[] = {
        {u"3661.5", "01:01:01,500"}, {u"5", "00:00:05,000"},          {u"", "00:00:00,000"},
        {u".5", "00:00:00,500"},     {u"5.", "00:00:05,000"},         {u"1.23456", "00:00:01,456"},
        {u"59.999", "00:00:59,999"}, {u"359999.999", "99:59:59,999"}, {u"360000", "100:00:00,000"},
        {u"1,5", "00:00:01,000"},    {u"text", "00:00:00,000"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(SecondsToTimeCode(row.seconds).toStdString(), row.time);
    EXPECT_FALSE(SecondsToTimeCode(QString(500, u'9')).isEmpty());
}

} // namespace
} // namespace kavro
