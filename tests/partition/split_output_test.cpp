#include "formats/format_table.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class SplitOutputTest : public testing::Test
{
protected:
    SplitOutputTest()
    {
        const QString text = u"1\n00:00:01,000 --> 00:00:02,000\nOne ☃\n\n"
                             "2\n00:09:00,000 --> 00:09:59,000\nTwo\n\n"
                             "3\n00:10:00,000 --> 00:10:01,000\nThree\n\n"
                             "4\n00:25:00,000 --> 00:25:01,000\nFour\n\n"_s;
        run.start(run.write(u"films/film.srt"_s, text));
        run.takeMessages();
        formats.setSelected(SubRip - 1);
    }

    void setParts(const QList<std::pair<QString, QString>> &parts)
    {
        QList<GridRow> rows{run->partition.grid.allRows().constFirst()};
        for (const auto &[name, length] : parts) {
            rows.append({QString::number(rows.size()), name, length});
        }
        rows.append(GridRow());
        run->partition.grid.setAllRows(rows);
    }

    void setTwoParts() { setParts({{u"a.old"_s, ten}, {u"b"_s, ten}}); }

    /// Names of the folder of the document, and its content.
    [[nodiscard]] QString files() const
    {
        return QDir(run.path(u"films"_s)).entryList(QDir::Files, QDir::Name).join(u' ');
    }

    /// Label7 and the preview's first line with a text.
    [[nodiscard]] std::string preview() const
    {
        return (split.Label7.caption() + u" / "_s
                + split.txtPreview.text().section(u"\r\n"_s, 2, 2))
            .toStdString();
    }

    const QString ten = u"00:10:00,000"_s;
    mutable TestProgram run;
    SplitOutput &split = run->splitOutput;
    DropList &formats = run->formats.combo3;
};

TEST_F(SplitOutputTest, MakesAFileForEachPartWithTimesOfItsOwn)
{
    setTwoParts();
    split.command5.click();
    EXPECT_EQ(run.takeMessages(), QStringList());
    EXPECT_EQ(files(), u"a.srt b.srt film.srt"_s);
    EXPECT_EQ(run.read(run.path(u"films/a.srt"_s)), u"1\n00:00:01,000 --> 00:00:02,000\nOne ☃\n\n"
                                                    "2\n00:09:00,000 --> 00:09:59,000\nTwo\n\n"_s);
    EXPECT_EQ(run.read(run.path(u"films/b.srt"_s)),
              u"1\n00:00:00,000 --> 00:00:01,000\nThree\n\n"_s);
    EXPECT_EQ(run->partition.List2.items(), (QStringList{u"a.srt"_s, u"b.srt"_s}));
    EXPECT_EQ(run->document.subFileName, run.path(u"films/b.srt"_s));
    EXPECT_EQ(run->trace.lastActionCode, 404);
}

TEST_F(SplitOutputTest, NothingIsWrittenWhenANameIsBad)
{
    for (const QString &name : {QString(), u"  "_s, u".srt"_s, u"../b"_s, u"sub/b"_s, u"sub\\b"_s,
                                u"a\tb"_s, QString(252, u'x'), QString(126, u'é')})
    {
        setParts({{u"a"_s, ten}, {name, ten}});
        split.command5.click();
        EXPECT_EQ(run.takeMessages(),
                  QStringList(u"Part 2 has no name that a file can have: '%1'.\n"
                              "Nothing was written."_s.arg(name)));
        EXPECT_EQ(files(), u"film.srt"_s);
        EXPECT_EQ(run->trace.lastActionCode, 30) << "the message's own";
    }
    setParts({{QString(251, u'x'), ten}});
    split.command5.click();
    EXPECT_EQ(run.takeMessages(), QStringList());
    EXPECT_TRUE(QFileInfo::exists(run.path(u"films/"_s + QString(251, u'x') + u".srt"_s)));
}

TEST_F(SplitOutputTest, TheWholeFileIsShownWhateverTheDocumentsEncodingIs)
{
    setTwoParts();
    run->document.encoding = *encodingByName(u"windows-1252");
    split.command28.click();
    EXPECT_EQ(split.txtPreview.text(), u"1\r\n00:00:01,000 --> 00:00:02,000\r\nOne ☃\r\n\r\n"
                                       "2\r\n00:09:00,000 --> 00:09:59,000\r\nTwo\r\n\r\n"_s);
    EXPECT_EQ(run.takeMessages(), QStringList()) << "no question about the encoding";
}

TEST_F(SplitOutputTest, LongTitlesLoseTheirMiddle)
{
    const QString head(33, u'h');
    const struct
    {
        QString name;
        QString title;
    } rows[] = {
        {head + QString(28, u'm'), head + QString(28, u'm') + u" [SubRip]"_s}, // 70
        {head + QString(29, u'm'), head + u" .. "_s + QString(24, u'm') + u" [SubRip]"_s},
    };
    for (const auto &row : rows) {
        setParts({{row.name, ten}});
        split.command28.click();
        EXPECT_EQ(split.Label7.caption(), u"# 1 = "_s + row.title);
        split.command28.click();
    }
}

TEST_F(SplitOutputTest, APartWithoutSubtitlesIsNoFault)
{
    setParts({{u"none"_s, u"00:00:00,000"_s}, {u"all"_s, u"01:00:00,000"_s}});
    split.command28.click();
    EXPECT_EQ(split.txtPreview.text(), QString());
    formats.setSelected(SubStationAlpha - 1);
    split.command28.click();
    split.command28.click();
    EXPECT_TRUE(split.txtPreview.text().startsWith(u"Synch Point:"_s)) << "its header alone";
    EXPECT_EQ(run.takeMessages(), QStringList());
}

TEST_F(SplitOutputTest, ALostPreviewIsTold)
{
    setTwoParts();
    split.command28.click();
    const QString lost = run->folders.path(Folder::Temporary, u"Splitprv.002");
    ASSERT_TRUE(QFile::remove(lost));
    split.command29[1].click();
    const QStringList messages = run.takeMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith(u"The preview '%1' can't be read."_s.arg(lost)));
    EXPECT_EQ(preview(), "# 2 = b [SubRip] / ");
    split.command29[0].click();
    EXPECT_EQ(preview(), "# 1 = a [SubRip] / One ☃");
}

TEST_F(SplitOutputTest, TheEndOfThePreviewClearsTheApplicationFolderAlone)
{
    setTwoParts();
    const QString root = run.writeApp(u"SPLITPRV.007"_s, u"old"_s);
    const QString other = run.writeApp(u"splitprv"_s, u"mine"_s);
    const QString users = run.write(u"films/splitprv.001"_s, u"mine"_s);
    split.command28.click();
    EXPECT_TRUE(QFileInfo::exists(root));
    split.command28.click();
    EXPECT_FALSE(QFileInfo::exists(root));
    EXPECT_TRUE(QFileInfo::exists(other));
    EXPECT_TRUE(QFileInfo::exists(users));
    EXPECT_TRUE(QFileInfo::exists(run->folders.path(Folder::Temporary, u"Splitprv.002")));
}

} // namespace
} // namespace kavro::test
