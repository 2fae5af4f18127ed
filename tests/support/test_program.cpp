#include "tests/support/test_program.h"

#include "core/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kavro::test {

using namespace Qt::StringLiterals;

namespace {

QString writeFile(const QString &path, QString text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(text.replace(u'\n', u"\r\n"_s).toUtf8());
    }
    return path;
}

} // namespace

TestProgram::TestProgram(const Options &options)
    : m_appFolder(options.appFolder.isEmpty() ? m_folder.filePath(u"app"_s) : options.appFolder),
      m_shipped(options.shipped)
{}

TestProgram::~TestProgram() = default;

Program &TestProgram::program()
{
    if (!m_program) {
        const FolderSources sources{.appDir = m_appFolder,
                                    .home = {},
                                    .executableFolder =
                                        m_shipped.isEmpty() ? m_folder.path() : m_shipped,
                                    .userData = m_folder.filePath(u"user"_s),
                                    .temporary = m_folder.filePath(u"tmp"_s)};
        m_folders = std::make_unique<Folders>(store, sources, FolderUse::Own);
        m_program = std::make_unique<Program>(portsOf(doors), store, *m_folders);
    }
    return *m_program;
}

void TestProgram::restart()
{
    m_program.reset();
    m_folders.reset();
    program();
}

QString TestProgram::appPath(const QString &name) const
{
    return m_appFolder + u'/' + name;
}

QString TestProgram::path(const QString &name) const
{
    return m_folder.filePath(u"documents/"_s + name);
}

QString TestProgram::write(const QString &name, const QString &text)
{
    return writeFile(path(name), text);
}

QString TestProgram::writeApp(const QString &name, const QString &text)
{
    return writeFile(appPath(name), text);
}

QString TestProgram::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return u""_s + QString::fromUtf8(file.readAll()).replace(u"\r\n"_s, u"\n"_s);
}

QStringList TestProgram::rows()
{
    const Grid &grid = program().editor.grdSubEdit;
    QStringList rows;
    for (int row = 1; row <= grid.rows() - 2; ++row) {
        QStringList cells{grid.text(row, StartColumn), grid.text(row, EndColumn)};
        for (int col = FirstTextColumn; col <= LastTextColumn; ++col) {
            const QString &text = grid.text(row, col);
            if (!text.isEmpty()) {
                cells.append(leftTrimmed(text).toString());
            }
        }
        rows.append(cells.join(u'|'));
    }
    return rows;
}

QStringList TestProgram::takeMessages()
{
    QStringList texts;
    for (const Message &message : doors.messages.shown) {
        texts.append(QString(message.text).replace(u"\r\n"_s, u"\n"_s));
    }
    doors.messages.shown.clear();
    return texts;
}

QString settingsWith(int line, int value)
{
    constexpr int lines = 22;
    constexpr int frameRateLine = 12;
    constexpr int languageLine = 20;
    QStringList numbers(lines, u" 0 "_s);
    numbers[frameRateLine - 1] = u" 2 "_s;
    numbers[languageLine - 1].clear();
    numbers[line - 1] = QString::number(value);
    return numbers.join(u'\n') + u'\n';
}

QString twoSubtitles()
{
    return u"1\n00:00:01,000 --> 00:00:02,500\nOne\n\n"
           "2\n00:00:03,000 --> 00:00:04,000\nTwo\nlines\n"_s;
}

} // namespace kavro::test
