#include "app/settings_window.h"

#include "app/language_pack.h"
#include "app/settings_files.h"
#include "controls/form.h"
#include "core/action_trace.h"
#include "core/frame_rate_page.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/ports.h"
#include "core/settings_page.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum { CancelButton = 0, OkButton = 1 };

/// A node of the tree, in the order of the captions in a language pack.
struct SettingsNode
{
    QStringView key;
    QStringView parent;
    Frame SettingsWindow::*page;
    int code;
};

constexpr SettingsNode nodes[settingsNodeCount] = {
    {u"startup", u"", &SettingsWindow::startup, 26},
    {u"system", u"", &SettingsWindow::general, 28},
    {u"defaults", u"", &SettingsWindow::defaults, 23},
    {u"lng", u"", &SettingsWindow::lng, 25},
    {u"general", u"system", &SettingsWindow::general, 28},
    {u"script", u"system", &SettingsWindow::script, 27},
    {u"audio", u"system", &SettingsWindow::audio, 24},
};

/// The jobs of the start can't run together, and a tip and the wizard exclude each other: a box
/// of `Check7` that is switched on switches others off.
struct Interlock
{
    int box;
    int other;
};

constexpr Interlock interlocks[] = {
    {SettingsPage::CheckForUpdates, SettingsPage::UpdateFtpList},
    {SettingsPage::CheckForUpdates, SettingsPage::CheckForNews},
    {SettingsPage::UpdateFtpList, SettingsPage::CheckForUpdates},
    {SettingsPage::UpdateFtpList, SettingsPage::CheckForNews},
    {SettingsPage::CheckForNews, SettingsPage::CheckForUpdates},
    {SettingsPage::CheckForNews, SettingsPage::UpdateFtpList},
    {SettingsPage::CheckForNews, SettingsPage::ShowTips},
    {SettingsPage::CheckForNews, SettingsPage::ShowWizard},
    {SettingsPage::ShowTips, SettingsPage::CheckForNews},
    {SettingsPage::ShowTips, SettingsPage::ShowWizard},
    {SettingsPage::ShowWizard, SettingsPage::CheckForNews},
    {SettingsPage::ShowWizard, SettingsPage::ShowTips},
};

constexpr int highestCharacterSet = 255;

} // namespace

SettingsWindow::SettingsWindow(Form &frmSettings, const Parts &parts)
    : TV2(frmSettings, u"TV2"_s),
      startup(frmSettings, u"startup"_s),
      defaults(frmSettings, u"defaults"_s),
      lng(frmSettings, u"lng"_s),
      general(frmSettings, u"general"_s),
      script(frmSettings, u"script"_s),
      audio(frmSettings, u"audio"_s),
      lblFrameRate(frmSettings, u"lblFrameRate"_s),
      Command1(frmSettings, u"Command1"_s),
      m_form(frmSettings),
      m_parts(parts)
{
    for (const SettingsNode &node : nodes) {
        (this->*node.page).setVisible(node.page == &SettingsWindow::startup);
    }
    QObject::connect(&TV2, &TreeView::clicked, &TV2,
                     [this](int node) { ShowTab(TV2.node(node).key); });
    QObject::connect(&Command1[OkButton], &Button::clicked, &TV2, [this] { confirm(); });
    QObject::connect(&Command1[CancelButton], &Button::clicked, &TV2, [this] { cancel(); });
    QObject::connect(&m_form, &Form::closeRequested, &TV2, [this] { cancel(); });
    connectBoxes();
    connectLanguage();
    connectScript();
}

void SettingsWindow::connectBoxes()
{
    for (CheckBox &box : m_parts.settings.Check7) {
        QObject::connect(&box, &CheckBox::clicked, &box, [this, &box] {
            if (box.isOn()) {
                switchOthersOff(box.index());
            }
        });
    }
}

void SettingsWindow::switchOthersOff(int box)
{
    for (const Interlock &lock : interlocks) {
        if (lock.box == box) {
            m_parts.settings.Check7[lock.other].setOn(false);
        }
    }
}

void SettingsWindow::connectLanguage()
{
    SettingsPage &settings = m_parts.settings;
    const auto enable = [&settings](bool on) {
        settings.List1.setAvailable(on);
        settings.List1.label()->setEnabled(on);
    };
    QObject::connect(&settings.Check2, &CheckBox::valueChanged, &settings.List1, enable);
    QObject::connect(&settings.Check2, &CheckBox::clicked, &settings.List1,
                     [&settings] { settings.languageChanged = true; });
    QObject::connect(&settings.List1, &ListBox::picked, &settings.List2, [&settings](int pack) {
        settings.languageChanged |= settings.List2.selected() != pack;
        settings.List2.setSelected(pack);
    });
    enable(settings.Check2.isOn());
}

void SettingsWindow::connectScript()
{
    SettingsPage &settings = m_parts.settings;
    DropList &cmbScript = settings.cmbScript;
    QObject::connect(&settings.Check6[0], &CheckBox::valueChanged, &cmbScript,
                     [&cmbScript](bool on) {
                         if (!on && cmbScript.selected() > 0) {
                             cmbScript.setSelected(0);
                         }
                         cmbScript.setAvailable(on);
                     });
    QObject::connect(&cmbScript, &ListBox::selectedChanged, &cmbScript, [this](int entry) {
        if (entry >= 0) {
            m_script = entry;
        }
    });
    QObject::connect(&cmbScript, &ComboBox::typed, &cmbScript, [this] { takeScript(); });
}

