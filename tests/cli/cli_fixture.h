#pragma once

#include "cli/verbs.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>

namespace kavro::test {

/// What a call left behind. In the texts the temporary folder's path stands as "FOLDER", that of
/// the shipped files as "SHARE".
struct CliRun
{
    int status = 0;
    std::string out;
    std::string err;

    friend bool operator==(const CliRun &, const CliRun &) = default;
    friend std::ostream &operator<<(std::ostream &stream, const CliRun &run)
    {
        return stream << "status " << run.status << "\nout:\n" << run.out << "err:\n" << run.err;
    }
};

/// Calls of the command line within the test's own process, in a temporary folder that is the
/// current one and holds what stands in tests/cli/files.
class CliTest : public testing::Test
{
protected:
    CliTest() : m_before(QDir::currentPath())
    {
        QDir::setCurrent(m_folder.path());
        const QDir files(QStringLiteral(KAVRO_TEST_FILES "/files"));
        for (const QString &name : files.entryList(QDir::Files))
            QFile::copy(files.filePath(name), name);
    }
    ~CliTest() override { QDir::setCurrent(m_before); }

    [[nodiscard]] CliRun run(const QStringList &arguments, const QByteArray &input = {})
    {
        std::istringstream in(input.toStdString());
        std::ostringstream out;
        std::ostringstream err;
        CliRun result;
        result.status = runCommandLine(arguments, {.in = in, .out = out, .err = err});
        result.out = withoutFolder(QByteArray::fromStdString(out.str()));
        result.err = withoutFolder(QByteArray::fromStdString(err.str()));
        return result;
    }

    [[nodiscard]] std::string withoutFolder(QByteArray text) const
    {
        text.replace(m_folder.path().toUtf8(), "FOLDER");
        return text.replace(KAVRO_SOURCE_DIR "/share", "SHARE").toStdString();
    }

    static void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// A file's bytes with "\n" for CR LF; "-" when it isn't there.
    [[nodiscard]] static std::string read(const QString &name)
    {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly))
            return "-";
        return file.readAll().replace("\r\n", "\n").toStdString();
    }

    [[nodiscard]] QStringList filesIn(const QString &folder = QStringLiteral(".")) const
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;

private:
    QString m_before;
};

} // namespace kavro::test
