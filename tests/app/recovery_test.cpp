#include "core/kept_document.h"
#include "tests/support/test_program.h"

#include <QDir>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class RecoveryTest : public ::testing::Test
{
protected:
    /// Starts, loads `name` as Latin text, and changes one cell of row 1.
    void work(const QString &name = u"film.srt"_s)
    {
        run.start(run.write(name, twoSubtitles()));
        change(u"changed"_s);
    }

    void change(const QString &text)
    {
        run->editor.grdSubEdit.moveTo(1, FirstTextColumn);
        run->editor.rtfSubEditBasic.type(text);
        run->editor.Command14.click();
    }

    void tick()
    {
        run->recovery.timRecovery.fire();
        run->recovery.finishWriting();
    }

    /// Kills the program; the next one gets that answer to an offer.
    void startAgain(Answer answer, const QString &file = {})
    {
        run.takeMessages();
        run.restart();
        run.doors.messages.answer(answer);
        run.start(file);
    }

    QStringList files()
    {
        return QDir(run.appPath(u"System/Recovery"_s)).entryList({u"*.rec*"_s}, QDir::Files);
    }

    TestProgram run;
};

TEST_F(RecoveryTest, WhatAKilledProgramHadComesBackWhole)
{
    work();
    run->frameRates.optFrameRate[1].click();
    run->document.encoding = {.name = "windows-1251", .bom = false};
    run->document.nodeCount = 2;
    run->document.nodes[1] = {.firstRow = 1, .lastRow = 1, .name = u"Begin"_s, .flag = true};
    run->document.nodes[2] = {.firstRow = 2, .lastRow = 2, .name = u"End"_s, .flag = false};
    tick();
    const QString file = run->document.subFileName;
    const QStringList rows = run.rows();
    const QStringList fonts = run->editor.lstFont.items();

    startAgain(Answer::Yes);
    const SubtitleDocument &document = run->document;
    EXPECT_EQ(run.rows(), rows);
    EXPECT_EQ(run->editor.lstFont.items(), fonts);
    EXPECT_EQ(document.subFileName, file);
    EXPECT_EQ(document.curFormatId, 9);
    EXPECT_EQ(document.encoding.name, "windows-1251");
    EXPECT_EQ(document.frameRate, u"24.000"_s);
    EXPECT_EQ(document.nodeCount, 2);
    EXPECT_EQ(document.nodes[1].name, u"Begin"_s);
    EXPECT_TRUE(document.nodes[1].flag);
    EXPECT_EQ(run->editor.grdSubEdit.text(2, NumberColumn), u" { 2 }"_s);
    EXPECT_TRUE(document.fileChanged());
    EXPECT_TRUE(run->menu.mnuSavesubfile.isEnabled());

    // No step back makes it what the file holds.
    change(u"once more"_s);
    run->menu.mnuUndo.click();
    EXPECT_EQ(run.rows(), rows);
    EXPECT_TRUE(document.fileChanged());

    // It is still kept until it is saved, without a further change.
    EXPECT_EQ(files().size(), 1);
    startAgain(Answer::Yes);
    EXPECT_EQ(run.rows(), rows);
}

TEST_F(RecoveryTest, ADocumentWithoutAFileComesBackToo)
{
    run.start();
    run->menu.mnuNewFile.click();
    change(u"first words"_s);
    tick();
    startAgain(Answer::Yes);
    EXPECT_EQ(run.rows(), QStringList{u"||first words "_s});
    EXPECT_TRUE(run->document.savedPath.isEmpty());
    EXPECT_EQ(run->navigation.Combo13.count(), 0);
}

TEST_F(RecoveryTest, NoForgetsAndCancelAsksAgain)
{
    work();
    tick();
    for (const Answer answer : {Answer::Cancel, Answer::No}) {
        startAgain(answer);
        EXPECT_EQ(run.takeMessages().size(), 1);
        EXPECT_EQ(files().isEmpty(), answer == Answer::No);
        EXPECT_TRUE(run->document.subFileName.isEmpty());
    }
}

