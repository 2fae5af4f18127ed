#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// Writes one subtitle with these times and the text "a" at a frame rate.
std::string writtenAt(const QString &rate, int format, const QString &start, const QString &end)
{
    FormatsFixture fixture;
    fixture.document.frameRate = rate;
    fixture.setRows({{u"1"_s, start, end, u" a"_s}});
    return fixture.written(format);
}

/// The rows of a text at a frame rate.
std::string readAt(const QString &rate, int format, const QString &text)
{
    FormatsFixture fixture;
    fixture.document.frameRate = rate;
    fixture.load(fixture.write(u"a"_s, text), format);
    return fixture.rows();
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
        const std::string frame = c.frame;
        EXPECT_EQ(writtenAt(c.rate, MicroDvd, c.time, c.time),
                  "{" + frame + "}{" + frame + "}a\r\n");
        const std::string back = c.back;
        EXPECT_EQ(readAt(c.rate, MicroDvd, QString::fromStdString("{" + frame + "}{0}a\n")),
                  back + " 00:00:00,000| a");
    }
}

TEST(MicroDvd, ReadsUpToAnEmptyLine)
{
    expectRows(MicroDvd,
               {
                   {"two lines and codes that stay", u"{25}{50}{y:i}a|b\n {75}{100}c \n"_s,
                    "00:00:01,000 00:00:02,000| {y:i}a| b\n00:00:03,000 00:00:04,000| c"},
                   {"all behind an empty line is lost", u"{25}{50}a\n\n{75}{100}b\n"_s,
                    "00:00:01,000 00:00:02,000| a"},
                   {"an empty line at the top", u"\n{25}{50}a\n"_s, ""},
                   {"an open brace", u"{25}{50\n"_s, "00:00:01,000 00:00:00,000| {50"},
                   {"letters for digits", u"{x}{DEFAULT}a\n"_s, "00:00:00,000 00:00:00,000| a"},
                   {"an empty piece, and one without a place", u"{25}{50}a||b|c\n"_s,
                    "00:00:01,000 00:00:02,000| a|| b", 1},
               });
}

TEST(Phoenix, ReadsFramesByPlace)
{
    expectRows(Phoenix,
               {
                   {"its own lines", u"     25,     50, \"a|b\"\n     75,    100, \"c\"\n"_s,
                    "00:00:01,000 00:00:02,000| a| b\n00:00:03,000 00:00:04,000| c"},
                   {"other spacing, and the last character is cut whatever it is",
                    u"25,50,\"ab\n"_s, "00:00:01,000 00:00:00,000| a"},
                   {"an empty line is a subtitle", u"     25,     50, \"a\"\n\n"_s,
                    "00:00:01,000 00:00:02,000| a\n00:00:00,000 00:00:00,000"},
               });
    EXPECT_EQ(writtenAt(u"25.000"_s, Phoenix, u"00:00:01,000"_s, u"11:06:40,000"_s),
              "     25,1000000, \"a\"\r\n");
}

TEST(PowerDivX, DropsMilliseconds)
{
    expectRows(PowerDivX,
               {
                   {"two subtitles", u"{00:00:01}{00:00:02}a|b\n{00:00:03}{00:00:04}c\n"_s,
                    "00:00:01,000 00:00:02,000| a| b\n00:00:03,000 00:00:04,000| c"},
                   {"an hour of one digit shifts all", u"{0:00:01}{0:00:02}a\n"_s,
                    "00:00:01,000 00:00:00,000"},
               });
    EXPECT_EQ(writtenAt(u"25.000"_s, PowerDivX, u"00:00:01,900"_s, u"00:00:02,100"_s),
              "{00:00:01}{00:00:02}a\r\n");
}

TEST(SonicDvd, KeepsFractionsOfFramesAsTheyAre)
{
    expectRows(
        SonicDvd,
        {
            {"two subtitles",
             u"0001  00:00:01:12  00:00:02:24  a\nb\n\n0002  00:00:03:00  00:00:04:00  c\n\n"_s,
             "00:00:01,480 00:00:02,960| a| b\n00:00:03,000 00:00:04,000| c"},
            {"one frame is four hundredths, which no zero pads",
             u"0001  00:00:01:01  00:00:02:05  a\n\n"_s, "00:00:01,000 00:00:02,200| a"},
            {"no empty line at the end", u"0001  00:00:01:00  00:00:02:00  a"_s,
             "00:00:01,000 00:00:02,000| a", 1},
            {"a fourth text line has no place", u"0001  00:00:01:00  00:00:02:00  a\nb\nc\nd\n\n"_s,
             "00:00:01,000 00:00:02,000| a| b| c", 1},
        });
    EXPECT_EQ(writtenAt(u"25.000"_s, SonicDvd, u"00:00:01,500"_s, u"00:00:02,280"_s),
              "0001  00:00:01:12.5  00:00:02:7  a\r\n\r\n");
    EXPECT_EQ(writtenAt(u"25.000"_s, SonicDvd, u"00:00:01,290"_s, u"00:00:02,999"_s),
              "0001  00:00:01:7.25  00:00:02:24.75  a\r\n\r\n");
}

TEST(DvdSubtitle, DropsADigitOfTheEnd)
{
    const QString head = u"{HEAD\nDVDTITLE=x\n}\n"_s;
    expectRows(DvdSubtitle,
               {
                   {"two subtitles",
                    head
                        + u"{T 00:00:01:50\na\nb\n}\n{T 00:00:02:25\n\n}\n"
                          "{T 00:01:20:00\nc\n}\n{T 00:01:23:45\n\n}\n"_s,
                    "00:00:01,500 00:00:00,250| a| b\n00:01:20,000 00:01:02,450| c"},
                   {"an end that lies ahead of its start",
                    head + u"{T 00:00:57:00\na\n}\n{T 00:00:59:00\n\n}\n"_s,
                    "00:00:57,000 00:00:05,000| a"},
                   {"cut behind the text", head + u"{T 00:00:01:50\na\n"_s, "00:00:01,500 | a", 1},
                   {"cut behind the first block", head + u"{T 00:00:01:50\na\n}\n"_s,
                    "00:00:01,500 | a", 1},
                   {"cut behind the end", head + u"{T 00:00:01:50\na\n}\n{T 00:00:02:25\n"_s,
                    "00:00:01,500 00:00:00,250| a", 1},
                   {"a fourth text line has no place",
                    head + u"{T 00:00:01:50\na\nb\nc\nd\n}\n{T 00:00:10:00\n\n}\n"_s,
                    "00:00:01,500 00:00:01,000| a| b| c", 1},
               });
}

} // namespace
} // namespace kavro::test
