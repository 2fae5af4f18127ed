#include "app/navigation.h"

#include "app/help_window.h"
#include "controls/form.h"
#include "core/action_trace.h"
#include "core/folders.h"
#include "core/line_reader.h"
#include "core/main_menu.h"
#include "core/messages.h"
#include "core/ports.h"
#include "core/settings_page.h"
#include "core/text.h"
#include "formats/load_subfile.h"

#include <QStringBuilder>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// A node of the tree that stands for an entry of the menu.
struct MenuNode
{
    NodeAction action;
    Button MainMenu::*entry;
    QStringView refusal = {}; ///< what is said while the entry is disabled, if anything
};

constexpr MenuNode menuNodes[] = {
    {NodeAction::NewFile, &MainMenu::mnuNewFile},
    {NodeAction::LoadFile, &MainMenu::mnuLoadFile},
    {NodeAction::AddFile, &MainMenu::mnuAddFile,
     u"You can not add a file while there is no primairy file loaded first. Please load a "
     u"primairy file first. Press Ok to continue."},
    {NodeAction::SaveSubtitle, &MainMenu::mnuSavesubfile,
     u"You can not save a file that has not been loaded yet. Please load a primairy file first. "
     u"Press Ok to continue."},
    {NodeAction::SaveSettings, &MainMenu::mnuSaveSettings},
    {NodeAction::Collection, &MainMenu::mnuDBManage},
    {NodeAction::Print, &MainMenu::mnuPrint,
     u"You can not print the content of a file that has not been loaded yet. Please load a "
     u"primairy file first. Press Ok to continue."},
    {NodeAction::Exit, &MainMenu::mnuExit},
    {NodeAction::Preview, &MainMenu::mnuPreview,
     u"You can not view any content because you have to load a subtitle file first. Press Ok to "
     u"continue."},
    {NodeAction::Settings, &MainMenu::mnuSettings},
    {NodeAction::System, &MainMenu::mnuSystem},
    {NodeAction::History, &MainMenu::mnuHistory},
    {NodeAction::Wizard, &MainMenu::mnuWizard},
    {NodeAction::OnlineHelp, &MainMenu::mnuHelpIndex},
    {NodeAction::ShowTips, &MainMenu::mnuShowTips},
    {NodeAction::About, &MainMenu::mnuAbout},
};

constexpr QStringView fileKeyPrefix = u"lf_";

/// A number line of pos.sdf; none for a line that is no number or one no screen can have.
std::optional<double> readTwips(LineReader &reader)
{
    constexpr double farthest = 1e6;
    const QStringView line = reader.readLine().trimmed();
    const bool isNumber = !line.isEmpty() && (line.front().isDigit() || line.front() == u'-')
                          && line.back().isDigit();
    const double value = Val(line);
    return isNumber && std::abs(value) < farthest ? std::optional(value) : std::nullopt;
}

std::optional<ScreenPos> readScreenPos(const QString &path)
{
    LineReader reader;
    reader.open(path);
    ScreenPos pos;
    for (double ScreenPos::*side :
         {&ScreenPos::left, &ScreenPos::top, &ScreenPos::width, &ScreenPos::height})
    {
        const std::optional<double> value = readTwips(reader);
        if (!value) {
            return std::nullopt;
        }
        pos.*side = *value;
    }
    pos.width = std::max(pos.width, ScreenPos::minFormWidth);
    pos.height = std::max(pos.height, ScreenPos::minFormHeight);
    return pos;
}

} // namespace

