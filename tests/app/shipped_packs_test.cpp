// The packs that the program ships, and the script that makes them.

#include "app/language_sections.h"
#include "core/lang_line.h"
#include "tests/app/language_entries.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

const QString source = QStringLiteral(KAVRO_SOURCE_DIR);
const QString languages = source + u"/share/System/Language/"_s;

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The texts of a source by section and index, joined by "^".
QHash<QString, QString> textsOf(const QString &path)
{
    QHash<QString, QString> texts;
    QString section;
    const QStringList lines = readText(path).split(u'\n');
    for (const QString &line : lines.sliced(5)) {
        if (line.startsWith(u'[')) {
            section = line;
        } else if (!line.isEmpty() && !line.startsWith(u"//")) {
            const QString key = section + line.section(u',', 0, 0);
            EXPECT_FALSE(texts.contains(key)) << qPrintable(key);
            texts.insert(key, line.section(u',', 1));
        }
    }
    return texts;
}

std::vector<std::string> shippedPacks()
{
    std::vector<std::string> names;
    for (const QString &file : QDir(languages + u"Source"_s).entryList({u"*.txt"_s})) {
        names.push_back(file.chopped(4).toStdString());
    }
    return names;
}

class ShippedPack : public ::testing::TestWithParam<std::string>
{
protected:
    QString name = QString::fromStdString(GetParam());
    QString sourceFile = languages + u"Source/"_s + name + u".txt"_s;
    QString packFile = languages + name + u".lng"_s;
};

TEST_P(ShippedPack, IsUpToDate)
{
    QString expected;
    for (const QString &line : readText(sourceFile).chopped(1).split(u'\n')) {
        expected += EncodeLangLine(line, languageKey) + u"\r\n"_s;
    }
    EXPECT_TRUE(readText(packFile) == expected) << "run scripts/langpack all";
}

/// What has to stand in a text whatever the language: variables, blanks at the ends that part it
/// from what is put behind it, the sign that ends it, types and values ahead of a description.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression fixed(
        u"^ +| +$|:(?=\\s*$)|sysVar\\[[0-9]+|%[0-9a-z]|/n|"
        u"^\\w+:=|#|(True|False)(?=[:=])|-?[0-9]+:?=|\\.\\.[^ ]+"_s);
    QStringList parts;
    for (auto found = fixed.globalMatch(text); found.hasNext();) {
        parts.append(found.next().captured());
    }
    return parts;
}

/// The words that a language shares with English, in small letters; no text of several words is.
const QHash<QString, QString> sharedWords{
    {u"Dutch"_s, u"build diagnose editor filters info later macro macro's menu ok online pauze "
                 "recent stop type wizard"_s},
    {u"French"_s,
     u"build collection collections date format macro menu ok options style type variables"_s},
    {u"German"_s, u"build diagnose editor format info name ok online system text"_s},
    {u"Spanish"_s, u"col editor error macro no panel variables"_s},
};

TEST_P(ShippedPack, HasEveryTextInItsOwnWords)
{
    static const QRegularExpression word(u"\\p{L}{2,}"_s);
    static const QRegularExpression ends(u"^\\W+|\\W+$"_s);
    const QStringList shared = sharedWords[name].split(u' ');
    QHash<QString, QString> texts = textsOf(sourceFile);
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageEntry &entry : entriesOf(section)) {
            const QString key = u"[%1]%2"_s.arg(section.name).arg(entry.index);
            const QString line = texts.take(key);
            const QString text = line.section(u'^', 0, 0);
            const QString tip = line.section(u'^', 1);
            EXPECT_EQ(text.isEmpty(), entry.caption.isEmpty()) << "caption " << qPrintable(key);
            EXPECT_EQ(tip.isEmpty(), entry.tip.isEmpty()) << "tool tip " << qPrintable(key);
            EXPECT_EQ(fixedParts(text), fixedParts(entry.caption)) << qPrintable(key);
            EXPECT_TRUE(text != entry.caption || !word.match(text).hasMatch()
                        || shared.contains(QString(text).remove(ends).toLower()))
                << qPrintable(key + u' ' + text);
            EXPECT_TRUE(tip != entry.tip || tip.isEmpty()) << qPrintable(key);
        }
    }
    EXPECT_EQ(texts.keys().join(u' '), QString()) << "entries that set nothing";
}

/// What a control shows of an entry: its caption, or that of the tab.
QString shownBy(const Control &control, const LanguageRow &row)
{
    if (const auto *tabs = qobject_cast<const TabStrip *>(&control)) {
        return tabs->tabCaption(row.tab) + u'^' + tabs->tabToolTip(row.tab);
    }
    const auto *captioned = qobject_cast<const CaptionControl *>(&control);
    return (captioned && !row.caption.isNull() ? captioned->caption() : QString()) + u'^'
           + control.toolTip();
}

/// A program that runs in the language of a pack.
void startIn(TestProgram &run, const QString &packFile)
{
    QStringList lines = settingsWith(19, 1).split(u'\n');
    lines[19] = packFile;
    run.writeApp(u"System/Settings/set.sdf"_s, lines.join(u'\n'));
    run.start();
    run->splash.ExitfrmSplash();
}

