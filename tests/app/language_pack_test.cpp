#include "app/language_pack.h"

#include "core/lang_line.h"
#include "tests/support/test_program.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

const QString header = u"Version:=4.00\nLanguage:=Test\nAuthor:=Me\nHelp:=Testish\n\n"_s;

QString scrambled(const QString &text)
{
    QString lines;
    for (const QString &line : text.split(u'\n')) {
        lines += EncodeLangLine(line, languageKey) + u'\n';
    }
    return lines;
}

/// A program whose design captions stand.
class Packs : public ::testing::Test
{
protected:
    Packs() { program().languagePack.setDesignCaptions(); }

    Program &program() { return run.program(); }
    QString write(const QString &name, const QString &text)
    {
        return run.writeApp(u"System/Language/"_s + name, text);
    }
    void loadFile(const QString &path)
    {
        program().settings.languageFile = path;
        program().languagePack.LoadLanguage();
    }
    void loadBody(const QString &body) { loadFile(write(u"test.lng"_s, scrambled(header + body))); }
    QString caption(QStringView control) { return run.control<CaptionControl>(control).caption(); }
    QString tip(QStringView control) { return run.control<Control>(control).toolTip(); }

    TestProgram run;
};

TEST_F(Packs, EntriesReachEveryKindOfTarget)
{
    loadBody(u"[Edit Basic]\n1,Weg^Een regel weg\n"
             "[Main Tab]\n2,Bewerken^Regels\n"
             "[Settings]\n0,Keuzes^\n18,Pakket^Ander\n"
             "[Help]\n2,Wenk^\n4,Goed^Dicht\n"
             "[Clipboard]\n3,Duur^T3\n51,Naar B^T51\n103,Weg^T103\n"
             "[Other]\n10,  Begin ^\n50,laatste^\n"
             "[Main Nodes]\n4,Bestand^\n46,Speler^\n"
             "[Settings Nodes]\n6,Geluid^\n"
             "[SysVarHelp]\n200,Tekst:=a,b#c^\n"
             "[End Pack]\n"
             "[Edit Basic]\n0,behind the end^\n"_s);
    EXPECT_TRUE(run.takeMessages().isEmpty());
    const LanguageTable &language = program().language;
    EXPECT_EQ(language.languageName, u"Test"_s);
    EXPECT_EQ(language.languageAuthor, u"Me"_s);
    EXPECT_EQ(language.languageFolder, u"Testish"_s);
    EXPECT_EQ(caption(u"Command11"), u"Weg"_s);
    EXPECT_EQ(tip(u"Command11"), u"Een regel weg"_s);
    EXPECT_EQ(caption(u"Command10"), u"Insert"_s);
    EXPECT_EQ(tip(u"optFrameRate(3)"), u"Set framerate to 29.97 fps"_s);
    EXPECT_EQ(caption(u"optFrameRate(3)"), u"29.970"_s) << "the rate itself is no text";
    EXPECT_EQ(program().navigation.tabMain.tabCaption(2), u"Bewerken"_s);
    EXPECT_EQ(program().navigation.tabMain.tabToolTip(2), u"Regels"_s);
    EXPECT_EQ(program().frmSettings.caption(), u"Keuzes"_s);
    EXPECT_EQ(caption(u"frmSettings.Check2"), u"Pakket"_s);
    EXPECT_EQ(program().frmTip.caption(), u"Wenk"_s);
    EXPECT_EQ(caption(u"frmTip.cmdOk"), u"Goed"_s);
    EXPECT_EQ(language.text(LangGroup::CopyFirst, 3), u"Duur"_s);
    EXPECT_EQ(language.tip(LangGroup::CopyFirst, 3), u"T3"_s);
    EXPECT_EQ(language.text(LangGroup::CopySecond, 0), u"Naar B"_s);
    EXPECT_EQ(caption(u"command4(3)"), u"Weg"_s);
    EXPECT_EQ(language.text(LangGroup::Common, 10), u"  Begin "_s) << "blanks belong to the text";
    EXPECT_EQ(language.text(LangGroup::Common, 50), u"laatste"_s);
    EXPECT_EQ(program().navigation.nodeCaption[4], u"Bestand"_s);
    EXPECT_EQ(program().navigation.nodeCaption[46], u"Speler"_s);
    EXPECT_EQ(program().languagePack.settingsNodeCaption[6], u"Geluid"_s);
    EXPECT_EQ(program().languagePack.sysVarHelp[200], u"Tekst:=a,b#c"_s);
}

