#include "app/program.h"

#include "app/version.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int settingsHelpPage = 19;
constexpr int previewHelpPage = 25;
constexpr int historyHelpPage = 27;
constexpr int wizardHelpPage = 28;

} // namespace

Program::Program(const Ports &doors, FileStore &fileStore, Folders &appFolders)
    : ports(doors),
      store(fileStore),
      folders(appFolders),
      frmMain(u"frmMain"_s),
      frmFile(u"frmFile"_s),
      frmControl(u"frmControl"_s),
      frmMessageBox(u"frmMessageBox"_s),
      frmSplash(u"frmSplash"_s),
      frmTip(u"frmTip"_s),
      frmHelp(u"frmHelp"_s),
      frmAbout(u"frmAbout"_s),
      frmWizard(u"frmWizard"_s),
      frmSettings(u"frmSettings"_s),
      frmHistory(u"frmHistory"_s),
      frmPreview(u"frmPreview"_s),
      frmGoto(u"frmGoto"_s),
      menu(frmMain),
      editor(frmMain),
      times(frmMain),
      fonts(frmMain),
      formats(frmMain),
      frameRates(frmMain),
      player(frmMain),
      clipboard(frmMain),
      partition(frmMain),
      status(frmMain),
      settings(frmSettings),
      messages(frmMessageBox, ports.messages, language, trace, variables),
      controlWindow(frmControl, settings),
      document(editor, times, fonts, player, settings, language, trace),
      diagnose(frmMain, {.document = document,
                         .basicEdit = basicEdit,
                         .history = history,
                         .status = status,
                         .menu = menu,
                         .language = language,
                         .variables = variables,
                         .trace = trace,
                         .clock = ports.clock}),
      history(frmHistory, {.document = document,
                           .forms = ports.forms,
                           .clock = ports.clock,
                           .folders = folders,
                           .store = store,
                           .messages = messages,
                           .diagnose = diagnose,
                           .versionNumber = versionNumber()}),
      undo(document, menu, diagnose, trace),
      writer({.document = document,
              .partition = partition,
              .control = controlWindow,
              .messages = messages,
              .language = language,
              .folders = folders,
              .store = store}),
      nodeFile(document, folders, store, messages, versionNumber()),
      host(ports, messages, fileCommands, navigation),
      loader({.document = document,
              .lists = formats,
              .menu = menu,
              .settings = settings,
              .control = controlWindow,
              .messages = messages,
              .language = language,
              .folders = folders,
              .clock = ports.clock,
              .host = host,
              .nodeFile = nodeFile}),
      basicEdit({.document = document,
                 .history = history,
                 .diagnose = diagnose,
                 .messages = messages,
                 .language = language,
                 .trace = trace}),
      shift(frmMain, document, history, messages, language, trace),
      stretch(frmMain, document, history, controlWindow, messages, language, trace),
      timeChange(frmMain, document, history, messages, language, trace),
      frameRateConversion(frmMain, frameRates, document, history, messages, language, trace),
      searchReplace(frmMain, {.menu = menu,
                              .status = status,
                              .document = document,
                              .history = history,
                              .language = language,
                              .trace = trace}),
      filters(frmMain, document, history, language, trace),
      fontChange(document, history, language, trace),
      nodeTool({.editor = editor,
                .document = document,
                .status = status,
                .messages = messages,
                .language = language}),
      partitionList(frmMain, partition, formats, trace),
      splitOutput(frmMain, {.document = document,
                            .page = partition,
                            .list = partitionList,
                            .formats = formats,
                            .writer = writer,
                            .messages = messages,
                            .language = language,
                            .folders = folders,
                            .trace = trace}),
      scriptPreview(frmPreview, {.document = document,
                                 .writer = writer,
                                 .status = status,
                                 .messages = messages,
                                 .language = language,
                                 .forms = ports.forms}),
      fileCommands(frmMain, frmFile,
                   {.ports = ports,
                    .document = document,
                    .loader = loader,
                    .writer = writer,
                    .nodeFile = nodeFile,
                    .history = history,
                    .diagnose = diagnose,
                    .navigation = navigation,
                    .menu = menu,
                    .formats = formats,
                    .fonts = fonts,
                    .clipboard = clipboard,
                    .partition = partition,
                    .status = status,
                    .settings = settings,
                    .messages = messages,
                    .language = language,
                    .folders = folders,
                    .trace = trace}),
      settingsFiles({.ports = ports,
                     .document = document,
                     .settings = settings,
                     .frameRates = frameRates,
                     .navigation = navigation,
                     .searches = searchReplace.List4,
                     .folders = folders,
                     .store = store}),
      navigation(frmMain, {.ports = ports,
                           .menu = menu,
                           .editor = editor,
                           .player = player,
                           .clipboard = clipboard,
                           .settings = settings,
                           .document = document,
                           .loader = loader,
                           .help = help,
                           .messages = messages,
                           .language = language,
                           .folders = folders,
                           .trace = trace}),
      clips(frmMain, {.panel = clipboard,
                      .editor = editor,
                      .times = times,
                      .partition = partition,
                      .rtfShiftDuration = shift.rtfShiftDuration,
                      .tabMain = navigation.tabMain,
                      .tabCalculator = navigation.tabCalculator,
                      .messages = messages,
                      .language = language,
                      .trace = trace}),
      splash(frmSplash, language),
      tips(frmTip, settings, language, folders, ports.random),
      wizard(frmWizard, settings),
      help(frmHelp, ports.help, language, folders),
      goTo(frmGoto, {.ports = ports, .menu = menu, .document = document, .messages = messages}),
      about(frmAbout, language),
      languagePack({.language = language,
                    .nodeCaption = navigation.nodeCaption,
                    .settings = settings,
                    .messages = messages,
                    .folders = folders,
                    .form = [this](QStringView name) { return form(name); }}),
      settingsWindow(frmSettings, {.ports = ports,
                                   .settings = settings,
                                   .frameRates = frameRates,
                                   .files = settingsFiles,
                                   .languagePack = languagePack,
                                   .messages = messages,
                                   .language = language,
                                   .trace = trace}),
      recovery(frmMain, {.ports = ports,
                         .document = document,
                         .messages = messages,
                         .folders = folders,
                         .store = store,
                         .bringBack = [this](const KeptDocument &kept) { bringBack(kept); }}),
      m_forms{&frmMain,  &frmFile,   &frmControl,  &frmMessageBox, &frmSplash,  &frmTip, &frmHelp,
              &frmAbout, &frmWizard, &frmSettings, &frmHistory,    &frmPreview, &frmGoto}
{
    connectMenu();
    connectTools();
    setInitialValues();
}

