#include "app/language_sections.h"

#include "formats/file_filters.h"
#include "tests/app/language_entries.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <cerrno>
#include <system_error>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

const QString source = QStringLiteral(KAVRO_SOURCE_DIR);

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
    EXPECT_EQ(names.size(), 53);
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
                const bool toolkit = section.name == u"Toolkit Texts"; // said by no file of ours
                EXPECT_TRUE(toolkit || program.contains(u'"' + literal + u'"')
                            || system.contains(text) || filters.contains(text))
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

} // namespace
} // namespace kavro::test
