// Every reader over files with a fault that are made here from its own writer's file.

#include "formats/detection.h"
#include "tests/formats/formats_fixture.h"

#include <gtest/gtest.h>

#include <array>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;
using Kind = LoadResult::Kind;

enum Fault { Empty, OneLine, Cut, NoLineEnd, TooMany, Letters, Foreign, StrangeBytes, FaultCount };

const std::array<const char *, FaultCount> faultNames{
    "empty", "oneLine", "cut", "noLineEnd", "tenThousand", "letters", "foreign", "bytesOfNoCode"};

/// What becomes of a fault: how the load ended, how many rows there are, and the last of them; the
/// number of pieces without a place, which are asked about once, in front.
struct Row
{
    FormatId format;
    std::array<const char *, FaultCount> outcomes;
};

const char *const noText = "failed: The file is empty.";
const char *const full = "limit";
const char *const noRow = "0 ";
const char *const whole = "2 00:00:01,480 00:00:01,960| Hello| you";
const char *const zeros = "2 00:00:00,000 00:00:00,000| Hello| you";
const char *const cutText = "2 00:00:01,480 00:00:01,960| Hel";
const char *const strange = "2 00:00:01,480 00:00:01,960| H\u0081þÿ| you";
const char *const subRip = "other format, 2 00:00:01,480 00:00:01,960| Hello| you";

const Row table[] = {
    {DvdSubtitle,
     {noText, noRow, "1 skipped, 2 00:00:01,480 | Hel", "2 00:00:01,480 00:00:00,960| Hello| you",
      full, zeros, subRip, "2 00:00:01,480 00:00:00,960| H\u0081þÿ| you"}},
    {JacoSub, {noText, noRow, cutText, whole, full, zeros, subRip, strange}},
    {MicroDvd,
     {noText, "1 00:00:00,480 00:00:00,960| Hello| you", cutText, whole, full, zeros, subRip,
      strange}},
    {Phoenix,
     {noText, "1 00:00:00,480 00:00:00,960| Hello| you", "2 00:00:01,480 00:00:01,960| He", whole,
      full, zeros, "10 00:00:00,000 00:00:00,000", strange}},
    {PowerDivX,
     {noText, "1 00:00:00,000 00:00:00,000| Hello| you", "2 00:00:01,000 00:00:01,000| Hel",
      "2 00:00:01,000 00:00:01,000| Hello| you", full, zeros, "10 00:00:00,000 00:00:00,000",
      "2 00:00:01,000 00:00:01,000| H\u0081þÿ| you"}},
    {RealTime, {noText, noRow, cutText, whole, full, zeros, subRip, strange}},
    {Sami, {noText, noRow, "1 skipped, 2 00:00:01,480 | Hel", whole, full, zeros, subRip, strange}},
    {SonicDvd,
     {noText, "1 skipped, 1 00:00:00,480 00:00:00,960| Hello",
      "1 skipped, 2 00:00:01,480 00:00:01,960| Hel",
      "1 skipped, 2 00:00:01,480 00:00:01,960| Hello| you", full, zeros, subRip, strange}},
    {SubRip, {noText, "1  ", cutText, whole, full, noRow, subRip, strange}},
    {SubStationAlpha, {noText, noRow, cutText, whole, full, zeros, subRip, strange}},
    {SubViewer1,
     {noText, "1 skipped, 0 ", "1 skipped, 2 00:00:01,000 | Hel",
      "1 skipped, 3 00:00:00,000 | ******** END SCRIPT ********", full,
      "1 skipped, 3 00:00:00,000 | ******** END SCRIPT ********", subRip,
      "1 skipped, 3 00:00:00,000 | ******** END SCRIPT ********"}},
    {SubViewer2,
     {noText, noRow, "1 skipped, 2 00:00:01,480 00:00:01,960| Hel",
      "1 skipped, 2 00:00:01,480 00:00:01,960| Hello| you", full, zeros, subRip, strange}},
    {TmPlayer,
     {noText, "1 skipped, 1 00:00:00,400 | Hello| you", "1 skipped, 2 00:00:01,400 | Hel",
      "2 00:00:01,400 00:00:01,900| Hello| you", full, zeros, whole,
      "2 00:00:01,400 00:00:01,900| H\u0081þÿ| you"}},
    {TurboTitler,
     {noText, "1 00:00:00,480 00:00:00,960| Hello| you", cutText, whole, full, zeros, subRip,
      strange}},
    {ViPlay, {noText, noRow, cutText, whole, full, zeros, "9 00:00:00,000 00:00:00,000", strange}},
    {ZeroG, {noText, noRow, cutText, whole, full, zeros, subRip, strange}},
};

