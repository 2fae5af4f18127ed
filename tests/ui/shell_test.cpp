#include "ui/shell.h"

#include "tests/support/test_program.h"
#include "ui/file_dialog.h"
#include "ui/help_window_view.h"
#include "ui/main_window.h"
#include "ui/splash_view.h"
#include "ui/start_trace.h"
#include "ui/tip_view.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

template <class T>
T *openWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<T *>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

/// The whole program with its own windows, in a folder that is filled from the shipped one.
class Shells : public ::testing::Test
{
protected:
    QString film()
    {
        QFile file(temporary.filePath(u"film.srt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(twoSubtitles().toUtf8());
        return file.fileName();
    }

    QTemporaryDir temporary;
    FileStore store;
    Folders folders{store,
                    {.appDir = temporary.filePath(u"app"_s),
                     .home = {},
                     .executableFolder = QStringLiteral(KAVRO_SOURCE_DIR),
                     .userData = temporary.filePath(u"user"_s),
                     .temporary = temporary.filePath(u"tmp"_s)},
                    FolderUse::Own};
    Shell shell{store, folders};
};

TEST_F(Shells, FileOnTheCommandLineOpensTheWindowAtOnce)
{
    shell.program().start(film());
    ASSERT_NE(shell.mainWindow(), nullptr);
    EXPECT_TRUE(shell.mainWindow()->isVisible());
    EXPECT_EQ(shell.mainWindow()->windowTitle(), u"film.srt[*] - Kavro"_s);
    EXPECT_EQ(openWindow<SplashView>(), nullptr);

    ::testing::internal::CaptureStderr();
    const QPointer<StartTrace> trace = new StartTrace(*shell.mainWindow());
    EXPECT_TRUE(QTest::qWaitFor([&trace] { return trace.isNull(); })) << "it goes when it has told";
    const QString line = QString::fromStdString(::testing::internal::GetCapturedStderr());
    EXPECT_TRUE(QRegularExpression(u"settled [1-9][0-9]*\n"_s).match(line).hasMatch())
        << line.toStdString();
}

TEST_F(Shells, StartWithoutAFileGoesByTheSplashToTheTips)
{
    shell.program().start({});
    auto *splash = openWindow<SplashView>();
    ASSERT_NE(splash, nullptr);
    EXPECT_EQ(shell.mainWindow(), nullptr);
    QTest::keyClick(splash, Qt::Key_Space);
    EXPECT_FALSE(splash->isVisible());
    ASSERT_NE(shell.mainWindow(), nullptr);
    auto *tips = openWindow<TipView>();
    ASSERT_NE(tips, nullptr);
    EXPECT_EQ(tips->parentWidget(), shell.mainWindow());
}

TEST_F(Shells, ViewsSpeakTheLanguageOfThePack)
{
    folders.prepare();
    const QString pack = folders.path(Folder::Language, u"Dutch.lng");
    QStringList lines = settingsWith(19, 1).split(u'\n');
    lines[19] = pack;
    QFile settings(folders.path(Folder::Settings, u"set.sdf"));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write(lines.join(u'\n').toUtf8());
    settings.close();
    shell.program().start(film());
    QStringList labels;
    for (const QLabel *label : shell.mainWindow()->findChildren<QLabel *>()) {
        labels.append(QString(label->text()).remove(u'&'));
    }
    EXPECT_TRUE(labels.contains(u"Duur"_s)) << labels.join(u'|').toStdString();
    EXPECT_FALSE(labels.contains(u"Duration"_s));
    const FileDialog dialog(FileRequest(), nullptr);
    EXPECT_EQ(dialog.findChild<QLabel *>(u"fileNameLabel"_s)->text(), u"Bestands&naam:"_s);
}

TEST_F(Shells, EscapeIsCancelAndEnterTheDefaultOfEachWindow)
{
    shell.program().start(film());
    Program &program = shell.program();
    program.goTo.txtLine.setText(u"1"_s);
    const QHash<Form *, bool> closedByEscape{
        {&program.frmAbout, false},  {&program.frmHelp, false},   {&program.frmTip, false},
        {&program.frmWizard, false}, {&program.frmHistory, true}, {&program.frmPreview, true},
        {&program.frmGoto, true},    {&program.frmSettings, true}};
    for (auto it = closedByEscape.cbegin(); it != closedByEscape.cend(); ++it) {
        Form &form = *it.key();
        form.show();
        auto *dialog = openWindow<FormDialog>();
        ASSERT_NE(dialog, nullptr) << qPrintable(form.name());
        const auto press = [dialog](Qt::Key key) {
            QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, key);
        };
        press(Qt::Key_Escape);
        EXPECT_EQ(form.isOpen(), !it.value()) << qPrintable(form.name());
        form.show();
        press(Qt::Key_Return);
        EXPECT_FALSE(form.isOpen()) << qPrintable(form.name());
    }
}

TEST_F(Shells, HelpCentreShowsItsPage)
{
    shell.program().start(film());
    shell.program().help.show();
    const auto *window = openWindow<HelpWindowView>();
    ASSERT_NE(window, nullptr);
    const auto *page = window->findChild<QTextBrowser *>();
    EXPECT_TRUE(page->source().path().endsWith(u"helpcenter.htm"_s));
    EXPECT_GT(page->toPlainText().size(), 100);
}

TEST(DesktopScreens, TellTheirSizeAndFonts)
{
    EXPECT_EQ(DesktopScreen().size(), QSize(1280, 800));
    EXPECT_FALSE(DesktopScreen().fonts().isEmpty());
}

} // namespace
} // namespace kavro::test