TEST_F(Packs, MessagesAreSaidInTheLanguageOfThePack)
{
    Messages &messages = program().messages;
    const auto say = [&](const QString &pattern, const QString &title) {
        messages.ShowMessage({pattern, {u"Warning"_s}}, Answer::Ok, u"ok"_s, title);
        const Message shown = run.doors.messages.shown.takeLast();
        return shown.title + u": "_s + shown.text;
    };
    const LanguageRow &row = languageSection(u"Messages")->rows.front();
    const QString english = row.caption.toString();
    loadBody(u"[Messages]\n%1,Mis/n%1^\n"_s.arg(row.index));
    EXPECT_EQ(say(english, u"x"_s), u"x: Mis\r\n0"_s);
    loadBody(u"[Messages]\n%1,^\n"_s.arg(row.index));
    EXPECT_EQ(say(english, english), u"Mis/n0: Mis\r\n0"_s) << "an empty text is none";
    EXPECT_EQ(say(u"a macro's %1"_s, u"t"_s), u"t: a macro's Warning"_s) << "values stay";
    messages.ShowMessage({u"%1: %2"_s, {english}, english}, Answer::Ok, u"ok"_s, {});
    EXPECT_EQ(run.doors.messages.shown.takeLast().text, english + u": Mis/n0"_s) << "a fault";
}

TEST_F(Packs, OddLinesAreReadAsTheirSignsStand)
{
    const struct
    {
        const char *name;
        QString lines;
        QString caption; ///< of Command10, entry 0
        QString tip;
    } cases[] = {
        {"no tool tip", u"0,Voeg in"_s, u"Voeg in"_s, {}},
        {"both empty", u"0,^"_s, {}, {}},
        {"only a number", u"0"_s, u"0"_s, {}},
        {"no comma", u"0 Voeg in^tip"_s, u"0 Voeg in"_s, u"tip"_s},
        {"tool tip ahead of the comma", u"0^tip,Voeg in"_s, u"Voeg in"_s, {}},
        {"more commas and carets", u"0,a,b^c^d"_s, u"a,b"_s, u"c^d"_s},
        {"blanks round the line", u"   0,Voeg in^tip   "_s, u"Voeg in"_s, u"tip"_s},
        {"no number counts as 0", u"Voeg in"_s, u"Voeg in"_s, {}},
        {"a comment", u"//0,Voeg in^"_s, u"Insert"_s, u"Inserts a line"_s},
        {"a line in brackets", u"[0,Voeg in^]"_s, u"Insert"_s, u"Inserts a line"_s},
        {"unknown number", u"99,x^\n-1,x^\n99999999999,x^"_s, u"Insert"_s, u"Inserts a line"_s},
        {"unknown section", u"[Edit basic]\n0,Voeg in^"_s, u"Voeg in"_s, {}},
        {"section in other letters", u"[Edit Font]\n[EDIT BASIC]\n0,x^"_s, u"Insert"_s,
         u"Inserts a line"_s},
    };
    for (const auto &row : cases) {
        program().languagePack.setDesignCaptions();
        loadBody(u"0,ahead of any section^\n[Edit Basic]\n"_s + row.lines + u"\n[End Pack]"_s);
        EXPECT_EQ(caption(u"Command10"), row.caption) << row.name;
        EXPECT_EQ(tip(u"Command10"), row.tip) << row.name;
        EXPECT_TRUE(run.takeMessages().isEmpty()) << row.name;
    }
}

TEST_F(Packs, IndexesOutsideATableChangeNothing)
{
    const QString help = program().languagePack.sysVarHelp[0];
    loadBody(u"[Other]\n51,x^\n-1,x^\n102,x^\n[Main Nodes]\n47,x^\n-1,x^\n[Settings Nodes]\n7,x^\n"
             "[SysVarHelp]\n201,x^\n-3,x^\n[Clipboard]\n101,x^\n"_s);
    EXPECT_TRUE(run.takeMessages().isEmpty()) << "a missing end is no error";
    EXPECT_EQ(program().language.text(LangGroup::CopySecond, 50), u"x"_s);
    EXPECT_EQ(program().language.text(LangGroup::Common, 0), u"Row"_s);
    EXPECT_EQ(program().languagePack.sysVarHelp[0], help);
    EXPECT_EQ(program().navigation.nodeCaption[0], u"Menu"_s);
}

