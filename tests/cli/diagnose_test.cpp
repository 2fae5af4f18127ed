#include "tests/cli/cli_fixture.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

/// Line 2 begins ahead of line 1's end, line 3 is empty, line 4 ends ahead of its start.
const QByteArray faulty = "{25}{75}one two\n{50}{100}three|four\n{125}{150}\n{200}{175}five\n";

class DiagnoseCall : public CliTest
{
protected:
    DiagnoseCall() { write(u"scan.sub"_s, faulty); }

    /// `line` is split at blanks.
    CliRun diagnose(const QString &line)
    {
        return run((u"diagnose "_s + line + u" --from microdvd"_s).split(u' '));
    }
};

TEST_F(DiagnoseCall, PrintsTables)
{
    const std::string expected = "FOLDER/scan.sub\n"
                                 "format           MicroDVD\n"
                                 "lines            4\n"
                                 "words            6\n" // the blanks where two texts meet make one
                                 "multi lines      1\n"
                                 "displaying time  00:00:04,000\n"
                                 "frames           100 (25 fps)\n"
                                 "\n"
                                 "line  finding\n"
                                 "   2  End.Time 0001 > Start.Time 0002. Diff = 00:00:01,000\n"
                                 "   3  Complete line is empty\n"
                                 "   4  End.Time < Start.Time. Diff = -1:59:58,000\n"
                                 "\n"
                                 "line  solution\n"
                                 "   2  Mark [Repair.Overlapping] to repair\n"
                                 "   3  Put spoken text in cel [3,3..5] or mark [Repair.Empty]\n"
                                 "   4  Mark [Repair.Invalid] to repair\n"
                                 "\n"
                                 "Findings that remain: 3\n";
    const QStringList before = filesIn();
    EXPECT_EQ(diagnose(u"scan.sub"_s), (CliRun{.status = 1, .out = expected, .err = {}}));
    EXPECT_EQ(filesIn(), before);
}

TEST_F(DiagnoseCall, TellsThatNothingIsWrong)
{
    const CliRun result = run({u"diagnose"_s, u"film.srt"_s});
    EXPECT_EQ(result.status, 0) << result;
    EXPECT_EQ(result.out.find("finding\n"), std::string::npos) << result;
    EXPECT_NE(result.out.find("\n\nNo findings remain.\n"), std::string::npos) << result;
}

TEST_F(DiagnoseCall, WritesTheRepairedScript)
{
    const std::string one = "{25}{75}one two\n", two = "{50}{100}three|four\n";
    const std::string mended = "{25}{50}one two\n" + two + "{200}{200}five\n";
    const struct
    {
        QString call;
        int status;
        std::string written;
    } cases[] = {
        {u"--json"_s, 1, faulty.toStdString()},
        {u"--repair overlapping"_s, 1, "{25}{50}one two\n" + two + "{125}{150}\n{200}{175}five\n"},
        {u"--repair invalid"_s, 1, one + two + "{125}{150}\n{200}{200}five\n"},
        {u"--repair Empty,invalid,overlapping"_s, 0, mended},
        {u"--repair empty --repair invalid --repair overlapping"_s, 0, mended},
    };
    for (const auto &[call, status, written] : cases) {
        // The format sets the extension.
        const CliRun result = diagnose(u"scan.sub -o out.txt --overwrite "_s + call);
        EXPECT_EQ(result.status, status) << result;
        EXPECT_EQ(read(u"out.sub"_s), written) << qPrintable(call);
        EXPECT_EQ(read(u"scan.sub"_s), faulty.toStdString());
    }
}

TEST_F(DiagnoseCall, ReplacesAFileOnlyWhenTold)
{
    const CliRun refused = diagnose(u"scan.sub --repair empty -o scan.sub"_s);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err,
              "scan.sub: FOLDER/scan.sub is there already, --overwrite replaces it.\n");
    EXPECT_EQ(read(u"scan.sub"_s), faulty.toStdString());
    diagnose(u"scan.sub --repair empty -o scan.sub --overwrite"_s);
    EXPECT_EQ(read(u"scan.sub"_s).find("{125}"), std::string::npos);
}

TEST_F(DiagnoseCall, JsonHoldsTheTree)
{
    const CliRun result = diagnose(u"scan.sub --json"_s);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(std::ranges::count(result.out, '\n'), 1);
    EXPECT_EQ(result.out.find(R"({"file": "FOLDER/scan.sub", "errorCount": 3, "nodes": )"
                              R"([{"key": "file", "text": "File", "children": [)"),
              0U)
        << result;
    EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).isObject());
}

// The run that deletes line 1 passes by the line that has moved up, the one within it doesn't.
TEST_F(DiagnoseCall, CountsWhatOnlyARunWithinTheRunFinds)
{
    write(u"scan.sub"_s, "{1}{50}\n{60}{55}two\n{70}{80}three\n");
    const CliRun result = diagnose(u"scan.sub --repair empty"_s);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.out.find("\nFindings that remain: 1\n"), std::string::npos) << result;
}

TEST_F(DiagnoseCall, WhatIsNotLoadedIsNotScanned)
{
    const CliRun missing = diagnose(u"none.sub -o out.sub"_s);
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.out, "");
    EXPECT_FALSE(missing.err.empty());
    EXPECT_EQ(read(u"out.sub"_s), "-");
}

} // namespace
} // namespace kavro::test
