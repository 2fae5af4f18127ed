#include "tests/cli/cli_fixture.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

const std::string filmAsSubViewer2 =
    "[INFORMATION]\n[AUTHOR]\n[SOURCE]\n[PRG]\n[FILEPATH]\n"
    "[DELAY]0\n[CD TRACK]0\n[COMMENT]\n[END INFORMATION]\n"
    "[SUBTITLE]\n[COLF]&HFFFFFF,[STYLE]no,[SIZE]29, [Font]Arial\n"
    "\n00:00:01.00,00:00:02.50\nThe first line\n\n"
    "00:00:03.25,00:00:04.99\nTwo lines,[br]one of them leaning\n\n";

const CliRun nothingTold{.status = 0, .out = {}, .err = {}};

/// What film.srt loses in SubViewer 2.0.
const std::string losses = "film.srt: SubViewer 2.0 can't hold the milliseconds of 1 subtitle.\n"
                           "film.srt: SubViewer 2.0 can't hold the style of 1 subtitle.\n";
const CliRun lossesTold{.status = 0, .out = {}, .err = losses};

class Convert : public CliTest
{
protected:
    /// `line` is split at blanks.
    CliRun convert(const QString &line) { return run((u"convert "_s + line).split(u' ')); }
};

TEST_F(Convert, WritesTheOtherFormatAndNothingElse)
{
    const QStringList before = filesIn();
    EXPECT_EQ(convert(u"film.srt --to 12 -o out"_s), lossesTold);
    EXPECT_EQ(read(u"out.sub"_s), filmAsSubViewer2);
    EXPECT_EQ(filesIn().size(), before.size() + 1);
}

TEST_F(Convert, NamesItsOutput)
{
    QDir().mkdir(u"dir.d"_s);
    const std::pair<QString, QString> namings[] = {
        {u"--to 12 -o a.b.srt"_s, u"a.b.sub"_s},
        {u"--to 12 -o dir.d/a"_s, u"dir.d/a.sub"_s}, // the folder's point is none
        {u"--to tmplayer -o a"_s, u"a.txt"_s},
        {u"--to .srt -o a"_s, u"a.srt"_s},
        {u"--to 11 --out-dir dir.d"_s, u"dir.d/film.sub"_s},
        {u"--to 11 --out-dir new/deep"_s, u"new/deep/film.sub"_s},
    };
    for (const auto &[options, file] : namings) {
        EXPECT_EQ(convert(u"film.srt "_s + options).status, 0);
        EXPECT_TRUE(QFileInfo(file).isFile()) << qPrintable(file);
    }
}

TEST_F(Convert, LeavesAFileThatIsThereAlone)
{
    write(u"film.sub"_s, "old");
    const CliRun kept{.status = 1,
                      .out = {},
                      .err =
                          "film.srt: FOLDER/film.sub is there already, --overwrite replaces it.\n"};
    EXPECT_EQ(convert(u"film.srt --to 12 --out-dir ."_s), kept);
    EXPECT_EQ(convert(u"film.srt --to 12 --out-dir . --answer yes"_s), kept);
    EXPECT_EQ(read(u"film.sub"_s), "old");
    EXPECT_EQ(convert(u"film.srt --to 12 --out-dir . --overwrite"_s), lossesTold);
    EXPECT_EQ(read(u"film.sub"_s), filmAsSubViewer2);
}

TEST_F(Convert, InputAndOutputMayBeTheSameFile)
{
    EXPECT_EQ(convert(u"player.txt --to 13 -o player.txt --overwrite"_s), nothingTold);
    EXPECT_EQ(read(u"player.txt"_s), "00:00:01,0=What is this?\n00:00:02,5=\n");
}

TEST_F(Convert, TwoInputsForOneFileWriteNothing)
{
    QDir().mkdir(u"other"_s);
    QFile::copy(u"small.srt"_s, u"other/film.txt"_s);
    const CliRun refused = convert(u"film.srt small.srt other/film.txt --to 12 --out-dir out"_s);
    EXPECT_EQ(refused,
              (CliRun{.status = 1,
                      .out = {},
                      .err = "kavro-cli: film.srt and other/film.txt would both be written "
                             "to FOLDER/out/film.sub, nothing was written.\n"}));
    EXPECT_FALSE(QFileInfo::exists(u"out"_s));
    EXPECT_EQ(convert(u"film.srt small.srt --to 12 -o x"_s).status, 1);
    EXPECT_FALSE(QFileInfo::exists(u"x.sub"_s));
}