Program::~Program() = default;

void Program::connectMenu()
{
    const auto run = [](Button &entry, auto act) {
        QObject::connect(&entry, &Button::clicked, &entry, act);
    };
    run(menu.mnuExit, [this] { exit(); });
    run(menu.mnuHelpIndex, [this] { navigation.mnuHelpIndex(); });
    run(menu.mnuShowTips, [this] {
        trace.RecordAction({}, 108);
        tips.show();
    });
    run(menu.mnuAbout, [this] {
        trace.RecordAction({}, 110);
        about.show();
    });
    run(menu.mnuSettings, [this] {
        navigation.autoHelp(settingsHelpPage);
        settingsWindow.open();
    });
    run(menu.mnuWizard, [this] {
        navigation.autoHelp(wizardHelpPage);
        wizard.show();
    });
    run(menu.mnuPreview, [this] {
        navigation.autoHelp(previewHelpPage);
        scriptPreview.mnuPreview();
    });
    run(menu.mnuHistory, [this] {
        navigation.autoHelp(historyHelpPage);
        history.show();
    });
    QObject::connect(&frmMain, &Form::closeRequested, &frmMain, [this] { exit(); });
    splash.gone = [this] { splashGone(); };
    // What these open is still to come.
    for (Button *entry : {&menu.mnuDBManage, &menu.mnuSystem}) {
        entry->setVisible(false);
    }
}

void Program::connectTools()
{
    QObject::connect(&navigation.tabMain, &TabStrip::tabChanged, &partition.grid, [this](int tab) {
        if (tab == PartitionTab) {
            partitionList.enterCell();
        }
    });
    undo.formatChanged = [this] { loader.showFormat(document.curFormatId); };
    diagnose.showLines = [this] {
        if (navigation.tabMain.tab() != EditorTab) {
            navigation.tabMain.setTab(EditorTab);
            editor.grdSubEdit.setFocus();
        }
    };
    searchReplace.showPage = [this] {
        navigation.tabMain.setTab(EditorTab);
        editor.SSTab2.setTab(SearchPage);
    };
}

void Program::dropFile(const QString &path)
{
    fileCommands.dropFile(path);
}

bool Program::keepsChanges()
{
    return document.fileChanged()
           && messages.ShowMessage(
                  {u"File %1/nhas been changed and not saved./nDo you want to save now?/nIf you "
                   "choose 'No', all changes are lost."_s,
                   {document.subFileName}},
                  Answer::Yes, u"yesno"_s, u"Warning: File not saved"_s)
                  == Answer::Yes;
}

bool Program::exit()
{
    if (m_ended) {
        return true;
    }
    // A save that wrote nothing, or not all, brings the question back: only a person's no loses
    // the changes.
    while (keepsChanges() && !fileCommands.mnuSavesubfile()) {
    }
    if (!m_forVerb) {
        settingsFiles.writeAtExit();
    }
    recovery.end();
    folders.tidy();
    m_ended = true;
    for (Form *form : m_forms) {
        form->hide();
    }
    return true;
}

Form *Program::form(QStringView name) const
{
    const auto found = std::ranges::find_if(m_forms, [name](const Form *form) {
        return name.compare(form->name(), Qt::CaseInsensitive) == 0;
    });
    return found == m_forms.end() ? nullptr : *found;
}

Control *Program::control(QStringView name) const
{
    const qsizetype point = name.indexOf(u'.');
    const Form *owner = point < 0 ? &frmMain : form(name.first(point));
    return owner ? owner->control(name.sliced(point + 1)) : nullptr;
}

} // namespace kavro
