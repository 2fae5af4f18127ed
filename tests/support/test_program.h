#pragma once

#include "app/program.h"
#include "tests/support/print.h"
#include "tests/support/scripted_ports.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace kavro::test {

/// A program over scripted doors in an application folder of its own, which goes with it.
///
/// Nothing is started before `start` or `startForVerb` is called. The folder holds what a test
/// wrote into it, and with `shipped` what the program ships.
class TestProgram
{
public:
    struct Options
    {
        /// Folder in or above which the program's shipped "share" is found; empty for none.
        QString shipped;
        /// The application folder of another test program, which must outlive this one; empty for
        /// an own one.
        QString appFolder;
    };

    TestProgram() : TestProgram(Options()) {}
    explicit TestProgram(const Options &options);
    ~TestProgram();

    /// The program; made at the first call, so that files can be written ahead of it.
    Program &program();
    Program *operator->() { return &program(); }

    /// Starts with that file on the command line.
    void start(const QString &file = {}) { program().start(file); }
    void startForVerb() { program().startForVerb(); }
    /// Ends this program without its exit and makes the next one over the same folder; the doors
    /// keep what was recorded.
    void restart();

    /// Full path of a name in the application folder; it needn't be there.
    [[nodiscard]] QString appPath(const QString &name) const;
    /// Full path of a name in a folder of documents beside the application folder.
    [[nodiscard]] QString path(const QString &name) const;
    /// Write a file, its folders too; "\n" in `text` becomes CR LF. They return the full path.
    QString write(const QString &name, const QString &text);
    QString writeApp(const QString &name, const QString &text);
    /// The content of a file as UTF-8 with "\n" for CR LF; a null text when it isn't there.
    [[nodiscard]] static QString read(const QString &path);

    /// A control of the program, which must be there and of that kind.
    template <class T>
    T &control(QStringView name)
    {
        auto *found = qobject_cast<T *>(program().control(name));
        Q_ASSERT(found);
        return *found;
    }

    /// One text a subtitle: start, end and the texts that aren't empty, joined by "|" without the
    /// blanks at the head of a text.
    [[nodiscard]] QStringList rows();
    /// The texts of the messages shown so far, lines ended by "\n", and forgets them.
    QStringList takeMessages();

    ScriptedPorts doors;
    FileStore store;

private:
    QTemporaryDir m_folder;
    QString m_appFolder;
    QString m_shipped;
    std::unique_ptr<Folders> m_folders;
    std::unique_ptr<Program> m_program;
};

/// The lines of a set.sdf in which all is off, but for one of its lines (1 to 22).
QString settingsWith(int line, int value);

/// Two subtitles of SubRip, for tests that need any file.
QString twoSubtitles();

} // namespace kavro::test