TEST_F(Convert, ABackslashIsALetterOfTheName)
{
    QFile::copy(u"film.srt"_s, u"a\\film.srt"_s);
    EXPECT_EQ(convert(u"film.srt a\\film.srt --to 9 --out-dir out"_s).status, 0);
    EXPECT_EQ(filesIn(u"out"_s), (QStringList{u"a\\film.srt"_s, u"film.srt"_s}));
}

TEST_F(Convert, TwoNamesThatALinkJoinsAreOneFile)
{
    write(u"film.sub"_s, "old");
    QFile::link(u"film.sub"_s, u"small.sub"_s);
    EXPECT_EQ(convert(u"film.srt small.srt --to 12 --out-dir . --overwrite"_s).status, 1);
    EXPECT_EQ(read(u"film.sub"_s), "old");
}

TEST_F(Convert, AfterAFailedInputTheOthersGoOn)
{
    const CliRun mixed = convert(u"film.srt none.srt small.srt --to 12 --out-dir out"_s);
    EXPECT_EQ(mixed.status, 1);
    EXPECT_EQ(mixed.err, losses
                             + "none.srt: Error: File 'FOLDER/none.srt' can't be loaded.\n"
                               "  The file doesn't exist.\n");
    EXPECT_EQ(filesIn(u"out"_s), (QStringList{u"film.sub"_s, u"small.sub"_s}));
}

TEST_F(Convert, EachOutputIsThatOfACallForItAlone)
{
    // The font of the first one's header, its encoding and its frame rate stay with it.
    write(u"a.sub"_s, "[INFORMATION]\r\n[COLF]&HFFFFFF,[style]no,[size]29, [font]Verdana\r\n"
                      "00:00:01.00,00:00:02.00\r\nx\r\n\r\n");
    write(u"b.srt"_s, "\xEF\xBB\xBF"
                      "1\n00:00:01,000 --> 00:00:02,000\n\xC3\xA9\n\n");
    const QStringList names{u"a.sub"_s, u"b.srt"_s, u"film.srt"_s};
    EXPECT_EQ(convert(names.join(u' ') + u" --to 12 --out-dir together"_s).status, 0);
    for (const QString &name : names)
        EXPECT_EQ(convert(name + u" --to 12 --out-dir alone"_s).status, 0);
    for (const QString &name : filesIn(u"alone"_s))
        EXPECT_EQ(read(u"together/"_s + name), read(u"alone/"_s + name)) << qPrintable(name);
    EXPECT_EQ(filesIn(u"together"_s), filesIn(u"alone"_s));
    EXPECT_EQ(read(u"alone/b.sub"_s).find("\xEF\xBB\xBF"), 0U);
}

TEST_F(Convert, ASkippedLineIsToldAndTheRestWritten)
{
    const CliRun partly = convert(u"four.srt --to tmplayer -o out"_s);
    EXPECT_EQ(partly.status, 1);
    EXPECT_NE(partly.err.find("four.srt: A bad line was skipped.\n"), std::string::npos);
    EXPECT_EQ(read(u"out.txt"_s), "00:00:01,0=one|two|three\n00:00:02,0=\n");
}

TEST_F(Convert, RowsThatCanNotBeWrittenAreTold)
{
    write(u"late.srt"_s, "1\n00:00:01,000 --> 00:00:02,000\none\n\n"
                         "2\n00:00:03,000 --> 99:59:59,999\ntwo\n\n");
    EXPECT_EQ(convert(u"late.srt --to 13 -o out"_s),
              (CliRun{.status = 1,
                      .out = {},
                      .err = "late.srt: Warning: The file ends before row 2, which ends at "
                             "'99:59:59,999'.\n  Rows that were not written: 1.\n"}));
    EXPECT_EQ(read(u"out.txt"_s), "00:00:01,0=one\n00:00:02,0=\n");
}

