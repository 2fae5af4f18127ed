#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// Saves the document in a format at 25 frames a second and returns what the log told, a line each
/// without the format's name and the words round the loss.
std::string toldOf(FormatsFixture &fixture, int format)
{
    EXPECT_EQ(fixture.save(u"film"_s, format).kind, WriteResult::Kind::Written);
    const QString head = formatName(format) + u" can't hold the "_s;
    QStringList told;
    for (const QString &line : fixture.control.Text1[0].text().split(u"\r\n"_s, Qt::SkipEmptyParts))
    {
        EXPECT_TRUE(line.startsWith(head)) << line.toStdString();
        told.append(line.sliced(head.size()).remove(u" subtitles."_s).remove(u" subtitle."_s));
    }
    return told.join(u", "_s).toStdString();
}

TEST(Losses, AreToldOnceASave)
{
    // Rows 2 and 3 have times that are no frame at 25.
    const QList<GridRow> rows{
        {u"1"_s, u"00:00:01,000"_s, u"00:00:02,480"_s, u" first"_s, u" second"_s, u" third"_s},
        {u"2"_s, u"00:00:03,040"_s, u"00:00:04,005"_s, u" a"_s, QString(), u" behind"_s},
        {u"3"_s, u"09:59:59,500"_s, u"10:00:00,120"_s, u" b"_s},
        {u"4"_s, u"12:00:00,000"_s, u"12:00:01,000"_s, u" bold"_s},
        {u"5"_s, u"-1:59:59,000"_s, u"12:00:03,000"_s, u" c"_s},
    };
    const struct
    {
        FormatId format;
        const char *told;
    } cases[] = {
        {DvdSubtitle, "milliseconds of 1, text behind an empty line of 1, style of 1"},
        {JacoSub, "milliseconds of 1, hours above nine of 3, minus sign of 1, "
                  "text behind an empty line of 1"},
        {MicroDvd, "milliseconds of 2, minus sign of 1, text behind an empty line of 1, "
                   "style of 1"},
        {Phoenix, "milliseconds of 2, minus sign of 1, text behind an empty line of 1, style of 1"},
        {PowerDivX, "milliseconds of 3, text behind an empty line of 1, style of 1"},
        {RealTime, "milliseconds of 1, hours above nine of 3, minus sign of 1, "
                   "text behind an empty line of 1, style of 1"},
        {Sami, "minus sign of 1, text behind an empty line of 1, style of 1"},
        {SonicDvd, "milliseconds of 2, text behind an empty line of 1, style of 1"},
        {SubRip, "text behind an empty line of 1"},
        {SubStationAlpha, "milliseconds of 1, hours above nine of 3, minus sign of 1, "
                          "text behind an empty line of 1, style of 1"},
        {SubViewer1, "milliseconds of 3, text behind an empty line of 1, style of 1"},
        {SubViewer2, "milliseconds of 1, text behind an empty line of 1, style of 1"},
        {TmPlayer, "milliseconds of 3, text behind an empty line of 1, style of 1"},
        {TurboTitler, "milliseconds of 1, hours above nine of 3, minus sign of 1, "
                      "text behind an empty line of 1, style of 1"},
        {ViPlay, "text behind an empty line of 1, style of 1"},
        {ZeroG, "milliseconds of 1, hours above nine of 3, minus sign of 1, "
                "text behind an empty line of 1, style of 1"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(formatName(c.format).toStdString());
        FormatsFixture fixture;
        fixture.setRows(rows);
        fixture.editor.lstFont.setItem(4, fixture.document.makeFontEntry({}, u"Bold"_s, u"16"_s));
        // The one time before zero is written when the person wants it.
        fixture.messageWindow.answer(Answer::Yes);
        EXPECT_EQ(toldOf(fixture, c.format), c.told);
    }
}

TEST(Losses, OfFramesGoByTheRate)
{
    const struct
    {
        FormatId format;
        QString rate;
        QString time;
        const char *told;
    } cases[] = {
        {MicroDvd, u"25.000"_s, u"00:00:08,200"_s, ""},
        {MicroDvd, u"30.000"_s, u"00:00:08,200"_s, ""},
        {MicroDvd, u"24.000"_s, u"00:00:08,200"_s, "milliseconds of 1"},
        {MicroDvd, u"29.970"_s, u"00:00:01,000"_s, "milliseconds of 1"},
        // Frames within a second are kept when they are whole and have two digits.
        {SonicDvd, u"25.000"_s, u"00:00:01,400"_s, ""},
        {SonicDvd, u"25.000"_s, u"00:00:01,500"_s, "milliseconds of 1"},
        {SonicDvd, u"30.000"_s, u"00:00:01,500"_s, ""},
        {SonicDvd, u"25.000"_s, u"00:00:01,360"_s, "milliseconds of 1"},
        {SonicDvd, u"25.000"_s, u"00:00:01,401"_s, "milliseconds of 1"},
        {SonicDvd, u"23.970"_s, u"00:00:01,500"_s, "milliseconds of 1"},
        {SonicDvd, u"23.970"_s, u"00:00:01,000"_s, ""},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE((formatName(c.format) + c.rate + c.time).toStdString());
        FormatsFixture fixture;
        fixture.document.frameRate = c.rate;
        fixture.setRows({{u"1"_s, c.time, c.time, u" a"_s}});
        EXPECT_EQ(toldOf(fixture, c.format), c.told);
    }
}

TEST(Losses, KeepTheLogOpenWhenWindowsStayOpen)
{
    const struct
    {
        QString time;
        bool closes; ///< the setting
        bool isOpen; ///< the log, after the save
    } cases[] = {
        {u"00:00:01,000"_s, false, false},
        {u"00:00:01,234"_s, false, true},
        {u"00:00:01,234"_s, true, false},
    };
    for (const auto &c : cases) {
        FormatsFixture fixture;
        fixture.settings.Check3.setOn(c.closes);
        fixture.setRows({{u"1"_s, c.time, c.time, u" a"_s}});
        fixture.writer.CreateSubFile({.format = TmPlayer,
                                      .lastRow = 1,
                                      .showProgress = true,
                                      .path = fixture.path(u"film"_s)});
        EXPECT_EQ(fixture.frmControl.isOpen(), c.isOpen) << c.time.toStdString();
    }
}

} // namespace
} // namespace kavro::test