/// Subtitles of 480 ms with two text lines, as the format's writer has them.
QByteArray fileOf(int format, int subtitles)
{
    FormatsFixture fixture;
    QList<GridRow> rows;
    for (int i = 0; i < subtitles; ++i) {
        const QString code =
            u"00:%1:%2,"_s.arg(i / 60 % 60, 2, 10, QChar(u'0')).arg(i % 60, 2, 10, QChar(u'0'));
        rows.append({QString(), code + u"480"_s, code + u"960"_s, u" Hello"_s, u" you"_s});
    }
    fixture.setRows(rows);
    return QByteArray::fromStdString(fixture.written(format));
}

QByteArray withFault(int format, Fault fault)
{
    const QByteArray good = fileOf(format, 2);
    switch (fault) {
    case Empty: return {};
    case OneLine: return good.first(good.indexOf('\n') + 1);
    case Cut: return good.first(good.lastIndexOf("Hello") + 3);
    case NoLineEnd: return good.first(good.size() - 2);
    case TooMany: return fileOf(format, 10000);
    case Letters: {
        QByteArray letters = good;
        for (char &c : letters)
            c = c >= '0' && c <= '9' ? 'x' : c;
        return letters;
    }
    case Foreign: return fileOf(format == SubRip ? ViPlay : SubRip, 2);
    // No UTF-8, and a byte that Windows-1252 has no character for.
    case StrangeBytes: return QByteArray(good).replace("Hello", "H\x81\xfe\xff");
    case FaultCount: break;
    }
    return {};
}

/// Every fault has one message, and nothing else has.
std::string outcomeOf(const FormatsFixture &fixture, const LoadResult &result)
{
    QStringList told;
    for (const Message &message : fixture.messageWindow.shown)
        told.append(message.title);
    switch (result.kind) {
    case Kind::Failed:
        EXPECT_EQ(told, QStringList(u"Error"_s));
        return "failed: " + result.error.toStdString();
    case Kind::LimitReached: EXPECT_EQ(told, QStringList(u"Reading limit"_s)); return full;
    default: break;
    }
    const bool skipped = result.skippedLines > 0;
    EXPECT_EQ(told.removeAll(u"Error"_s), skipped ? 1 : 0);
    const QString last = QString::fromStdString(fixture.rows()).section(u'\n', -1);
    return (skipped ? std::to_string(result.skippedLines) + " skipped, " : "")
           + (told == QStringList(u"Wrong format."_s) ? "other format, " : "")
           + std::to_string(fixture.document.subtitleCount()) + " " + last.toStdString();
}

using BadInput = testing::TestWithParam<std::tuple<std::size_t, std::size_t>>;

TEST_P(BadInput, IsToldOrReadAsFarAsItGoes)
{
    const Row &row = table[std::get<0>(GetParam())];
    const auto fault = static_cast<Fault>(std::get<1>(GetParam()));
    FormatsFixture fixture;
    fixture.load(fixture.write(u"old.srt"_s, u"1\n00:00:09,000 --> 00:00:10,000\nold\n"_s));
    const std::string old = fixture.rows();
    const QString path =
        fixture.writeBytes(u"film"_s + SetSubFileExt(row.format), withFault(row.format, fault));
    const LoadResult result = fixture.load(
        path, fault == Foreign && !looksAtLines(row.format) ? UnknownFormat : row.format);

    EXPECT_EQ(outcomeOf(fixture, result), row.outcomes[fault]);
    EXPECT_FALSE(fixture.document.editorBlocked);
    EXPECT_TRUE(result.kind != Kind::Failed || fixture.rows() == old);
    EXPECT_TRUE(result.kind != Kind::LimitReached || fixture.document.subtitleCount() == 0);
}

INSTANTIATE_TEST_SUITE_P(Readers, BadInput,
                         testing::Combine(testing::Range<std::size_t>(0, std::size(table)),
                                          testing::Range<std::size_t>(0, FaultCount)),
                         [](const auto &one) {
                             QString name = formatName(table[std::get<0>(one.param)].format);
                             name.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
                             return name.toStdString() + "_" + faultNames[std::get<1>(one.param)];
                         });

} // namespace
} // namespace kavro::test
