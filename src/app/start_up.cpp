// The start of the program, step by step.

#include "app/program.h"
#include "app/version.h"
#include "formats/format_table.h"

#include <QFileInfo>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// The languages of the online exchange.
const QStringList &exchangeLanguages()
{
    static const QStringList names{
        u"Albanian"_s, u"Arabic"_s,    u"Brazillian"_s, u"Bulgarian"_s, u"Chinees"_s,
        u"Croatian"_s, u"Czech"_s,     u"Danish"_s,     u"Dutch"_s,     u"English"_s,
        u"Estonian"_s, u"Finnish"_s,   u"French"_s,     u"German"_s,    u"Greek"_s,
        u"Hebrew"_s,   u"Hongarian"_s, u"Icelandic"_s,  u"Italian"_s,   u"Japanese"_s,
        u"Korean"_s,   u"Latvian"_s,   u"Norwegian"_s,  u"Polish"_s,    u"Portuguese"_s,
        u"Romanian"_s, u"Russian"_s,   u"Serbian"_s,    u"Slovak"_s,    u"Slovenian"_s,
        u"Spanish"_s,  u"Swedish"_s,   u"Thai"_s,       u"Turkish"_s,   u"Urdu"_s,
    };
    return names;
}

constexpr int defaultRate = 2; ///< 25.000

} // namespace

void Program::start(const QString &file)
{
    const Form::Busy busy(frmSplash);
    languagePack.setDesignCaptions();
    prepareFolders();
    controlWindow.quiet = true; // a load of the start shows no progress window
    if (file.isEmpty()) {
        splash.open();
    }
    navigation.SetScreenPos();
    loadSettings();
    languagePack.LoadLanguage();
    fillTexts();
    fillFonts();
    settingsFiles.readSearches();
    const bool broughtBack = recovery.begin(file);
    if (!broughtBack) {
        loadNamedFile(file);
    }
    showFirstTabs();
    if (file.isEmpty() && !broughtBack) {
        loadLastFiles();
    }
    controlWindow.quiet = false;
    trace.RecordAction({}, 0); // nobody has acted yet
    if (file.isEmpty()) {
        splash.finish();
    } else {
        frmMain.show();
    }
}

void Program::startForVerb(bool captions)
{
    m_forVerb = true;
    if (captions) {
        languagePack.setDesignCaptions();
    }
    fillTexts();
    fillFonts();
    showFirstTabs();
    frmMain.show();
}

void Program::setInitialValues()
{
    frmMain.setCaption(titleWithVersion());
    frameRates.optFrameRate[defaultRate].setOn();
    // What needs a document or a movie waits for one.
    for (Control *control : std::initializer_list<Control *>{
             &editor.SSTab2, &editor.SSTab3, &editor.rtfEdit, &editor.cmdInvCalc, &editor.Label74,
             &editor.Label75, &editor.btnNode[0], &formats.Command39, &player.Combo1,
             &player.Slider1})
    {
        control->setEnabled(false);
    }
    formats.Combo8[1].setAvailable(false);
    for (Button &button : player.Command8) {
        button.setEnabled(false);
    }
    for (Button &button : player.Command49) {
        button.setEnabled(false);
    }
    for (Button &button : clipboard.command4) {
        button.setEnabled(false);
    }
}

void Program::prepareFolders()
{
    const FileStatus prepared = folders.prepare();
    if (!prepared.ok()) {
        messages.ShowMessage(
            {u"The folder '%1' can't be used./n%2"_s, {folders.path(Folder::Root)}, prepared.text},
            Answer::Ok, u"ok"_s, language.text(LangGroup::Report, 13));
    }
}

void Program::loadSettings()
{
    settingsFiles.LoadSettingsFile();
    if (settings.Check7[SettingsPage::LoadLastFiles].isOn()) {
        splash.report(u"Loading files"_s);
    }
}

// Runs behind the language pack: all that is made here is what the person will read.
void Program::fillTexts()
{
    navigation.LoadNodes();
    settingsWindow.LoadNodes();
    document.fillColumnCaptions();
    partitionList.fillCaptions(language);
    fillFormatLists();
    fillLanguageLists();
    fileCommands.window.fillFilters();
    status.StatusBar1.setPanel(StatePanel, language.text(LangGroup::Common, 39));
    document.RefreshCurrentRow();
}

void Program::fillFormatLists()
{
    QStringList names;
    for (const FormatInfo &info : formatTable()) {
        // The lists have always spelled it so.
        names.append(info.id == SubStationAlpha ? u"Substation Alpha"_s : info.name.toString());
    }
    formats.combo3.setItems(names);
    formats.combo3.setSelected(0);
    names.prepend(language.text(LangGroup::Common, 28));
    formats.Combo7.setItems(names);
    formats.Combo7.setSelected(0);
}

void Program::fillLanguageLists()
{
    constexpr int english = 9;
    shift.fillDirections();
    for (DropList &list : formats.Combo8) {
        list.setItems(exchangeLanguages());
        list.setSelected(0);
    }
    formats.Combo8[0].insertItem(0, language.text(LangGroup::Common, 29));
    formats.Combo8[0].setSelected(0);
    formats.Combo8[1].setSelected(english);
}

void Program::fillFonts()
{
    const QString &arial = document.curFontName;
    QStringList names = ports.screen.fonts();
    // New rows are in this font, also on a screen that shows another in its place.
    if (!names.contains(arial, Qt::CaseInsensitive)) {
        names.insert(std::ranges::lower_bound(names, arial), arial);
    }
    fonts.Combo9[0].setItems(names);
    fonts.Combo9[0].setSelected(static_cast<int>(names.indexOf(arial)));
    fonts.fillStyles(language);
}

void Program::loadNamedFile(const QString &file)
{
    if (!file.isEmpty()) {
        fileCommands.dropFile(QFileInfo(file).absoluteFilePath());
    }
}

void Program::bringBack(const KeptDocument &kept)
{
    for (OptionButton &rate : frameRates.optFrameRate) {
        if (rate.caption() == kept.frameRate) {
            rate.setOn();
        }
    }
    loader.bringBack(kept);
    diagnose.diagnoseWithoutRepairs();
}

void Program::showFirstTabs()
{
    navigation.tabMain.setTab(EditorTab);
    for (TabStrip *tabs : {&navigation.tabCalculator, &navigation.tabClipboard, &editor.SSTab2,
                           &editor.SSTab3, &navigation.SSTab5})
    {
        tabs->setTab(0);
    }
}

void Program::loadLastFiles()
{
    if (!settings.Check7[SettingsPage::LoadLastFiles].isOn()) {
        return;
    }
    const SettingsFiles::LastFiles last = settingsFiles.lastFiles();
    if (!last.subtitle.isEmpty()) {
        fileCommands.dropFile(last.subtitle);
    }
    if (!last.movie.isEmpty() && ports.player.open(last.movie)) {
        player.Combo1.setEnabled(true);
        for (int button = 0; button <= 3; ++button) {
            player.Command8[button].setEnabled(true);
        }
    }
}

void Program::splashGone()
{
    help.ShowHelpPage(0);
    frmMain.show();
    if (settings.Check7[SettingsPage::ShowTips].isOn()) {
        tips.show();
    }
    if (settings.Check7[SettingsPage::ShowWizard].isOn()) {
        wizard.show();
    }
}

} // namespace kavro