TEST_F(RecoveryTest, NothingIsLeftBehindASaveAnExitOrAnotherFile)
{
    work();
    tick();
    ASSERT_TRUE(QFile::remove(run.appPath(u"System/Recovery/1.rec"_s)));
    tick();
    EXPECT_TRUE(files().isEmpty()) << "a tick without a change writes nothing";
    change(u"more"_s);
    tick();
    EXPECT_EQ(files().size(), 1);
    run->menu.mnuSave.click();
    run->recovery.finishWriting();
    EXPECT_FALSE(run->document.fileChanged());
    EXPECT_TRUE(files().isEmpty());
    EXPECT_FALSE(run->recovery.timRecovery.isOn());

    change(u"again"_s);
    tick();
    run.doors.messages.answer(Answer::Yes);
    run->menu.mnuNewFile.click();
    run->recovery.finishWriting();
    EXPECT_TRUE(files().isEmpty());

    change(u"and again"_s);
    tick();
    EXPECT_EQ(files().size(), 1);
    run.doors.messages.answer(Answer::No);
    EXPECT_TRUE(run->exit());
    EXPECT_TRUE(QDir(run.appPath(u"System/Recovery"_s)).isEmpty());
}

TEST_F(RecoveryTest, AProgramThatRunsKeepsItsOwn)
{
    work();
    tick();
    TestProgram other({.shipped = {}, .appFolder = run.appPath({})});
    other.start();
    EXPECT_TRUE(other.takeMessages().isEmpty());
    other->menu.mnuNewFile.click();
    other->editor.grdSubEdit.setText(1, FirstTextColumn, u"theirs"_s);
    other->document.markEdited();
    other->recovery.timRecovery.fire();
    other->recovery.finishWriting();
    EXPECT_EQ(files(), (QStringList{u"1.rec"_s, u"2.rec"_s}));
}

TEST_F(RecoveryTest, AFileNamedAtTheStartIsOfferedItsOwnChangesAlone)
{
    work();
    tick();
    const QString file = run->document.subFileName;
    const QString other = run.write(u"other.srt"_s, twoSubtitles());
    for (const bool gone : {false, true}) {
        SCOPED_TRACE(gone);
        if (gone) {
            ASSERT_TRUE(QFile::remove(file) && QFile::remove(other));
        }
        run.restart();
        run.start(other);
        EXPECT_EQ(run.takeMessages().size(), gone ? 1 : 0) << "there is nothing to load";
        EXPECT_EQ(run->document.subFileName, gone ? QString() : other);
        startAgain(Answer::Yes, file);
        EXPECT_EQ(run->editor.grdSubEdit.text(1, FirstTextColumn), u"changed "_s);
        run.takeMessages();
    }
}

TEST_F(RecoveryTest, AFileThatWasWrittenSinceIsNotReplacedUnasked)
{
    enum class Source { Same, Written, Gone };
    for (const Source source : {Source::Same, Source::Written, Source::Gone}) {
        SCOPED_TRACE(static_cast<int>(source));
        run.doors.files.shown.clear();
        work();
        tick();
        QFile file(run->document.subFileName);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addDays(source == Source::Written ? 1 : -1),
                         QFileDevice::FileModificationTime);
        file.close();
        ASSERT_TRUE(source != Source::Gone || file.remove());
        startAgain(Answer::Yes);
        const bool asks = source == Source::Written;
        EXPECT_EQ(run.takeMessages().constFirst().contains(u"once more"_s), asks);
        run->menu.mnuSave.click();
        EXPECT_EQ(run.doors.files.shown.size(), asks ? 1 : 0);
        EXPECT_EQ(TestProgram::read(file.fileName()).contains(u"changed"_s), !asks);
        run->document.setFileChanged(false);
        EXPECT_TRUE(run->exit());
        run.restart();
    }
}

TEST_F(RecoveryTest, ADamagedFileIsPutAside)
{
    work();
    tick();
    const QString path = run.appPath(u"System/Recovery/1.rec"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    for (const qsizetype kept : {qsizetype(0), qsizetype(3), qsizetype(30), whole.size() - 1}) {
        run.restart();
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(whole.first(kept));
        file.close();
        run.start();
        EXPECT_TRUE(run.takeMessages().isEmpty()) << kept;
        EXPECT_EQ(files(), QStringList{u"1.rec.bad"_s}) << kept;
    }
}

} // namespace
} // namespace kavro::test