TEST_F(Packs, FaultsAreToldAndKeepWhatWasRead)
{
    const QString fault = u"Language file error: Error loading languagefile."_s;
    const auto wrong = [](const QString &version) {
        return u"Error: Wrong language pack version. You are trying to load version %1.\r\n"
               "Pack will not be loaded."_s.arg(version);
    };
    const QString entry = u"[Edit Basic]\n0,Voeg in^\n"_s;
    const QString good = scrambled(header + entry + u"[End Pack]"_s);
    const struct
    {
        const char *name;
        QString content;
        QString message;
        bool replaced; ///< the entry arrived
    } cases[] = {
        {"good", good, {}, true},
        {"another version", scrambled(QString(header).replace(u"4.00"_s, u"4.01"_s) + entry),
         wrong(u"4.01"_s), false},
        {"no version", scrambled(u"Dutch\n"_s + entry), wrong({}), false},
        {"a template's signs", scrambled(u"a:=%1 /n sysVar[1]\n"_s), wrong(u"%1 /n sysVar[1]"_s),
         false},
        {"empty", {}, fault, false},
        {"plain text", header + entry, fault, false},
        {"cut in the header", good.left(good.indexOf(u'\n') + 1), fault, false},
        {"a damaged line behind the entry",
         scrambled(header + entry) + u"what\n"_s + scrambled(u"0,Too late^"_s), fault, true},
        {"a line cut in a group", good.chopped(4), fault, true},
        {"NUL bytes", QString(2000, QChar(u'\0')), fault, false},
    };
    for (const auto &row : cases) {
        program().languagePack.setDesignCaptions();
        run.doors.messages.shown.clear();
        loadFile(write(u"test.lng"_s, row.content));
        QStringList told;
        for (const Message &message : std::as_const(run.doors.messages.shown)) {
            told.append(message.title + u": "_s + message.text);
            EXPECT_EQ(message.kind, u"ok"_s) << row.name;
        }
        EXPECT_EQ(told.join(u'|'), row.message) << row.name;
        EXPECT_EQ(caption(u"Command10"), row.replaced ? u"Voeg in"_s : u"Insert"_s) << row.name;
    }
    loadFile(run.appPath(u"System/Language/none.lng"_s));
    EXPECT_EQ(run.takeMessages().constLast(), u"Error loading languagefile."_s);
}

TEST_F(Packs, ScanListsPacksOfAnyFourZero)
{
    const auto pack = [](const QString &version, const QString &name) {
        return scrambled(u"Version:=%1\nLanguage:=%2\nAuthor:=Ann\n"_s.arg(version, name));
    };
    write(u"a_damaged.lng"_s, u"Version:=4.00"_s);
    write(u"b_old.lng"_s, pack(u"3.90"_s, u"Old"_s));
    const QString dutch = write(u"c_dutch.LNG"_s, pack(u"4.00"_s, u"Nederlands"_s));
    write(u"d_later.lng"_s, pack(u"4.05"_s, u"Suomi"_s));
    write(u"e_twin.lng"_s, pack(u"4.00"_s, u"NEDERLANDS"_s));
    const QString german = write(u"f_german.lng"_s, pack(u"4.00"_s, u"Deutsch"_s));
    write(u"g_empty.lng"_s, {});
    write(u"h_other.txt"_s, pack(u"4.00"_s, u"No pack"_s));
    write(u"i_french.lng"_s, pack(u"4.00"_s, u"Fran\u00e7ais"_s));

    SettingsPage &settings = program().settings;
    const QStringList names{u"Nederlands by: Ann"_s, u"Suomi by: Ann"_s, u"Deutsch by: Ann"_s,
                            u"Fran\u00e7ais by: Ann"_s};
    settings.languageFile = dutch;
    for (int turn = 0; turn < 2; ++turn) {
        program().languagePack.ScanLanguageFiles();
        EXPECT_EQ(settings.List1.items(), names);
        ASSERT_EQ(settings.List2.count(), names.size());
        EXPECT_EQ(settings.List2.item(0), dutch);
        EXPECT_EQ(settings.List2.item(2), german);
    }
    // The selection is the number of the file, with those that aren't listed.
    EXPECT_EQ(settings.List1.selected(), -1) << "file 2, when the list had one entry";
    settings.languageFile = write(u"a_damaged.lng"_s, pack(u"4.00"_s, u"Alba"_s));
    program().languagePack.ScanLanguageFiles();
    EXPECT_EQ(settings.List1.selected(), 0);
    EXPECT_TRUE(run.takeMessages().isEmpty());
}

} // namespace
} // namespace kavro::test
