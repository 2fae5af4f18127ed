#include "app/program.h"

#include "app/version.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

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
      frmSettings(u"frmSettings"_s),
      frmHistory(u"frmHistory"_s),
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
      messages(frmMessageBox, ports.messages, trace, variables),
      control_window(frmControl, settings),
      history(frmHistory),
      document(editor, times, fonts, player, settings, language, trace),
      writer({.document = document,
              .partition = partition,
              .control = control_window,
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
              .control = control_window,
              .messages = messages,
              .language = language,
              .folders = folders,
              .clock = ports.clock,
              .host = host,
              .nodeFile = nodeFile}),
      basicEdit(editor, document, trace),
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
      splash(frmSplash),
      tips(frmTip, settings, language, folders, ports.random),
      help(frmHelp, ports.help, language, folders),
      languagePack({.language = language,
                    .nodeCaption = navigation.nodeCaption,
                    .settings = settings,
                    .messages = messages,
                    .folders = folders,
                    .form = [this](QStringView name) { return form(name); }}),
      m_forms{&frmMain, &frmFile, &frmControl,  &frmMessageBox, &frmSplash,
              &frmTip,  &frmHelp, &frmSettings, &frmHistory}
{
    connectMenu();
    connectFrameRates();
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
    run(menu.mnuAbout, [this] { mnuAbout(); });
    QObject::connect(&frmMain, &Form::closeRequested, &frmMain, [this] { exit(); });
    splash.gone = [this] { splashGone(); };
    // What these open is still to come.
    for (Button *entry : {&menu.mnuDBManage, &menu.mnuUndo, &menu.mnuRedo, &menu.mnuGotoLine,
                          &menu.mnuNextFinding, &menu.mnuPreviousFinding, &menu.mnuPreview,
                          &menu.mnuSettings, &menu.mnuSystem, &menu.mnuHistory, &menu.mnuWizard})
    {
        entry->setVisible(false);
    }
}

void Program::connectFrameRates()
{
    for (OptionButton &rate : frameRates.optFrameRate) {
        QObject::connect(&rate, &OptionButton::valueChanged, &rate, [this, &rate](bool on) {
            if (!on) {
                return;
            }
            document.frameRate = rate.caption();
            // From a rate to itself is the safe start of a conversion.
            for (DropList &list : frameRates.Combo14) {
                list.setSelected(rate.index());
            }
        });
        QObject::connect(&rate, &OptionButton::clicked, &rate,
                         [this, &rate] { trace.RecordAction({}, 312 + rate.index()); });
    }
}

void Program::mnuAbout()
{
    trace.RecordAction({}, 110);
    const auto label = [this](int item) { return language.text(LangGroup::About, item); };
    messages.ShowMessage({u"%1/n/n%2 %3/n/n%4 %5/n%6 %7"_s,
                          {titleWithVersion(), label(4), buildNumber(), label(1),
                           language.languageName, label(2), language.languageAuthor}},
                         Answer::Ok, u"ok"_s, versionName());
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
    // A save that wrote nothing brings the question back: only a person's no loses the changes.
    while (keepsChanges() && !fileCommands.mnuSavesubfile()) {
    }
    if (!m_forVerb) {
        settingsFiles.writeAtExit();
    }
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