Navigation::Navigation(Form &frmMain, const Parts &parts)
    : TV1(frmMain, u"TV1"_s),
      Combo13(frmMain, u"Combo13"_s),
      tabMain(frmMain, u"tabMain"_s, 7),
      tabCalculator(frmMain, u"tabCalculator"_s, 2),
      tabClipboard(frmMain, u"tabClipboard"_s, 4),
      SSTab1(frmMain, u"SSTab1"_s, 2),
      SSTab5(frmMain, u"SSTab5"_s, 2),
      command55(frmMain, u"command55"_s),
      m_parts(parts)
{
    Combo13.setVisible(false);
    std::ranges::transform(treeNodes(), nodeCaption.begin(),
                           [](const TreeNode &node) { return node.caption.toString(); });
    QObject::connect(&TV1, &TreeView::clicked, &TV1,
                     [this](int node) { selectNode(TV1.node(node).key); });
    connectTabs();
    openBottomPanel(true);
}

void Navigation::SetScreenPos()
{
    const std::optional<ScreenPos> stored =
        readScreenPos(m_parts.folders.path(Folder::System, u"pos.sdf"));
    if (stored) {
        screenPos = *stored;
        return;
    }
    const QSize screen = m_parts.ports.screen.size();
    screenPos = {};
    screenPos.left = (screen.width() * ScreenPos::twipsPerPixel - screenPos.width) / 2;
    screenPos.top = (screen.height() * ScreenPos::twipsPerPixel - screenPos.height) / 2;
}

void Navigation::LoadNodes()
{
    TV1.clear();
    const std::span<const TreeNode> nodes = treeNodes();
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const TreeNode &node = nodes[i];
        const int parent =
            node.parent.isEmpty() ? TreeView::noNode : TV1.find(node.parent.toString());
        const int added = TV1.add(parent, nodeCaption[i], node.key.toString());
        if (parent == TreeView::noNode) {
            TV1.expand(added);
        }
    }
    const int recent = TV1.find(u"recent"_s);
    for (const QString &path : Combo13.items()) {
        TV1.add(recent, path, fileKeyPrefix % path);
    }
}

void Navigation::addRecent(const QString &path)
{
    const qsizetype known = Combo13.items().indexOf(path);
    if (known < 0) {
        TV1.add(TV1.find(u"recent"_s), path, fileKeyPrefix % path);
        Combo13.addItem(path);
    }
    Combo13.setSelected(known < 0 ? Combo13.count() - 1 : static_cast<int>(known));
}

bool Navigation::leadsSomewhere(int node) const
{
    const TreeView::Node &shown = TV1.node(node);
    const TreeNode *known = treeNode(shown.key);
    if (known && known->action != NodeAction::None) {
        return known->built;
    }
    return !known || std::ranges::any_of(shown.children, [this](int child) {
        return leadsSomewhere(child);
    });
}

void Navigation::selectNode(const QString &key)
{
    if (key.startsWith(fileKeyPrefix)) {
        loadRecent(key.sliced(fileKeyPrefix.size()));
    } else if (const TreeNode *known = treeNode(key)) {
        if (known->action == NodeAction::Page) {
            showPage(*known);
        } else {
            clickMenu(known->action);
        }
    }
}

void Navigation::clickMenu(NodeAction action)
{
    const auto found = std::ranges::find(menuNodes, action, &MenuNode::action);
    if (found == std::end(menuNodes)) {
        return;
    }
    Button &entry = m_parts.menu.*(found->entry);
    if (entry.acceptsActs()) {
        entry.click();
    } else if (!entry.isEnabled() && !found->refusal.isEmpty()) {
        m_parts.messages.ShowMessage(found->refusal.toString(), Answer::Ok, u"ok"_s, u"Warning"_s);
    }
}

void Navigation::loadRecent(const QString &path)
{
    LoadRequest request{.path = path};
    m_parts.loader.LoadSubFile(request);
}

void Navigation::autoHelp(int page)
{
    if (m_parts.settings.Check7[SettingsPage::AutoHelp].isOn()) {
        SSTab1.setTab(1);
        m_parts.help.ShowHelpPage(page);
    }
}

void Navigation::mnuHelpIndex()
{
    m_parts.trace.RecordAction({}, 107);
    SSTab1.setTab(1);
    m_parts.help.showIndex();
}

} // namespace kavro
