#include "formats/format_table.h"
#include "tests/cli/cli_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace kavro::test {
namespace {

class Dump : public CliTest
{
protected:
    /// `line` is split at blanks; an empty object where nothing was printed.
    QJsonObject dump(const QString &line, int status = 0)
    {
        const CliRun result = run((u"dump "_s + line).split(u' '));
        EXPECT_EQ(result.status, status) << result;
        return QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).object();
    }
};

TEST_F(Dump, PrintsTheWholeDocument)
{
    const std::string expected =
        R"({"file": "FOLDER/film.srt", "format": 9, "formatName": "SubRip", )"
        R"("encoding": "UTF-8", "frameRate": "25.000", "fontName": "Arial", )"
        R"("fileChanged": false, "subtitleChanged": false, "macroRunning": false, )"
        R"("errorCount": 0, "rows": [)"
        R"([" { 1", "00:00:01,000", "00:00:02,500", " The first line", "", ""], )"
        R"([" 2 }", "00:00:03,250", "00:00:04,999", " Two lines,", " one of them leaning", ""]], )"
        R"("endRow": ["", "", "", "", "", ""], )"
        R"("fonts": ["", "Arial;Western;Regular;16", "Arial;Western;Italic;16"], "errors": {}, )"
        R"("nodes": [{"name": "film", "first": 1, "last": 2, "flag": false}, )"
        R"({"name": "film", "first": 1, "last": 2, "flag": false}], "curNode": 1, )"
        R"("row": 1, "col": 3, "topRow": 1, "curRow": 1, "searchIndex": 0, "scriptTime": 99, )"
        R"("back": [[1, 1, "00FF00"], [2, 2, "FF0000"]], "partition": [], "clipboard": [], )"
        R"("history": [], "recent": ["FOLDER/film.srt"], "lastAction": {"text": "", "code": 0}})"
        "\n";
    EXPECT_EQ(run({u"dump"_s, u"./film.srt"_s}), (CliRun{.status = 0, .out = expected, .err = {}}));
}

TEST_F(Dump, AddsFilesInOrder)
{
    const QJsonObject document = dump(u"small.srt --add film.srt --add small.srt"_s);
    QStringList starts;
    for (const QJsonValue &row : document[u"rows"].toArray())
        starts.append(row[1].toString());
    EXPECT_EQ(starts, (QStringList{u"00:00:00,500"_s, u"00:00:02,000"_s, u"00:00:04,250"_s,
                                   u"00:00:06,499"_s}));
    EXPECT_EQ(document[u"nodes"].toArray().size(), 4);
    EXPECT_TRUE(document[u"fileChanged"].toBool());
    EXPECT_TRUE(document[u"file"].toString().endsWith(u"/small.srt"));
}

TEST_F(Dump, WhatCanNotBeAddedIsLeftOut)
{
    EXPECT_EQ(dump(u"film.srt --add none.srt --add small.srt"_s, 1)[u"rows"].toArray().size(), 3);
}

TEST_F(Dump, AnInputThatFailsPrintsNothing)
{
    EXPECT_EQ(run({u"dump"_s, u"none.srt"_s}),
              (CliRun{.status = 1,
                      .out = {},
                      .err = "none.srt: Error: File 'FOLDER/none.srt' can't be loaded.\n"
                             "  The file doesn't exist.\n"}));
    EXPECT_TRUE(dump(u"."_s, 1).isEmpty());
}

TEST_F(Dump, TakesRateEncodingAndAnswers)
{
    write(u"latin.srt"_s, "1\n00:00:01,000 --> 00:00:02,000\n\xA4\n\n");
    const QJsonObject document = dump(u"latin.srt --fps 23.97 --encoding iso-8859-15"_s);
    EXPECT_EQ(document[u"frameRate"].toString(), u"23.970");
    EXPECT_EQ(document[u"encoding"].toString(), u"ISO-8859-15");
    EXPECT_EQ(document[u"rows"][0][3].toString(), u" €");
}

TEST_F(Dump, ASkippedLineStillPrintsTheRest)
{
    const QJsonObject document = dump(u"four.srt --answer yes"_s, 1);
    EXPECT_EQ(document[u"rows"][0][5].toString(), u" three");
}

TEST_F(Dump, AFolderOfItsOwnIsMadeAndFilled)
{
    dump(u"film.srt --app-dir app"_s);
    EXPECT_TRUE(filesIn(u"app"_s).contains(u"System"_s));
    EXPECT_EQ(filesIn(u"app/Data/Temporarily"_s), QStringList());
}

// The files that the writers are held against, under a name that tells nothing.
TEST_F(Dump, NamesTheFormatThatItFound)
{
    for (const FormatInfo &info : formatTable()) {
        const QString name = info.name.toString();
        SCOPED_TRACE(name.toStdString());
        const QString golden = QStringLiteral(KAVRO_SOURCE_DIR "/tests/formats/golden/")
                               + name.toLower().replace(u' ', u'-') + SetSubFileExt(info.id);
        const QString file = u"film%1"_s.arg(info.id);
        ASSERT_TRUE(QFile::copy(golden, file));
        // The trailer of the one is a bad line to its own reader.
        const QJsonObject document = dump(file, info.id == SubViewer1 ? 1 : 0);
        EXPECT_EQ(document[u"format"].toInt(), info.id);
        EXPECT_EQ(document[u"formatName"].toString(), name);
        EXPECT_FALSE(document[u"rows"].toArray().isEmpty());
    }
}

} // namespace
} // namespace kavro::test
