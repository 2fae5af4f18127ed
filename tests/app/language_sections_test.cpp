#include "app/language_sections.h"

#include "core/lang_line.h"
#include "tests/app/language_entries.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
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

TEST(LanguageSections, StandInOneOrder)
{
    QSet<QStringView> names;
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
        }
        for (const LanguageRow &row : section.rows) {
            EXPECT_GE(row.index, static_cast<int>(section.groups.size()) * LanguageTable::items)
                << name << " entry " << row.index << " lies in a group";
        }
    }
    EXPECT_EQ(names.size(), 45);
}

TEST(LanguageSections, NoControlHasTwoCaptions)
{
    QHash<QString, QString> captions;
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageEntry &entry : entriesOf(section)) {
            if (!captions.contains(entry.sets)) {
                captions.insert(entry.sets, section.name.toString());
            } else if (section.target == LanguageTarget::Controls) {
                ADD_FAILURE() << qPrintable(entry.sets) << " in "
                              << qPrintable(section.name.toString()) << " and "
                              << qPrintable(captions[entry.sets]);
            }
        }
    }
}

/// Captions that are no text of a pack, by control without its index, and why.
const QHash<QString, const char *> withoutRow{
    {u"frmMain"_s, "title and version"},
    {u"frmMain.Label13"_s, "the current cell"},
    {u"frmMain.Label24"_s, "a time"},
    {u"frmMain.Label36"_s, "entry of a list"},
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
    {u"frmSettings.Label38"_s, "entry of a list"},
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

TEST_P(ShippedPack, HasEveryTextAndNoOther)
{
    QHash<QString, QString> texts = textsOf(sourceFile);
    for (const LanguageSection &section : languageSections()) {
        for (const LanguageEntry &entry : entriesOf(section)) {
            const QString key = u"[%1]%2"_s.arg(section.name).arg(entry.index);
            const QString text = texts.take(key);
            EXPECT_EQ(text.section(u'^', 0, 0).isEmpty(), entry.caption.isEmpty())
                << "caption of " << qPrintable(key);
            EXPECT_EQ(text.section(u'^', 1).isEmpty(), entry.tip.isEmpty())
                << "tool tip of " << qPrintable(key);
            EXPECT_EQ(text.count(u"/n"_s), entry.caption.count(u"/n"_s)) << qPrintable(key);
        }
    }
    EXPECT_EQ(texts.keys().join(u' '), QString()) << "entries that set nothing";
}

TEST_P(ShippedPack, LoadsAndFindsItsHelp)
{
    TestProgram run;
    run->languagePack.setDesignCaptions();
    run->settings.languageFile = packFile;
    run->languagePack.LoadLanguage();
    EXPECT_TRUE(run.takeMessages().isEmpty());
    EXPECT_TRUE(QFile::exists(languages + u"Help/"_s + run->language.languageFolder));
    const QHash<QString, QString> texts = textsOf(sourceFile);
    EXPECT_EQ(run->editor.Command11.caption() + u'^' + run->editor.Command11.toolTip(),
              texts[u"[Edit Basic]1"_s]);
    EXPECT_EQ(run->language.text(LangGroup::Common, 39) + u'^', texts[u"[Other]39"_s]);
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
