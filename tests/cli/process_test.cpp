// The program itself, as a process of its own.

#include "tests/cli/cli_fixture.h"

#include <QCoreApplication>
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

TEST_F(Process, AFullStandardOutputIsAFailure)
{
    if (!QFileInfo::exists(u"/dev/full"_s))
        GTEST_SKIP() << "no /dev/full here";
    process.setStandardOutputFile(u"/dev/full"_s);
    EXPECT_EQ(
        call({u"dump"_s, u"film.srt"_s}),
        (CliRun{.status = 1, .out = {}, .err = "kavro-cli: standard output can't be written\n"}));
}

} // namespace
} // namespace kavro::test
