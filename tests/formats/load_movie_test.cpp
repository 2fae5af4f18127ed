#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;
using Kind = LoadResult::Kind;

const QString subRip = u"1\n00:00:01,000 --> 00:00:02,500\nOne\n"_s;

TEST(LoadMovie, OpensItAndLeavesTheDocument)
{
    FormatsFixture fixture;
    fixture.load(fixture.write(u"a.srt"_s, subRip));
    fixture.document.setFileChanged(true);
    fixture.host.take();
    fixture.host.duration = 61.5;
    for (Button &button : fixture.player.Command8)
        button.setEnabled(false);
    const LoadResult result = fixture.load(fixture.path(u"film.MP3"_s));
    EXPECT_EQ(result.kind, Kind::MovieOnly);
    EXPECT_EQ(fixture.host.take(), "movie film.MP3");
    EXPECT_EQ(fixture.rows(), "00:00:01,000 00:00:02,500| One");
    EXPECT_TRUE(fixture.document.fileChanged());
    EXPECT_EQ(fixture.player.Slider1.maximum(), 61.5);
    EXPECT_TRUE(fixture.player.Command8[5].isEnabled());
    EXPECT_EQ(fixture.player.Label27.caption(), u"Media Player [Stopped]"_s);
    EXPECT_EQ(fixture.control.Text1[0].text().toStdString(),
              crlf("Media analiser started ... \nDate: 2024-03-01, 12:30:15\nFile information:"
                   "  Format: MP3\n  Length: 00:01:01,500\n  Frames: 1537.5 at 25.000 fps\n"
                   "Ready.\n"
                   + std::string(60, '-') + "\n"));
    EXPECT_EQ(fixture.takeMessages(), "");
}

TEST(LoadMovie, FindsTheSubtitleBesideIt)
{
    struct Case
    {
        const char *name;
        QString movie;
        QStringList files;
        QString loaded = {}; ///< empty for none
        Kind kind = Kind::MovieOnly;
        bool looks = true; ///< the setting
        bool plays = true;
    };
    const Case cases[] = {
        {"of the same name", u"Film.avi"_s, {u"film.SRT"_s}, u"film.SRT"_s, Kind::Loaded},
        {"a capital with a longer small form",
         u"İz.avi"_s,
         {u"İz.srt"_s},
         u"İz.srt"_s,
         Kind::Loaded},
        {"the first by name wins",
         u"film.mpg"_s,
         {u"film.txt"_s, u"film.srt"_s},
         u"film.srt"_s,
         Kind::Loaded},
        {"a longer extension never", u"film.avi"_s, {u"film.sami"_s}},
        {"a longer name never", u"film.avi"_s, {u"film2.srt"_s, u"a film.srt"_s}},
        {"another kind of file", u"film.avi"_s, {u"film.doc"_s}},
        {"a sound track brings none", u"film.wav"_s, {u"film.srt"_s}},
        {"the setting is off", u"film.avi"_s, {u"film.srt"_s}, {}, Kind::MovieOnly, false},
        {"without a player",
         u"film.avi"_s,
         {u"film.srt"_s},
         u"film.srt"_s,
         Kind::Loaded,
         true,
         false},
        {"without a player and alone", u"film.avi"_s, {}, {}, Kind::Failed, true, false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        FormatsFixture fixture;
        fixture.settings.Check7[SettingsPage::LoadSubtitle].setOn(c.looks);
        fixture.host.plays = c.plays;
        for (const QString &file : c.files)
            fixture.write(u"films/"_s + file, subRip);
        const LoadResult result = fixture.load(fixture.path(u"films/"_s + c.movie), SubRip);
        EXPECT_EQ(result.kind, c.kind);
        EXPECT_EQ(nameOf(fixture.request.path), c.loaded.isEmpty() ? c.movie : c.loaded);
        EXPECT_EQ(fixture.document.subtitleCount(), c.loaded.isEmpty() ? 0 : 1);
    }
}

TEST(LoadMovie, AsksBeforeItsSubtitleReplacesChanges)
{
    FormatsFixture fixture;
    fixture.settings.Check7[SettingsPage::LoadSubtitle].setOn(true);
    fixture.document.setFileChanged(true);
    fixture.write(u"film.srt"_s, subRip);
    fixture.messageWindow.answer(Answer::Cancel);
    EXPECT_EQ(fixture.load(fixture.path(u"film.avi"_s)).kind, Kind::Cancelled);
    EXPECT_EQ(fixture.messageWindow.shown.size(), 1);
}

} // namespace
} // namespace kavro::test
