// The tabs of the main window: what entering one changes, and what a click on one records.

#include "app/navigation.h"
#include "core/action_trace.h"
#include "core/clipboard_panel.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/player_page.h"
#include "core/ports.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// By tab of `tabMain`: the code of its click.
constexpr int mainTabCodes[] = {1, 4, 5, 14, 15, 16, 17};

/// First codes of the other tabs; each further tab is one more.
enum TabCode {
    CalculatorCode = 2,
    EditorCode = 6,
    TimingCode = 10,
    OnlineCode = 18,
    BottomCode = 20,
    LeftCode = 38
};

/// First pages of the help, likewise.
enum TabPage { EditorPages = 4, TimingPages = 8, OnlinePages = 15, BottomPages = 17 };

constexpr int noPage = -1;

/// The last tab of `SSTab2` only holds `SSTab3`, and has neither code nor page.
constexpr int lastEditorTab = 3;

enum SecondCopy { CopyToB = 0, CopyToLast = 1, CopyToEnd = 2 };
enum FirstCopy {
    CopyToA = 0,
    CopyToFirst = 1,
    CopyToStart = 2,
    CopyToDuration = 3,
    CopyToSpreadsheet = 4,
    CopyToPartitionlist = 5
};

enum PlayerText { StoppedText = 1, UpdatingText = 3, PlayerTitle = 4 };

} // namespace

void Navigation::connectTabs()
{
    QObject::connect(&tabMain, &TabStrip::tabChanged, &tabMain, [this](int tab) {
        openBottomPanel(true);
        enterMainTab(tab);
    });
    QObject::connect(&tabMain, &TabStrip::picked, &tabMain, [this](int tab, int previous) {
        m_parts.ports.player.stop();
        if (tab == previous) {
            enterMainTab(tab);
        }
        // A recorded macro shall not begin with the way to the recorder.
        if (tab != MacroTab || m_parts.trace.recorderState != 1) {
            m_parts.trace.RecordAction({}, mainTabCodes[tab]);
        }
        autoHelp(helpOfMainTab(tab));
    });
    QObject::connect(&tabCalculator, &TabStrip::tabChanged, &tabCalculator,
                     [this] { showCalculatorButtons(); });
    QObject::connect(&tabCalculator, &TabStrip::picked, &tabCalculator, [this](int tab) {
        record(CalculatorCode + tab, helpOfMainTab(CalculatorTab));
    });
    TabStrip &SSTab2 = m_parts.editor.SSTab2;
    QObject::connect(&SSTab2, &TabStrip::picked, &SSTab2, [this](int tab) {
        if (tab <= lastEditorTab) {
            record(EditorCode + tab, EditorPages + tab);
        }
    });
    TabStrip &SSTab3 = m_parts.editor.SSTab3;
    QObject::connect(&SSTab3, &TabStrip::tabChanged, &SSTab3, [this] { subSetEditTab(); });
    QObject::connect(&SSTab3, &TabStrip::picked, &SSTab3,
                     [this](int tab) { record(TimingCode + tab, TimingPages + tab); });
    QObject::connect(&SSTab5, &TabStrip::picked, &SSTab5,
                     [this](int tab) { record(OnlineCode + tab, OnlinePages + tab); });
    QObject::connect(&tabClipboard, &TabStrip::picked, &tabClipboard,
                     [this](int tab) { record(BottomCode + tab, BottomPages + tab); });
    QObject::connect(&SSTab1, &TabStrip::picked, &SSTab1,
                     [this](int tab) { record(LeftCode + tab, noPage); });
    QObject::connect(&command55[0], &Button::clicked, &command55[0],
                     [this] { openBottomPanel(!tabClipboard.isVisible()); });
}

void Navigation::showPage(const TreeNode &node)
{
    if (node.mainTab >= 0) {
        tabMain.pick(node.mainTab);
    }
    switch (node.inner) {
    case InnerTabs::NoTabs: break;
    case InnerTabs::Calculator: tabCalculator.pick(node.innerTab); break;
    case InnerTabs::Editor: m_parts.editor.SSTab2.pick(node.innerTab); break;
    case InnerTabs::Timing: m_parts.editor.SSTab3.pick(node.innerTab); break;
    case InnerTabs::Online: SSTab5.pick(node.innerTab); break;
    case InnerTabs::Bottom: tabClipboard.pick(node.innerTab); break;
    }
}

void Navigation::enterMainTab(int tab)
{
    ClipboardPanel &panel = m_parts.clipboard;
    switch (tab) {
    case CalculatorTab: showCalculatorButtons(); break;
    case PartitionTab:
        showCopyButton(0, LangGroup::CopyFirst, CopyToPartitionlist);
        panel.command4[0].setEnabled(panel.List1.count() > 0);
        panel.command4[1].setVisible(false);
        break;
    case EditorTab: subSetEditTab(); break;
    case PlayerTab: enterPlayer(); break;
    default: break;
    }
}

int Navigation::helpOfMainTab(int tab) const
{
    switch (tab) {
    case CalculatorTab: return tabCalculator.tab() == 0 ? 2 : 1;
    case PartitionTab: return 3;
    case EditorTab: return EditorPages + m_parts.editor.SSTab2.tab();
    case PlayerTab: return 12;
    case DiagnoseTab: return 13;
    case MacroTab: return 14;
    default: return OnlinePages + SSTab5.tab();
    }
}

void Navigation::record(int code, int page)
{
    m_parts.trace.RecordAction({}, code);
    if (page != noPage) {
        autoHelp(page);
    }
}

void Navigation::enterPlayer()
{
    const LanguageTable &language = m_parts.language;
    const QString title = u" ["_s + language.text(LangGroup::Player, PlayerTitle) + u']';
    m_parts.player.Label27.setCaption(language.text(LangGroup::Player, UpdatingText) + title);
    if (!m_parts.ports.player.fileName().isEmpty() && !m_parts.document.subtitleChanged) {
        m_parts.document.BuildPlayerList();
    }
    m_parts.player.Label27.setCaption(language.text(LangGroup::Player, StoppedText) + title);
}

void Navigation::openBottomPanel(bool open)
{
    tabClipboard.setVisible(open);
    command55[0].setCaption(open ? u"-"_s : u"+"_s);
}

void Navigation::subSetEditTab()
{
    switch (m_parts.editor.SSTab3.tab()) {
    case 0:
        showCopyButton(0, LangGroup::CopyFirst, CopyToDuration);
        m_parts.clipboard.command4[1].setVisible(false);
        break;
    case 1:
        showCopyButton(0, LangGroup::CopyFirst, CopyToFirst);
        showCopyButton(1, LangGroup::CopySecond, CopyToLast);
        break;
    case 2:
        showCopyButton(0, LangGroup::CopyFirst, CopyToStart);
        showCopyButton(1, LangGroup::CopySecond, CopyToEnd);
        break;
    default: break;
    }
}

void Navigation::showCalculatorButtons()
{
    if (tabCalculator.tab() == 0) {
        showCopyButton(0, LangGroup::CopyFirst, CopyToSpreadsheet);
        m_parts.clipboard.command4[1].setVisible(false);
    } else {
        showCopyButton(0, LangGroup::CopyFirst, CopyToA);
        showCopyButton(1, LangGroup::CopySecond, CopyToB);
    }
}

void Navigation::showCopyButton(int button, LangGroup group, int item)
{
    Button &copy = m_parts.clipboard.command4[button];
    copy.setCaption(m_parts.language.text(group, item));
    copy.setToolTip(m_parts.language.tip(group, item));
    copy.setVisible(true);
}

} // namespace kavro
