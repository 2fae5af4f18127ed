#include "app/language_sections.h"

#include "core/lang_line.h"
#include "formats/file_filters.h"
#include "tests/app/language_entries.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <cerrno>
#include <system_error>

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

TEST(LanguageSections, StandInOneOrder)
{
    QSet<QStringView> names;
    QSet<QString> controls;
    for (const LanguageSection &section : languageSections()) {
        const std::string name = section.name.toString().toStdString();
        EXPECT_FALSE(names.contains(section.name)) << name;
        names.insert(section.name);
        int last = -1;
        QSet<QString> targets;
        for (const LanguageEntry &entry : entriesOf(section)) {
            EXPECT_GT(entry.index, last) << name << " entry " << entry.index;
            last = entry.index;
            EXPECT_FALSE(targets.contains(entry.sets))
                << name << " twice " << qPrintable(entry.sets);
            targets.insert(entry.sets);
            if (section.target == LanguageTarget::Controls) {
                EXPECT_FALSE(controls.contains(entry.sets)) << name << qPrintable(entry.sets);
            }
            controls.insert(entry.sets);
        }
        for (const LanguageRow &row : section.rows) {
            EXPECT_GE(row.index, static_cast<int>(section.groups.size()) * LanguageTable::items)
                << name << " entry " << row.index << " lies in a group";
        }
    }
    EXPECT_EQ(names.size(), 52);
}

/// Captions that are no text of a pack, by control without its index, and why.
const QHash<QString, const char *> withoutRow{
    {u"frmMain"_s, "title and version"},
    {u"frmMain.Label13"_s, "the current cell"},
    {u"frmMain.Label24"_s, "a time"},
    {u"frmMain.Label36"_s, "entry of a list"},
    {u"frmMain.Label38"_s, "entry of a list"},
    {u"frmMain.Label42"_s, "entry of a list"},
    {u"frmMain.Label43"_s, "entry of a list"},
    {u"frmMain.Label46"_s, "entry of a list"},
    {u"frmMain.Label49"_s, "entry of a list"},
    {u"frmMain.Label48"_s, "an item of the language table"},
    {u"frmMain.command4"_s, "(0) and (1) are items of the language table"},
    {u"frmMain.command55"_s, "a sign"},
    {u"frmMain.lblEncoding"_s, "name of an encoding"},
    {u"frmMain.lblSubRowCount"_s, "numbers"},
    {u"frmMain.optFrameRate"_s, "the rates themselves"},
    {u"frmControl"_s, "an item of the language table"},
    {u"frmFile.Label1"_s, "a folder"},
    {u"frmFile.Label36"_s, "a drive"},
    {u"frmFile.Label5"_s, "entry of a list"},
    {u"frmAbout.lblTitle"_s, "title and version"},
    {u"frmAbout.lblBuild"_s, "an item of the language table"},
    {u"frmAbout.lblProgrammed"_s, "an item of the language table"},
    {u"frmAbout.lblLanguage"_s, "an item of the language table"},
    {u"frmAbout.lblAuthor"_s, "an item of the language table"},
    {u"frmSettings.Label38"_s, "entry of a list"},
    {u"frmSettings.Label64"_s, "entry of a list"},
    {u"frmSettings.startup"_s, "a node of the Settings tree"},
    {u"frmSettings.defaults"_s, "a node of the Settings tree"},
    {u"frmSettings.lng"_s, "a node of the Settings tree"},
    {u"frmSettings.general"_s, "a node of the Settings tree"},
    {u"frmSettings.script"_s, "a node of the Settings tree"},
    {u"frmSettings.audio"_s, "a node of the Settings tree"},
    {u"frmSplash.Label1"_s, "shown before a pack is read"},
    {u"frmSplash.lblBuild"_s, "shown before a pack is read"},
    {u"frmSplash.lblVersion"_s, "shown before a pack is read"},
    {u"frmTip.lblTipText"_s, "a line of the help folder"},
};

/// Controls and forms with a caption that `covered` hasn't, folding signs left out.
QStringList uncoveredCaptions(const Program &program, const QSet<QString> &covered)
{
    QStringList names;
    for (Form *form : program.forms()) {
        if (!form->caption().isEmpty() && !covered.contains(form->name())) {
            names.append(form->name());
        }
        for (Control *control : form->controls()) {
            const auto *captioned = qobject_cast<CaptionControl *>(control);
            const QString caption = captioned ? captioned->caption() : QString();
            if (!caption.isEmpty() && caption != u">>" && caption != u"<<"
                && !covered.contains(control->fullName()))
            {
                names.append(control->fullName().section(u'(', 0, 0));
            }
        }
    }
    names.removeDuplicates();
    return names;
}

/// Texts that views write ahead of any pack.
const QSet<QString> beforeAPack{u"Build"_s, u"Editor for film subtitles"_s};