TEST_P(ShippedPack, StandsOnEveryControlOfARunningProgram)
{
    TestProgram run;
    startIn(run, packFile);
    EXPECT_TRUE(run.takeMessages().isEmpty());
    EXPECT_TRUE(QFile::exists(languages + u"Help/"_s + run->language.languageFolder));
    LoadRequest request{.path = run.write(u"film.srt"_s, twoSubtitles())};
    run->loader.LoadSubFile(request);
    for (int tab = 0; tab < run->navigation.tabMain.count(); ++tab) {
        run->navigation.tabMain.pick(tab);
    }
    const QHash<QString, QString> texts = textsOf(sourceFile);
    EXPECT_EQ(run->document.gridColCaption[StartColumn] + u'^', texts[u"[Other]10"_s]);
    EXPECT_EQ(run->fonts.Combo9[1].item(0) + u'^', texts[u"[Other]25"_s]);
    EXPECT_EQ(run->status.StatusBar1.panel(StatePanel) + u'^', texts[u"[Other]39"_s]);
    const TreeView &tree = run->navigation.TV1;
    EXPECT_EQ(tree.node(tree.find(u"file"_s)).text + u'^', texts[u"[Main Nodes]4"_s]);
    int compared = 0;
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageRow &row : section.rows) {
            const bool elsewhere = row.control.contains(u'.');
            const QString full =
                elsewhere ? row.control.toString() : u"%1.%2"_s.arg(section.form, row.control);
            if (full == u"frmMain.Label27") {
                continue; // the player's state, made from the language table
            }
            if (const Control *control = run->control(full)) {
                EXPECT_EQ(shownBy(*control, row),
                          texts[u"[%1]%2"_s.arg(section.name).arg(row.index)])
                    << qPrintable(full);
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 150);
}

TEST_P(ShippedPack, TellsFaultsFindingsAndChanges)
{
    TestProgram run;
    startIn(run, packFile);
    const QHash<QString, QString> texts = textsOf(sourceFile);
    const auto own = [&texts](const QString &key) { return texts[key].chopped(1); };

    LoadRequest missing{.path = run.path(u"none.srt"_s)};
    run->loader.LoadSubFile(missing);
    EXPECT_TRUE(run.takeMessages().constLast().endsWith(own(u"[Faults]1"_s)));
    run->fileCommands.window.List3.setSelected(0);
    EXPECT_EQ(run->fileCommands.window.Label5.caption(), own(u"[Notes]6"_s));

    LoadRequest request{.path = run.write(u"film.srt"_s,
                                          u"1\r\n00:00:01,000 --> 00:00:05,000\r\nA\r\n\r\n"
                                          "2\r\n00:00:04,000 --> 00:00:03,000\r\nB\r\n\r\n"_s)};
    run->loader.LoadSubFile(request);
    run->diagnose.GoDiagnose();
    EXPECT_EQ(run->status.StatusBar1.panel(FindingsPanel), own(u"[Other]46"_s).arg(2));
    const TreeView &tree = run->diagnose.tvDiag;
    const int line = tree.find(u"err_ 2"_s);
    ASSERT_NE(line, TreeView::noNode);
    const QString word = own(u"[Window Texts]20"_s);
    EXPECT_EQ(tree.node(line).text, word + u" 0002"_s);
    EXPECT_TRUE(own(u"[Findings]27"_s).startsWith(word + u" %c"_s)) << "a click looks for the row";
    run->diagnose.tvDiag.click(line);
    EXPECT_EQ(run->editor.grdSubEdit.row(), 2);

    run->editor.Command11.click();
    EXPECT_TRUE(run->history.List1.items().constLast().endsWith(own(u"[Changes]2"_s).arg(2)));
}

INSTANTIATE_TEST_SUITE_P(All, ShippedPack, ::testing::ValuesIn(shippedPacks()),
                         [](const auto &pack) { return pack.param; });

TEST(LangpackScript, AgreesWithTheProgram)
{
    const QString python = QStandardPaths::findExecutable(u"python3"_s);
    if (python.isEmpty()) {
        GTEST_SKIP() << "no python3";
    }
    const auto call = [&python](const QStringList &arguments) {
        QProcess process;
        process.start(python, QStringList{source + u"/scripts/langpack"_s} + arguments);
        process.waitForFinished();
        return process.exitCode();
    };
    TestProgram run;
    const QString plain = u"Version:=4.00\n\n  0,caf\u00e9 \u20ac^\U0001d11e\n[End Pack]\n"_s;
    const QString text = run.write(u"plain.txt"_s, plain);
    const QString pack = run.path(u"made.lng"_s);
    ASSERT_EQ(call({u"encode"_s, text, pack}), 0);
    QString expected;
    for (const QString &line : plain.chopped(1).split(u'\n')) {
        expected += EncodeLangLine(line, languageKey) + u'\n';
    }
    EXPECT_EQ(TestProgram::read(pack), expected);

    const QString back = run.path(u"back.txt"_s);
    ASSERT_EQ(call({u"decode"_s, pack, back}), 0);
    EXPECT_EQ(readText(back), plain);
    EXPECT_NE(call({u"decode"_s, text, back}), 0);
}

} // namespace
} // namespace kavro::test
