// The program itself, as a process of its own.

#include "formats/format_table.h"
#include "tests/cli/cli_fixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class Process : public CliTest
{
protected:
    Process()
    {
        const QString self = QFile::symLinkTarget(u"/proc/self/exe"_s);
        m_program = QFileInfo(self).absolutePath() + u"/../kavro-cli"_s;
        QDir().mkdir(u"home"_s);
        QDir().mkdir(u"tmp"_s);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C"_s);
        environment.insert(u"HOME"_s, m_folder.filePath(u"home"_s));
        environment.insert(u"XDG_DATA_HOME"_s, m_folder.filePath(u"home"_s));
        environment.insert(u"TMPDIR"_s, m_folder.filePath(u"tmp"_s));
        process.setProcessEnvironment(environment);
    }

    CliRun finish()
    {
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {.status = process.exitCode(),
                .out = withoutFolder(process.readAllStandardOutput()),
                .err = withoutFolder(process.readAllStandardError())};
    }

    CliRun call(const QStringList &arguments)
    {
        process.start(m_program, arguments);
        return finish();
    }

    int m_argc = 1;
    char m_name[5] = "test";
    char *m_argv[2] = {m_name, nullptr};
    QCoreApplication m_application{m_argc, m_argv};
    QProcess process;
    QString m_program;
};

TEST_F(Process, ConvertToStandardOutputPrintsTheFileAlone)
{
    const QStringList arguments{u"convert"_s,  u"small.srt"_s, u"--to"_s,
                                u"tmplayer"_s, u"-o"_s,        u"/dev/stdout"_s};
    const std::string text = "00:00:00,5=Small\r\n00:00:01,0=\r\n";
    EXPECT_EQ(call(arguments), (CliRun{.status = 0, .out = text, .err = {}}));
    // A shell's ">>" goes on behind what stands in the file.
    write(u"all.txt"_s, "head\n");
    process.setStandardOutputFile(u"all.txt"_s, QIODevice::Append);
    EXPECT_EQ(call(arguments).status, 0);
    EXPECT_EQ(read(u"all.txt"_s), "head\n00:00:00,5=Small\n00:00:01,0=\n");
    EXPECT_EQ(filesIn(u"home"_s) + filesIn(u"tmp"_s), QStringList());
}

TEST_F(Process, RepairedScriptStandsBehindItsFindings)
{
    process.setStandardOutputFile(u"all.txt"_s);
    EXPECT_EQ(call({u"diagnose"_s, u"small.srt"_s, u"-o"_s, u"/dev/stdout"_s}).status, 0);
    const std::string all = read(u"all.txt"_s);
    EXPECT_TRUE(all.starts_with('/')) << all; // the input's path, with nothing over it
    EXPECT_TRUE(all.ends_with("\n\nNo findings remain.\n"
                              "1\n00:00:00,500 --> 00:00:01,000\nSmall\n\n"))
        << all;
}

TEST_F(Process, ReadsAPipe)
{
    process.setStandardInputFile(u"small.srt"_s);
    EXPECT_EQ(call({u"convert"_s, u"/dev/stdin"_s, u"--to"_s, u"9"_s, u"-o"_s, u"out"_s}).status,
              0);
    EXPECT_EQ(read(u"out.srt"_s), "1\n00:00:00,500 --> 00:00:01,000\nSmall\n\n");
}

TEST_F(Process, NamesAndMessagesAreUtf8InAnyLocale)
{
    QFile::copy(u"small.srt"_s, u"ü–é.srt"_s);
    const CliRun result = call(
        {u"convert"_s, u"ü–é.srt"_s, u"nö.srt"_s, u"--to"_s, u"9"_s, u"--out-dir"_s, u"aus"_s});
    EXPECT_EQ(result.err.find("nö.srt: "), 0U) << result.err;
    EXPECT_EQ(filesIn(u"aus"_s), QStringList(u"ü–é.srt"_s));
}

TEST_F(Process, DriveAnswersEachCommandAtOnce)
{
    process.start(m_program, {u"drive"_s});
    for (const char *const name : {"Command10", "mnuUndo", "Command11"}) {
        process.write(QByteArray("press ") + name + '\n');
        ASSERT_TRUE(process.waitForReadyRead(20000));
        EXPECT_EQ(process.readAllStandardOutput().toStdString(),
                  std::string(R"({"refused": "frmMain.)") + name + "\"}\n");
    }
    EXPECT_EQ(finish(), (CliRun{.status = 0, .out = {}, .err = {}}));
    EXPECT_EQ(filesIn(u"home"_s) + filesIn(u"tmp"_s), QStringList());
}

