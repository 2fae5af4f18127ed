#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(FrameFormats, ReadRows)
{
    const QString head = u"{HEAD\nDVDTITLE=x\n}\n"_s;
    expectRows({
        {MicroDvd, "two lines and codes that stay", u"{25}{50}{y:i}a|b\n {75}{100}c \n"_s,
         "00:00:01,000 00:00:02,000| {y:i}a| b\n00:00:03,000 00:00:04,000| c"},
        {MicroDvd, "all behind an empty line is lost", u"{25}{50}a\n\n{75}{100}b\n"_s,
         "00:00:01,000 00:00:02,000| a"},
        {MicroDvd, "an empty line at the top", u"\n{25}{50}a\n"_s, ""},
        {MicroDvd, "an open brace", u"{25}{50\n"_s, "00:00:01,000 00:00:00,000| {50"},
        {MicroDvd, "letters for digits", u"{x}{DEFAULT}a\n"_s, "00:00:00,000 00:00:00,000| a"},
        {MicroDvd, "an empty piece, and one without a place", u"{25}{50}a||b|c\n"_s,
         "00:00:01,000 00:00:02,000| a|| b", 1},
        {Phoenix, "other spacing, and the last character is cut whatever it is", u"25,50,\"ab\n"_s,
         "00:00:01,000 00:00:00,000| a"},
        {Phoenix, "an empty line is a subtitle", u"     25,     50, \"a\"\n\n"_s,
         "00:00:01,000 00:00:02,000| a\n00:00:00,000 00:00:00,000"},
        {PowerDivX, "an hour of one digit shifts all", u"{0:00:01}{0:00:02}a\n"_s,
         "00:00:01,000 00:00:00,000"},
        {SonicDvd, "one frame is four hundredths, which no zero pads",
         u"0001  00:00:01:01  00:00:02:05  a\n\n"_s, "00:00:01,000 00:00:02,200| a"},
        {SonicDvd, "a fourth text line has no place",
         u"0001  00:00:01:00  00:00:02:00  a\nb\nc\nd\n\n"_s, "00:00:01,000 00:00:02,000| a| b| c",
         1},
        {DvdSubtitle, "two subtitles",
         head
             + u"{T 00:00:01:50\na\nb\n}\n{T 00:00:02:25\n\n}\n"
               "{T 00:01:20:00\nc\n}\n{T 00:01:23:45\n\n}\n"_s,
         "00:00:01,500 00:00:00,250| a| b\n00:01:20,000 00:01:02,450| c"},
        {DvdSubtitle, "an end that lies ahead of its start",
         head + u"{T 00:00:57:00\na\n}\n{T 00:00:59:00\n\n}\n"_s, "00:00:57,000 00:00:05,000| a"},
        {DvdSubtitle, "cut behind the first block", head + u"{T 00:00:01:50\na\n}\n"_s,
         "00:00:01,500 | a", 1},
        {DvdSubtitle, "cut behind the end", head + u"{T 00:00:01:50\na\n}\n{T 00:00:02:25\n"_s,
         "00:00:01,500 00:00:00,250| a", 1},
        {DvdSubtitle, "a fourth text line has no place",
         head + u"{T 00:00:01:50\na\nb\nc\nd\n}\n{T 00:00:10:00\n\n}\n"_s,
         "00:00:01,500 00:00:01,000| a| b| c", 1},
    });
}

TEST(Frames, CountByTheRateInForce)
{
    struct Case
    {
        QString rate;
        QString time;
        const char *frame;
        const char *back;
    };
    const Case cases[] = {
        {u"25.000"_s, u"00:00:01,000"_s, "25", "00:00:01,000"},
        {u"30.000"_s, u"00:00:00,833"_s, "24", "00:00:00,800"},
        // A product within 1e-9 of a whole number is that number.
        {u"25.000"_s, u"00:00:01,160"_s, "29", "00:00:01,160"},
        {u"25.000"_s, u"00:00:08,200"_s, "205", "00:00:08,200"},
        {u"25.000"_s, u"00:00:00,039"_s, "0", "00:00:00,000"},
        // A frame read back is one frame earlier at the most, and creeps down.
        {u"23.970"_s, u"00:01:00,000"_s, "1438", "00:00:59,991"},
        {u"23.970"_s, u"00:00:59,991"_s, "1437", "00:00:59,949"},
        {u"29.970"_s, u"12:00:00,000"_s, "1294704", "12:00:00,000"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.time.toStdString());
        FormatsFixture fixture;
        fixture.document.frameRate = c.rate;
        fixture.setRows({{u"1"_s, c.time, c.time, u" a"_s}});
        const std::string frame = c.frame;
        EXPECT_EQ(fixture.written(MicroDvd), "{" + frame + "}{" + frame + "}a\r\n");
        fixture.load(fixture.path(u"written.sub"_s), MicroDvd);
        EXPECT_EQ(fixture.rows(), std::string(c.back) + ' ' + c.back + "| a");
    }
}

} // namespace
} // namespace kavro::test