TEST(LanguageSections, CoverEveryTextThatAViewWrites)
{
    QSet<QString> covered = beforeAPack;
    for (const LanguageRow &row : languageSection(u"Window Texts")->rows) {
        covered.insert(row.caption.toString());
    }
    const QRegularExpression call(u"\\btr\\(\\s*\"([^\"]*)\"(\\))?"_s);
    QSet<QString> written;
    for (const QString &file : QDir(source + u"/src/ui"_s).entryList({u"*.cpp"_s, u"*.h"_s})) {
        const QString text = readText(source + u"/src/ui/"_s + file);
        for (const auto &found : call.globalMatch(text)) {
            EXPECT_TRUE(covered.contains(found.captured(1)) && found.hasCaptured(2))
                << qPrintable(file) << ": " << qPrintable(found.captured(1));
            written.insert(found.captured(1));
        }
    }
    EXPECT_EQ((covered - written).values().join(u", "_s), QString()) << "written by no view";
}

/// The sources but those of the command line, with literals that stand one behind the other joined.
QString programSources()
{
    static const QRegularExpression seam(u"\"(_s)?\\s*\\n\\s*u?\""_s);
    QString text;
    QDirIterator files(source + u"/src"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.contains(u"/language_sections"_s) && !path.contains(u"/src/cli/"_s)) {
            text += readText(path).remove(seam);
        }
    }
    return text;
}

/// Faults that the system words: Qt's two, and those of the kinds that a file can meet.
QStringList systemFaults()
{
    QStringList texts{u"Unknown error"_s, u"file to open is a directory"_s};
    for (const int code :
         {EPERM,  ENOENT, EIO,    ENXIO,     EACCES,   EBUSY,     EEXIST,      ENODEV, ENOTDIR,
          EISDIR, ENFILE, EMFILE, ETXTBSY,   EFBIG,    ENOSPC,    EROFS,       EMLINK, EPIPE,
          ELOOP,  ESTALE, EDQUOT, ETIMEDOUT, ENOTCONN, ENOTEMPTY, ENAMETOOLONG})
    {
        texts.append(QString::fromStdString(std::generic_category().message(code)));
    }
    return texts;
}

TEST(LanguageSections, CoverWhatTheProgramSays)
{
    const QString program = programSources();
    const QString nothing = u"/nNothing was changed."_s;
    const QStringList system = systemFaults();
    const QString filters = fileFilters().join(u' ');
    QSet<QString> covered;
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageRow &row : section.rows) {
            const QString text = row.caption.toString();
            if (section.target == LanguageTarget::Texts) {
                covered.insert(text);
                const QString literal =
                    text.endsWith(nothing) ? text.chopped(nothing.size()) : text;
                EXPECT_TRUE(program.contains(u'"' + literal + u'"') || system.contains(text)
                            || filters.contains(text))
                    << "said nowhere: " << qPrintable(literal);
            }
        }
    }
    for (const QString &text : system) {
        EXPECT_TRUE(covered.contains(text)) << qPrintable(text);
    }
    const QRegularExpression call(
        u"(ShowMessage|showRefusal|refuse|ownText|fail|FileFault::\\w+,|"
        "\\.text = )[({]*\\s*\\{?(?:FileFault::\\w+,)?\\s*u\"([^\"]*)\""_s);
    int said = 0;
    for (const auto &found : call.globalMatch(program)) {
        ++said;
        const bool refusal = found.captured(1) == u"showRefusal";
        EXPECT_TRUE(covered.contains(found.captured(2) + (refusal ? nothing : QString())))
            << qPrintable(found.captured(2));
    }
    EXPECT_GT(said, 80);
    const QRegularExpression text(u"u\"([^\"]* [^\"]*)\""_s);
    for (const auto &found : text.globalMatch(readText(source + u"/src/diagnose/findings.cpp"_s))) {
        EXPECT_TRUE(covered.contains(found.captured(1))) << qPrintable(found.captured(1));
    }
}

TEST(LanguageSections, CoverEveryCaption)
{
    QSet<QString> covered;
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageEntry &entry : entriesOf(section)) {
            if (!entry.caption.isEmpty()) {
                covered.insert(entry.sets);
            }
        }
    }
    TestProgram run;
    run.start();
    run->splash.ExitfrmSplash();
    LoadRequest request{.path = run.write(u"film.srt"_s, twoSubtitles())};
    run->loader.LoadSubFile(request);
    run->about.show();
    for (const QString &name : uncoveredCaptions(run.program(), covered)) {
        EXPECT_TRUE(withoutRow.contains(name))
            << qPrintable(name) << " has a caption that no section sets";
    }
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
                 "recent stop wizard"_s},
    {u"French"_s,
     u"build collection collections date format macro menu ok options style variables"_s},
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