TEST_F(Process, AReaderThatGoesAwayEndsTheScriptAndLeavesNoTrace)
{
    // The history keeps the change in a work file, and far more is printed than a pipe holds.
    write(u"endless.drive"_s, "load film.srt\ncell grdSubEdit 1 3\npress Command14\n"
                                  + QByteArray("dump\n").repeated(1000) + "set\n");
    process.start(u"/bin/sh"_s, {u"-c"_s, u"\"$0\" drive endless.drive | sed -n 3q"_s, m_program});
    EXPECT_EQ(finish(), (CliRun{.status = 0, .out = {}, .err = {}}));
    EXPECT_EQ(filesIn(u"tmp"_s), QStringList());
}

TEST_F(Process, AFullStandardOutputIsAFailure)
{
    if (!QFileInfo::exists(u"/dev/full"_s))
        GTEST_SKIP() << "no /dev/full here";
    process.setStandardOutputFile(u"/dev/full"_s);
    EXPECT_EQ(
        call({u"dump"_s, u"film.srt"_s}),
        (CliRun{.status = 1, .out = {}, .err = "kavro-cli: standard output can't be written\n"}));
}

// A load may use twelve times the file and 64 MiB: over long lines, and over as many lines as all
// formats take. The limit is on memory of the process's own, whatever the libraries map.
TEST_F(Process, EveryReaderKeepsItsMemory)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the shadow memory counts too";
#endif
    const QByteArray times = "1\n00:00:01,000 --> 00:00:02,000\n";
    write(u"film.srt"_s, (times + QByteArray(800000, 'x') + "\n\n").repeated(4)
                             + (times + "a\n\n").repeated(2480));
    // The status is 0, or 1 with a bad line; another one when the memory did not suffice.
    process.setStandardOutputFile(QProcess::nullDevice());
    const auto isDumped = [&](const QString &file, qint64 kibibytes) {
        const QStringList script{u"-c"_s, u"ulimit -d \"$0\" && \"$@\""_s};
        process.start(u"/bin/sh"_s,
                      script + QStringList{QString::number(kibibytes), m_program, u"dump"_s, file});
        return finish().status <= 1;
    };
    EXPECT_FALSE(isDumped(u"film.srt"_s, 16 << 10)) << "the limit is none";
    for (const FormatInfo &info : formatTable()) {
        const QString id = QString::number(info.id);
        const CliRun made = run({u"convert"_s, u"film.srt"_s, u"--to"_s, id, u"-o"_s, id});
        EXPECT_EQ(made, (CliRun{.status = 0, .out = {}, .err = {}}));
        const QString file = id + SetSubFileExt(info.id);
        const qint64 size = QFileInfo(file).size();
        EXPECT_TRUE(isDumped(file, (12 * size >> 10) + (64 << 10))) << qPrintable(file);
    }
}

TEST_F(Process, KilledInTheMiddleBringsItsChangesBack)
{
    const QStringList drive{u"drive"_s, u"--app-dir"_s, u"app"_s};
    process.start(m_program, drive);
    ASSERT_TRUE(process.waitForStarted());
    process.write("load small.srt\ncell grdSubEdit 1 3\nset rtfSubEditBasic Changed\n"
                  "press Command14\ntick timRecovery\nget Label74\n");
    const QString kept = u"app/System/Recovery/1.rec"_s;
    const QDeadlineTimer patience(20000);
    while (!QFile::exists(kept) && !patience.hasExpired()) {
        process.waitForReadyRead(10);
    }
    ASSERT_TRUE(QFile::exists(kept));
    process.kill();
    ASSERT_TRUE(process.waitForFinished());
    ASSERT_EQ(process.exitStatus(), QProcess::CrashExit);

    process.start(m_program, drive + QStringList{u"--answer"_s, u"yes"_s});
    process.write("get grdSubEdit\nset rtfSubEditBasic More\npress Command14\nanswer no\nquit\n");
    const CliRun run = finish();
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("Changed "), std::string::npos) << run.out;
    // The clean exit leaves neither the changes nor the lock.
    EXPECT_TRUE(QDir(u"app/System/Recovery"_s).isEmpty());
}

} // namespace
} // namespace kavro::test