/// A typed text is an entry of the list, or becomes one.
void SettingsWindow::takeScript()
{
    DropList &cmbScript = m_parts.settings.cmbScript;
    const QString text = cmbScript.text();
    const qsizetype known = cmbScript.items().indexOf(text);
    if (known >= 0) {
        cmbScript.setSelected(static_cast<int>(known));
        return;
    }
    const int set = SettingsPage::characterSetOf(text);
    if (text.isEmpty() || set < 0 || set > highestCharacterSet) {
        cmbScript.setSelected(m_script);
        m_parts.messages.ShowMessage(u"Error applying script"_s, Answer::Ok, u"ok"_s,
                                     u"Script Error"_s);
        return;
    }
    cmbScript.addItem(text);
    cmbScript.setSelected(cmbScript.count() - 1);
}

void SettingsWindow::LoadNodes()
{
    TV2.clear();
    for (std::size_t i = 0; i < std::size(nodes); ++i) {
        const SettingsNode &node = nodes[i];
        const QString &caption = m_parts.languagePack.settingsNodeCaption[i];
        const int parent =
            node.parent.isEmpty() ? TreeView::noNode : TV2.find(node.parent.toString());
        TV2.expand(parent);
        TV2.add(parent, caption, node.key.toString());
        (this->*node.page).setCaption(caption);
    }
    TV2.setSelected(TV2.find(nodes[0].key.toString()));
}

void SettingsWindow::ShowTab(QStringView key)
{
    const auto shown = std::ranges::find(nodes, key, &SettingsNode::key);
    if (shown == std::end(nodes)) {
        return;
    }
    if (shown->page == &SettingsWindow::lng) {
        listPacks();
    }
    for (const SettingsNode &node : nodes) {
        (this->*node.page).setVisible(node.page == shown->page);
    }
    TV2.setSelected(TV2.find(key.toString()));
    m_parts.trace.RecordAction({}, shown->code);
}

/// A pack that was picked and isn't confirmed yet stays picked.
void SettingsWindow::listPacks()
{
    DropList &names = m_parts.settings.List1;
    ListBox &paths = m_parts.settings.List2;
    const QString picked = paths.selectedText();
    m_parts.languagePack.ScanLanguageFiles();
    if (!picked.isEmpty()) {
        names.setSelected(static_cast<int>(paths.items().indexOf(picked)));
    }
    // The scan counts files, and its number may be another pack's: what is stored goes by the path.
    const QString path = picked.isEmpty() ? toNative(m_parts.settings.languageFile) : picked;
    paths.setSelected(static_cast<int>(paths.items().indexOf(path)));
}

void SettingsWindow::open()
{
    if (m_form.isOpen()) {
        return;
    }
    m_parts.trace.RecordAction({}, 22);
    // Stored is the pack that is selected, whether its page is looked at or not.
    m_parts.settings.List2.setSelected(-1);
    listPacks();
    keepState();
    m_parts.ports.forms.runModal(m_form);
}

bool SettingsWindow::SaveSettings()
{
    SettingsPage &settings = m_parts.settings;
    if (settings.languageChanged) {
        m_parts.messages.ShowMessage(u"You have to restart Kavro before the change can be applied. "
                                     "Press 'Ok' to continue."_s,
                                     Answer::Ok, u"ok"_s, u"Language pack change"_s);
    }
    if (settings.Combo2.selected() >= 0) {
        m_parts.frameRates.optFrameRate[settings.Combo2.selected()].setOn();
    }
    settings.languageFile = settings.Check2.isOn() ? settings.List2.selectedText() : QString();
    const FileStatus status = m_parts.files.writeOptions();
    if (!status.ok()) {
        m_parts.messages.ShowMessage({u"The settings can't be stored./n%1"_s, {}, status.text},
                                     Answer::Ok, u"ok"_s,
                                     m_parts.language.text(LangGroup::Report, 13));
        return false;
    }
    settings.languageChanged = false;
    return true;
}

void SettingsWindow::confirm()
{
    if (SaveSettings()) {
        m_parts.files.LoadSettingsFile();
        m_form.hide();
    }
}

void SettingsWindow::cancel()
{
    bringBackState();
    m_form.hide();
}

void SettingsWindow::keepState()
{
    const SettingsPage &settings = m_parts.settings;
    m_kept = {.boxes = {},
              .frameRate = settings.Combo2.selected(),
              .scripts = settings.cmbScript.items(),
              .script = settings.cmbScript.selected(),
              .languageFile = settings.languageFile,
              .languageChanged = settings.languageChanged};
    for (Control *control : m_form.controls()) {
        if (auto *box = qobject_cast<CheckBox *>(control)) {
            m_kept.boxes.append({box, box->isOn()});
        }
    }
}

void SettingsWindow::bringBackState()
{
    SettingsPage &settings = m_parts.settings;
    for (const auto &[box, on] : std::as_const(m_kept.boxes)) {
        box->setOn(on);
    }
    settings.Combo2.setSelected(m_kept.frameRate);
    settings.cmbScript.setItems(m_kept.scripts);
    settings.cmbScript.setSelected(m_kept.script);
    settings.languageFile = m_kept.languageFile;
    settings.languageChanged = m_kept.languageChanged;
}

} // namespace kavro
