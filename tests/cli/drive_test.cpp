#include "tests/cli/cli_fixture.h"

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

const QString scriptFolder = QStringLiteral(KAVRO_TEST_FILES "/drive/");

std::vector<std::string> scriptNames()
{
    std::vector<std::string> names;
    for (const QString &name : QDir(scriptFolder).entryList({u"*.drive"_s}))
        names.push_back(name.chopped(6).toStdString());
    return names;
}

/// Each script of tests/cli/drive with what it prints beside it: standard output, standard error
/// and status. Its first line may hold options: "# options: --answer yes". With KAVRO_RENEW set the
/// expected files are written anew.
class DriveFile : public CliTest, public testing::WithParamInterface<std::string>
{};

TEST_P(DriveFile, PrintsWhatIsExpected)
{
    const QString base = scriptFolder + QString::fromStdString(GetParam());
    QStringList call{u"drive"_s, base + u".drive"_s};
    QFile script(call.constLast());
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const QString first = QString::fromUtf8(script.readLine()).trimmed();
    if (first.startsWith(u"# options: "_s))
        call += first.sliced(11).split(u' ');

    const CliRun result = run(call);
    const std::string text = result.out + "---- standard error\n" + result.err + "---- status "
                             + std::to_string(result.status) + '\n';
    const QString expected = base + u".out"_s;
    if (qEnvironmentVariableIsSet("KAVRO_RENEW"))
        write(expected, QByteArray::fromStdString(text));
    EXPECT_EQ(text, read(expected));
}

INSTANTIATE_TEST_SUITE_P(Scripts, DriveFile, testing::ValuesIn(scriptNames()),
                         [](const auto &one) { return one.param; });

class Drive : public CliTest
{
protected:
    CliRun drive(const QByteArray &script, const QStringList &options = {})
    {
        return run(QStringList(u"drive"_s) + options, script);
    }
};

TEST_F(Drive, ASaveOverAnExistingFileKeepsWhatWasTyped)
{
    write(u"kept.srt"_s, "old");
    const CliRun result = drive("load film.srt\ncell grdSubEdit 1 3\nset rtfEdit Typed\n"
                                "key rtfEdit Enter\nanswer yes\nfile kept.srt 9\n"
                                "press mnuSavesubfile\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(read(u"kept.srt"_s).find("1\n00:00:01,000 --> 00:00:02,500\nTyped\n\n2\n"), 0U);
}

TEST_F(Drive, AWrongLineEndsTheScriptWithTwo)
{
    const std::pair<QByteArray, std::string> lines[] = {
        {"jump", "no command \"jump\""},
        {"press", "no control \"\""},
        {"press Command999", "no control \"Command999\""},
        {"get frmNone.Label1", "no control \"frmNone.Label1\""},
        {"press grdSubEdit", "the command doesn't fit \"frmMain.grdSubEdit\""},
        {"set Command10 x", "the command doesn't fit \"frmMain.Command10\""},
        {"key rtfEdit F1", "\"F1\" is no key, those are Enter, Escape, Tab"},
        {"select combo3 first", "\"first\" is no number"},
        {"check optFrameRate(1) 2", "\"2\" is neither 0 nor 1"},
        {"cell grdSubEdit 1", "\"\" is no number"},
        {"cell grdSubEdit 1e5 1", "\"1e5\" is no number"},
        {QByteArray(1024 * 1024 + 1, ' '), "longer than 1 MiB"},
        {"slide Slider1 nan", "\"nan\" is no number"},
        {"tick timPlayer often", "\"often\" is no number"},
        {"answer maybe", "\"maybe\" is no answer, those are yes, no, ok, cancel"},
        {"input name", "\"name\" is not NAME>VALUE"},
        {"fps 26", "\"26\" is no frame rate"},
        {"player speed 2", "the player has no \"speed\""},
        {"clock tomorrow", "\"tomorrow\" is no time, write YYYY-MM-DD HH:MM:SS"},
        {"seed x", "\"x\" is no number"},
        {"full -1", "\"-1\" is no number"},
        {"wait lunch 5", "can't wait for \"lunch\""},
    };
    for (const auto &[line, fault] : lines) {
        // The line behind it isn't carried out any more.
        EXPECT_EQ(
            drive("# comment\n\n" + line + "\r\ndump\n"),
            (CliRun{.status = 2, .out = {}, .err = "kavro-cli drive: line 3: " + fault + '\n'}))
            << line.first(std::min<qsizetype>(line.size(), 80)).toStdString();
    }
}

TEST_F(Drive, WhatIsNotThereIsRefusedWhateverItsNumber)
{
    for (const char *number : {"-1", "16", "2147483648", "-99999999999999999999"}) {
        EXPECT_EQ(drive(QByteArray("select combo3 ") + number + '\n'),
                  (CliRun{.status = 0, .out = "{\"refused\": \"frmMain.combo3\"}\n", .err = {}}))
            << number;
    }
}

TEST_F(Drive, WithoutAFolderOfItsOwnNothingIsLeft)
{
    const QStringList before = filesIn();
    EXPECT_EQ(drive("load film.srt\nquit\n").status, 0);
    EXPECT_EQ(filesIn(), before);
}

TEST_F(Drive, QuitWritesTheFilesOfItsFolder)
{
    const QStringList options{u"--app-dir"_s, u"app"_s};
    EXPECT_EQ(drive("load film.srt\n", options).status, 0);
    EXPECT_EQ(read(u"app/System/recent.sdf"_s), "");
    EXPECT_EQ(drive("load film.srt\nquit\nload never.srt\n", options).status, 0);
    EXPECT_EQ(withoutFolder(QByteArray::fromStdString(read(u"app/System/recent.sdf"_s))),
              "FOLDER/film.srt\n");
}

TEST_F(Drive, TheSameSeedGivesTheSameChoices)
{
    const QByteArray script = "seed 7\npress mnuShowTips\nget frmTip.lblTipText\n"
                              "press frmTip.cmdNextTip\nget frmTip.lblTipText\n";
    EXPECT_EQ(drive(script), drive(script));
}

// The settings are a modal window: it stays open for the commands behind it, and the end of the
// script, whatever it comes by, closes it.
TEST_F(Drive, AModalWindowIsOpenUntilItIsClosed)
{
    const std::string open = "{\"window\": \"frmSettings\", \"open\": true}\n";
    const std::string closed = "{\"window\": \"frmSettings\", \"open\": false}\n";
    const std::string refused = "{\"refused\": \"frmSettings.Command1(0)\"}\n";
    const struct
    {
        QByteArray behind;
        CliRun run;
    } cases[] = {
        {"press frmSettings.Command1(0)\npress frmSettings.Command1(0)\n",
         {.status = 0, .out = refused + open + closed + refused, .err = {}}},
        {"# nothing\n", {.status = 0, .out = refused + open + closed, .err = {}}},
        {"quit\ndump\n", {.status = 0, .out = refused + open + closed, .err = {}}},
        {"fly away\ndump\n",
         {.status = 2,
          .out = refused + open + closed,
          .err = "kavro-cli drive: line 3: no command \"fly\"\n"}},
    };
    for (const auto &[behind, run] : cases)
        EXPECT_EQ(drive("press frmSettings.Command1(0)\npress mnuSettings\n" + behind), run);
}

} // namespace
} // namespace kavro::test
