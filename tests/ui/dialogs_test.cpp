#include "controls/text_box.h"
#include "core/language.h"
#include "core/messages.h"
#include "tests/support/test_program.h"
#include "ui/control_window_view.h"
#include "ui/file_dialog.h"
#include "ui/form_windows.h"
#include "ui/message_dialog.h"
#include "ui/splash_view.h"
#include "ui/text_printer.h"
#include "ui/tip_view.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

/// Runs `act` once the event loop of a dialog runs.
void whenOpen(std::function<void()> act)
{
    QTimer::singleShot(0, qApp, std::move(act));
}

QDialog *topDialog()
{
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

Message question(const QString &kind, Answer defaultButton = Answer::Yes)
{
    return {.title = u"Warning"_s,
            .text = u"File changed.\r\nSave?"_s,
            .kind = kind,
            .defaultButton = defaultButton};
}

TEST(MessageDialogs, ButtonsStandInOrderAndEscapeIsCancelOrNothing)
{
    struct Case
    {
        QString kind;
        Answer defaultButton;
        QStringList buttons;
        QString marked;
        bool closes; ///< by Escape and by the window's own button
    };
    const Case cases[] = {
        {u"yesnocancel"_s, Answer::Yes, {u"Yes"_s, u"No"_s, u"Cancel"_s}, u"Yes"_s, true},
        {u"yesno"_s, Answer::No, {u"Yes"_s, u"No"_s}, u"No"_s, false},
        {u"okcancel"_s, Answer::Ok, {u"Ok"_s, u"Cancel"_s}, u"Ok"_s, true},
        {u"ok"_s, Answer::Ok, {u"Ok"_s}, u"Ok"_s, false},
        {QString(), Answer::Ok, {}, {}, true},
    };
    for (const Case &c : cases) {
        for (const bool byKey : {true, false}) {
            Form form(u"frmMessageBox"_s);
            MessageDialog dialog(question(c.kind, c.defaultButton), form, nullptr);
            dialog.show();
            QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
            std::ranges::sort(buttons, {}, [](const QPushButton *button) { return button->x(); });
            QStringList texts;
            QString marked;
            for (const QPushButton *button : buttons) {
                texts.append(button->accessibleName());
                marked += button->isDefault() ? button->accessibleName() : QString();
            }
            EXPECT_EQ(texts, c.buttons);
            EXPECT_EQ(marked, c.marked) << qPrintable(c.kind);

            byKey ? QTest::keyClick(&dialog, Qt::Key_Escape) : static_cast<void>(dialog.close());
            EXPECT_EQ(dialog.isVisible(), !c.closes) << qPrintable(c.kind) << byKey;
            if (c.closes) {
                EXPECT_NE(dialog.reply().answer, Answer::Yes);
                EXPECT_NE(dialog.reply().answer, Answer::No);
            }
        }
    }
}

TEST(MessageDialogs, TextIsSeenWhole)
{
    const QString words = u"Have a look at this, please. "_s;
    for (const QString &text : {words.repeated(3), words.repeated(20), u"a/b"_s.repeated(100)}) {
        Form form(u"frmMessageBox"_s);
        Message message = question(u"ok"_s);
        message.text = text;
        MessageDialog dialog(message, form, nullptr);
        dialog.show();
        const auto *view = dialog.findChild<QPlainTextEdit *>();
        EXPECT_FALSE(view->horizontalScrollBar()->isVisible());
        EXPECT_EQ(view->verticalScrollBar()->maximum(), 0) << qPrintable(text.left(40));
    }
}

/// The program's messages over real dialogs.
class RealMessages : public ::testing::Test
{
protected:
    RealMessages() { window.form = &form; }

    Answer ask(const QString &kind, bool showInput = false)
    {
        return messages.ShowMessage(u"Text"_s, Answer::Ok, kind, u"Title"_s, showInput);
    }

    Form form{u"frmMessageBox"_s};
    MessageDialogs window;
    ActionTrace trace;
    MacroVariables variables;
    LanguageTable language;
    Messages messages{form, window, language, trace, variables};
};

TEST_F(RealMessages, LettersWithAltPressTheButtons)
{
    const QHash<Qt::Key, Answer> answers{
        {Qt::Key_Y, Answer::Yes}, {Qt::Key_N, Answer::No}, {Qt::Key_C, Answer::Cancel}};
    for (auto it = answers.cbegin(); it != answers.cend(); ++it) {
        whenOpen([key = it.key()] {
            QTest::qWait(1);
            QTest::keyClick(topDialog(), key);
            ASSERT_NE(topDialog(), nullptr) << "a letter alone may be meant for a cell";
            QTest::keyClick(topDialog(), key, Qt::AltModifier);
        });
        EXPECT_EQ(ask(u"yesnocancel"_s), it.value());
    }
}

TEST_F(RealMessages, MacroCanPressTheButton)
{
    whenOpen([this] { messages.cmdAction[3].click(); });
    EXPECT_EQ(ask(u"yesno"_s), Answer::Yes);
}

TEST_F(RealMessages, MessageOverAMessageHasAnAnswerOfItsOwn)
{
    Answer inner = Answer::Cancel;
    whenOpen([this, &inner] {
        QDialog *outer = topDialog();
        whenOpen([] {
            QTest::mouseClick(topDialog()->findChild<QPushButton *>(u"cmdAction(1)"_s),
                              Qt::LeftButton);
        });
        inner = ask(u"ok"_s);
        EXPECT_TRUE(outer->isVisible()) << "it waits for its own answer";
        QTest::mouseClick(outer->findChild<QPushButton *>(u"cmdAction(3)"_s), Qt::LeftButton);
    });
    EXPECT_EQ(ask(u"yesno"_s), Answer::Yes);
    EXPECT_EQ(inner, Answer::Ok);
}

TEST_F(RealMessages, EnteredVariableIsStored)
{
    whenOpen([] {
        QDialog *dialog = topDialog();
        dialog->findChild<QLineEdit *>(u"txtInput(0)"_s)->setText(u"count"_s);
        dialog->findChild<QLineEdit *>(u"txtInput(1)"_s)->setText(u"12"_s);
        QTest::mouseClick(dialog->findChild<QPushButton *>(u"cmdAction(1)"_s), Qt::LeftButton);
    });
    EXPECT_EQ(ask(u"okcancel"_s, true), Answer::Ok);
    EXPECT_EQ(variables.mcrVar[1], u"count:=12"_s);
}

FileRequest saveRequest(const QString &folder)
{
    return {.info = u"Save subtitle file."_s,
            .folder = folder,
            .name = u"film.sub"_s,
            .filters = {u"Supported files (*.sub, *.srt)|*.sub;*.srt"_s,
                        u"SAMI (*.smi, *.sami)|*.smi;*.sami"_s, u"SubRip (*.srt)|*.srt"_s,
                        u"Video (*.avi, *.mpg)|*.avi;*.mpg;*.wmv"_s},
            .filterIndex = 2,
            .nameEnabled = true,
            .offersMediaName = true,
            .firstOtherFilter = 3};
}

TEST(FileDialogs, FilterIsPreselectedAndComesBack)
{
    QTemporaryDir folder;
    FileDialog dialog(saveRequest(folder.path()), nullptr);
    EXPECT_EQ(dialog.selectedNameFilter(), u"SubRip (*.srt)"_s);
    EXPECT_EQ(dialog.nameFilters().at(1), u"SAMI (*.smi *.sami)"_s);
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    dialog.findChild<QCheckBox *>(u"Check1"_s)->setChecked(true);
    dialog.accept();
    const FileReply reply = dialog.reply();
    EXPECT_TRUE(reply.accepted);
    EXPECT_EQ(reply.filterIndex, 2);
    EXPECT_EQ(reply.path, folder.filePath(u"film.sub"_s));
    EXPECT_TRUE(reply.mediaName);
}

TEST(FileDialogs, SaveUnderAnEntryThatIsNoFormatIsNotAccepted)
{
    QTemporaryDir folder;
    for (const int entry : {0, 3}) {
        FileRequest request = saveRequest(folder.path());
        request.filterIndex = entry;
        FileDialog dialog(request, nullptr);
        dialog.reject();
        EXPECT_FALSE(dialog.reply().accepted) << "Cancel is no file";
        dialog.accept();
        EXPECT_FALSE(dialog.reply().accepted) << entry;
        dialog.selectNameFilter(dialog.nameFilters().at(1));
        dialog.accept();
        EXPECT_EQ(dialog.reply().filterIndex, 1) << entry;
    }
}

class Windows : public ::testing::Test
{
protected:
    TestProgram run;
    FormWindows windows;
};

TEST_F(Windows, OpenAndCloseWithTheirForm)
{
    windows.add(run->frmTip,
                [this](QWidget *parent) { return new TipView(run->frmTip, run->tips, parent); });
    EXPECT_EQ(windows.window(run->frmTip), nullptr) << "made when it is opened";
    run->tips.show();
    QDialog *dialog = windows.window(run->frmTip);
    ASSERT_TRUE(dialog != nullptr && dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible()) << "it has no Cancel";
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(run->frmTip.isOpen());
    run->tips.show();
    run->tips.cmdOk.click();
    EXPECT_FALSE(dialog->isVisible());

    whenOpen([this] {
        EXPECT_TRUE(windows.window(run->frmTip)->isModal());
        run->frmTip.hide();
    });
    windows.runModal(run->frmTip);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Windows, ReportOfAShortLoadDoesNotFlash)
{
    windows.add(
        run->frmControl,
        [this](QWidget *parent) {
            return new ControlWindowView(run->frmControl, run->controlWindow, parent);
        },
        true);
    run->controlWindow.open(u"Loading"_s);
    run->controlWindow.finish();
    QTest::qWait(260);
    EXPECT_EQ(windows.window(run->frmControl), nullptr);

    run->settings.Check3.setOn(false);
    run->controlWindow.open(u"Loading"_s);
    run->controlWindow.append(u"12 subtitles\n"_s);
    run->controlWindow.finish();
    ASSERT_TRUE(QTest::qWaitFor([this] { return windows.window(run->frmControl) != nullptr; }));
    QDialog *dialog = windows.window(run->frmControl);
    EXPECT_FALSE(dialog->isModal());
    EXPECT_TRUE(dialog->findChild<QPlainTextEdit *>()->toPlainText().contains(u"12 subtitles"_s));
    run->controlWindow.cmdOk.click();
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Windows, SplashEndsByKeyAndClickButNotByADrag)
{
    SplashView splash(run->frmSplash, run->splash, nullptr);
    int gone = 0;
    run->splash.gone = [&gone] { ++gone; };
    run->splash.open();
    splash.show();
    QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_EQ(gone, 1);
    run->splash.open();
    QTest::mousePress(&splash, Qt::LeftButton, {}, QPoint(50, 50));
    QTest::mouseMove(&splash, QPoint(90, 90));
    QMouseEvent move(QEvent::MouseMove, QPointF(90, 90), QPointF(90, 90), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&splash, &move);
    QTest::mouseRelease(&splash, Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_EQ(gone, 1);
    QTest::mouseClick(&splash, Qt::LeftButton);
    EXPECT_EQ(gone, 2);
}

TEST(Printing, GoesOnOnTheNextPage)
{
    QTemporaryDir folder;
    const auto pages = [&folder](const QStringList &lines) {
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(u"out.pdf"_s));
        return printLines(printer, u"film.srt"_s, lines);
    };
    EXPECT_EQ(pages({}), 1);
    EXPECT_EQ(pages({u"one"_s}), 1);
    EXPECT_GT(pages(QStringList(400, u"a line"_s)), 3);
    EXPECT_GT(pages(QStringList(40, QString(2000, u'x'))), pages(QStringList(40, u"x"_s)))
        << "a wide line goes on below";
    QFile pdf(folder.filePath(u"out.pdf"_s));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.read(5), QByteArray("%PDF-"));
}

} // namespace
} // namespace kavro::test