TEST_F(Convert, EncodingsGoInAndOut)
{
    write(u"cyrillic.srt"_s, "1\n00:00:01,000 --> 00:00:02,000\n\xCF\xF0\xE8\xE2\xE5\xF2\n\n");
    EXPECT_EQ(convert(u"cyrillic.srt --encoding windows-1251 --to 13 -o same"_s), nothingTold);
    EXPECT_EQ(read(u"same.txt"_s), "00:00:01,0=\xCF\xF0\xE8\xE2\xE5\xF2\n00:00:02,0=\n");
    EXPECT_EQ(convert(u"cyrillic.srt --encoding cp1251 --output-encoding utf-8 --to 13 -o utf8"_s),
              nothingTold);
    EXPECT_EQ(read(u"utf8.txt"_s), "00:00:01,0=Привет\n00:00:02,0=\n");
}

TEST_F(Convert, TextThatTheEncodingLacksIsNotWrittenUnlessTheAnswerIsYes)
{
    write(u"cyrillic.srt"_s, "1\n00:00:01,000 --> 00:00:02,000\nПривет\n\n");
    const QString call = u"cyrillic.srt --to 13 -o out --output-encoding windows-1252"_s;
    const CliRun no = convert(call);
    EXPECT_EQ(no.status, 1);
    EXPECT_NE(no.err.find("Answered no.\ncyrillic.srt: FOLDER/out.txt was not written.\n"),
              std::string::npos)
        << no.err;
    EXPECT_EQ(read(u"out.txt"_s), "-");
    EXPECT_EQ(convert(call + u" --answer yes"_s).status, 0);
    EXPECT_EQ(read(u"out.txt"_s), "00:00:01,0=Привет\n00:00:02,0=\n");
}

// The rate decides on both sides: frames are read by it and written by it.
TEST_F(Convert, TakesTheFrameRate)
{
    write(u"a.srt"_s, "1\n00:00:01,600 --> 00:00:02,400\nx\n\n");
    const struct
    {
        QString call;
        QString file;
        const char *text;
        const char *err = "";
    } cases[] = {
        {u"a.srt --to 3 -o micro"_s, u"micro.sub"_s, "{40}{60}x\n"},
        {u"a.srt --to 3 --fps 30 -o film"_s, u"film.sub"_s, "{48}{72}x\n"},
        {u"a.srt --to 3 --fps 23.97 -o b"_s, u"b.sub"_s, "{38}{57}x\n",
         "a.srt: MicroDVD can't hold the milliseconds of 1 subtitle.\n"},
        {u"a.srt --to 4 --fps 30.000 -o c"_s, u"c.pjs"_s, "     48,     72, \"x\"\n"},
        {u"a.srt --to 8 --fps 30 -o d"_s, u"d.sub"_s, "0001  00:00:01:18  00:00:02:12  x\n\n"},
        {u"micro.sub --to 9 -o e"_s, u"e.srt"_s, "1\n00:00:01,600 --> 00:00:02,400\nx\n\n"},
        {u"micro.sub --to 9 --fps 24 -o f"_s, u"f.srt"_s,
         "1\n00:00:01,666 --> 00:00:02,500\nx\n\n"},
        {u"c.pjs --to 9 --fps 30 -o g"_s, u"g.srt"_s, "1\n00:00:01,600 --> 00:00:02,400\nx\n\n"},
        {u"d.sub --to 9 --fps 24 -o h"_s, u"h.srt"_s, "1\n00:00:01,750 --> 00:00:02,500\nx\n\n"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(convert(c.call), (CliRun{.status = 0, .out = {}, .err = c.err}))
            << qPrintable(c.file);
        EXPECT_EQ(read(c.file), c.text);
    }
    EXPECT_EQ(convert(u"a.srt --to 3 --fps 26 -o i"_s).status, 2);
}

TEST_F(Convert, TheLinesDecideWhenAskedTo)
{
    QFile::rename(u"player.txt"_s, u"player.srt"_s);
    EXPECT_EQ(convert(u"player.srt --from detect --to 9 -o out"_s), nothingTold);
    EXPECT_EQ(read(u"out.srt"_s), "1\n00:00:01,000 --> 00:00:02,500\nWhat is this?\n\n");
}

TEST_F(Convert, AFolderThatCanNotBeWrittenIsTold)
{
    write(u"wall"_s, "a file where a folder would have to be");
    const CliRun refused = convert(u"film.srt --to 12 --out-dir wall"_s);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "film.srt: Error: Error writing file (Not a directory).\n"
                           "film.srt: FOLDER/wall/film.sub was not written.\n");
}

} // namespace
} // namespace kavro::test
