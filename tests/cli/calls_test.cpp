#include "tests/cli/cli_fixture.h"

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

struct WrongCall
{
    const char *name;
    QString arguments; ///< separated by ";"
    const char *err;
};

class WrongCalls : public CliTest, public testing::WithParamInterface<WrongCall>
{};

TEST_P(WrongCalls, EndWithTwoInOneLine)
{
    const QStringList before = filesIn();
    const CliRun expected{.status = 2, .out = {}, .err = std::string(GetParam().err) + '\n'};
    EXPECT_EQ(run(GetParam().arguments.split(u';', Qt::SkipEmptyParts)), expected);
    EXPECT_EQ(filesIn(), before);
}

const WrongCall wrongCalls[] = {
    {"noVerb", u""_s, "kavro-cli: a verb is missing, see kavro-cli --help"},
    {"optionsAlone", u"--app-dir;x;--answer=no"_s,
     "kavro-cli: a verb is missing, see kavro-cli --help"},
    {"verbOfLater", u"run;x.mcr"_s, "kavro-cli: no verb \"run\", see kavro-cli --help"},
    {"unknownOption", u"--fast"_s, "kavro-cli: no option \"--fast\", see kavro-cli --help"},
    {"optionOfNoVerb", u"formats;--to;9"_s, "kavro-cli formats: Unknown option 'to'."},
    {"formatsWithArgument", u"formats;x"_s, "kavro-cli formats: takes no arguments"},
    {"noInput", u"convert;--to;12;-o;x"_s, "kavro-cli convert: INPUT is missing"},
    {"noFormat", u"convert;film.srt;-o;x"_s, "kavro-cli convert: --to FORMAT is missing"},
    {"noOutput", u"convert;film.srt;--to;12"_s,
     "kavro-cli convert: takes either -o OUT or --out-dir DIR"},
    {"twoOutputs", u"convert;film.srt;--to;12;-o;x;--out-dir;y"_s,
     "kavro-cli convert: takes either -o OUT or --out-dir DIR"},
    {"folderAsFile", u"convert;film.srt;--to;12;-o;y/"_s,
     "kavro-cli convert: -o names no file, for a folder use --out-dir"},
    {"pointsAsFile", u"convert;film.srt;--to;12;-o;y/.."_s,
     "kavro-cli convert: -o names no file, for a folder use --out-dir"},
    {"sharedExtension", u"convert;film.srt;--to;.sub;-o;x"_s,
     "kavro-cli convert: \".sub\" is no format or more than one, see kavro-cli formats"},
    {"formatOutside", u"dump;film.srt;--from;17"_s,
     "kavro-cli dump: \"17\" is no format or more than one, see kavro-cli formats"},
    {"valueMissing", u"convert;film.srt;-o"_s, "kavro-cli convert: Missing value after '-o'."},
    {"rate", u"dump;film.srt;--fps;26"_s,
     "kavro-cli dump: \"26\" is no frame rate, those are 23.970, 24.000, 25.000, 29.970, 30.000"},
    {"encoding", u"dump;film.srt;--encoding;klingon"_s,
     "kavro-cli dump: \"klingon\" is no known encoding"},
    {"answer", u"dump;film.srt;--answer;maybe"_s,
     "kavro-cli dump: \"maybe\" is no answer, those are yes, no, ok, cancel"},
    {"twoDumps", u"dump;film.srt;small.srt"_s, "kavro-cli dump: takes one INPUT"},
    {"twoDiagnoses", u"diagnose;film.srt;small.srt"_s, "kavro-cli diagnose: takes one INPUT"},
    {"unknownRepair", u"diagnose;film.srt;--repair;empty,all"_s,
     "kavro-cli diagnose: --repair takes overlapping, invalid, empty, not \"all\""},
    {"diagnoseIntoAFolder", u"diagnose;film.srt;-o;y/"_s, "kavro-cli diagnose: -o names no file"},
    {"diagnoseIntoThisFolder", u"diagnose;film.srt;-o;."_s, "kavro-cli diagnose: -o names no file"},
    {"noScript", u"drive;none.drive"_s, "kavro-cli drive: none.drive can't be read"},
    {"folderAsScript", u"drive;."_s, "kavro-cli drive: . can't be read"},
};

INSTANTIATE_TEST_SUITE_P(Cases, WrongCalls, testing::ValuesIn(wrongCalls),
                         [](const auto &one) { return one.param.name; });

TEST_F(CliTest, HelpAndVersionWorkOnTheProgramAndOnEachVerb)
{
    for (const QString &verb :
         {u""_s, u"formats"_s, u"convert"_s, u"dump"_s, u"diagnose"_s, u"drive"_s})
    {
        const QStringList before = verb.isEmpty() ? QStringList() : QStringList(verb);
        EXPECT_EQ(run(before + QStringList{u"--version"_s}),
                  (CliRun{.status = 0, .out = "Kavro 4.0\n", .err = {}}));
        const CliRun help = run(before + QStringList{u"--help"_s});
        EXPECT_EQ(help.status, 0);
        EXPECT_TRUE(help.err.empty());
        EXPECT_EQ(help.out.find("Usage: kavro-cli " + verb.toStdString()), 0U) << help.out;
    }
    const std::string help = run({u"--help"_s}).out;
    EXPECT_EQ(help.find("\n  run "), std::string::npos);
}

TEST_F(CliTest, CommonOptionsMayStandAheadOfTheVerb)
{
    const CliRun expected = run({u"dump"_s, u"film.srt"_s, u"--answer"_s, u"no"_s});
    EXPECT_EQ(run({u"--answer"_s, u"no"_s, u"dump"_s, u"film.srt"_s}), expected);
    EXPECT_EQ(run({u"--answer=no"_s, u"dump"_s, u"film.srt"_s}), expected);
    EXPECT_EQ(expected.status, 0);
}

TEST_F(CliTest, FormatsPrintsATableOrAnArray)
{
    const CliRun table = run({u"formats"_s});
    EXPECT_EQ(table.out.find("id  name                    extension  time base\n"
                             " 1  DVD Subtitle            .sub       hundredths of a second\n"),
              0U);
    EXPECT_EQ(std::ranges::count(table.out, '\n'), 17);
    const CliRun json = run({u"formats"_s, u"--json"_s});
    EXPECT_EQ(json.out.find(R"([{"id": 1, "name": "DVD Subtitle", "extension": ".sub", )"
                            R"("timeBase": "hundredths of a second"}, {"id": 2,)"),
              0U);
    EXPECT_EQ(std::ranges::count(json.out, '\n'), 1);
}

} // namespace
} // namespace kavro::test
