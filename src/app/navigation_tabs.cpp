// The tabs of the main window: what entering one changes, and what a click on one records.

#include "app/navigation.h"
#include "core/action_trace.h"
#include "core/clipboard_panel.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/player_page.h"
#include "core/ports.h"

#include <algorithm>

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
        markPlace(InnerTabs::NoTabs);
    });
    QObject::connect(&tabMain, &TabStrip::picked, &tabMain, [this](int tab, int previous) {
        m_parts.ports.player.stop();
        if (tab == previous) {
            enterMainTab(tab);
            markPlace(InnerTabs::NoTabs);
        }
        // A recorded macro shall not begin with the way to the recorder.
        if (tab != MacroTab || m_parts.trace.recorderState != 1) {
            m_parts.trace.RecordAction({}, mainTabCodes[tab]);
        }
        autoHelp(helpOfMainTab(tab));
    });
    connectInner(InnerTabs::Calculator, CalculatorCode);
    connectInner(InnerTabs::Editor, EditorCode);
    connectInner(InnerTabs::Timing, TimingCode);
    connectInner(InnerTabs::Online, OnlineCode);
    connectInner(InnerTabs::Bottom, BottomCode);
    QObject::connect(&SSTab1, &TabStrip::picked, &SSTab1,
                     [this](int tab) { m_parts.trace.RecordAction({}, LeftCode + tab); });
    QObject::connect(&command55[0], &Button::clicked, &command55[0],
                     [this] { openBottomPanel(!tabClipboard.isVisible()); });
}

/// A tab without a page of the help has no code either.
void Navigation::connectInner(InnerTabs inner, int firstCode)
{
    TabStrip &tabs = *innerTabs(inner);
    const auto follow = [this, inner] {
        renewCopyButtons();
        markPlace(inner);
    };
    QObject::connect(&tabs, &TabStrip::tabChanged, &tabs, follow);
    QObject::connect(&tabs, &TabStrip::picked, &tabs, [this, &tabs, firstCode, follow](int tab) {
        follow();
        if (const std::optional<int> help = helpOfTabs(tabs)) {
            m_parts.trace.RecordAction({}, firstCode + tab);
            autoHelp(*help);
        }
    });
}

TabStrip *Navigation::innerTabs(InnerTabs inner)
{
    switch (inner) {
    case InnerTabs::NoTabs: break;
    case InnerTabs::Calculator: return &tabCalculator;
    case InnerTabs::Editor: return &m_parts.editor.SSTab2;
    case InnerTabs::Timing: return &m_parts.editor.SSTab3;
    case InnerTabs::Online: return &SSTab5;
    case InnerTabs::Bottom: return &tabClipboard;
    case InnerTabs::Left: return &SSTab1;
    }
    return nullptr;
}

void Navigation::showPage(const TreeNode &node)
{
    if (node.mainTab >= 0) {
        tabMain.pick(node.mainTab);
    }
    if (TabStrip *tabs = innerTabs(node.inner)) {
        tabs->pick(node.innerTab);
    }
}

/// Selects the node of the page that these tabs have brought to the front, so that the tree tells
/// where the window is, whatever led there.
void Navigation::markPlace(InnerTabs inner)
{
    const TabStrip *tabs = innerTabs(inner);
    const auto place = std::ranges::find_if(treeNodes(), [&](const TreeNode &node) {
        return node.action == NodeAction::Page && node.inner == inner
               && (node.mainTab < 0 || node.mainTab == tabMain.tab())
               && (!tabs || node.innerTab == tabs->tab());
    });
    if (place != treeNodes().end()) {
        TV1.setSelected(TV1.find(place->key.toString()));
    }
}

void Navigation::enterMainTab(int tab)
{
    renewCopyButtons();
    if (tab == PlayerTab) {
        enterPlayer();
    }
}

void Navigation::renewCopyButtons()
{
    ClipboardPanel &panel = m_parts.clipboard;
    switch (tabMain.tab()) {
    case CalculatorTab: showCalculatorButtons(); break;
    case PartitionTab:
        showCopyButton(0, LangGroup::CopyFirst, CopyToPartitionlist);
        panel.command4[0].setEnabled(panel.List1.count() > 0);
        panel.command4[1].setVisible(false);
        break;
    case EditorTab: subSetEditTab(); break;
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

std::optional<int> Navigation::helpOfTabs(const TabStrip &tabs) const
{
    const int tab = tabs.tab();
    if (&tabs == &tabCalculator) {
        return helpOfMainTab(CalculatorTab);
    }
    if (&tabs == &m_parts.editor.SSTab2) {
        return tab <= lastEditorTab ? std::optional(EditorPages + tab) : std::nullopt;
    }
    if (&tabs == &m_parts.editor.SSTab3) {
        return TimingPages + tab;
    }
    if (&tabs == &SSTab5) {
        return OnlinePages + tab;
    }
    return &tabs == &tabClipboard ? std::optional(BottomPages + tab) : std::nullopt;
}

void Navigation::enterPlayer()
{
    subSetEditTab(); // the timing page stands beside the picture
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
