#pragma once

#include <QStringView>

#include <span>

namespace kavro {

/// What a click on a node of the main tree does.
enum class NodeAction {
    None,
    NewFile,
    LoadFile,
    AddFile,
    SaveSubtitle,
    SaveSettings,
    Collection,
    Print,
    Exit,
    Preview,
    Settings,
    System,
    History,
    Wizard,
    OnlineHelp,
    ShowTips,
    About,
    Page, ///< brings tabs to the front
};

/// The second set of tabs that a page's node brings to the front.
enum class InnerTabs { NoTabs, Calculator, Editor, Timing, Online, Bottom, Left };

/// A node of the main tree.
struct TreeNode
{
    QStringView key;
    QStringView parent; ///< key of the parent, empty for a root
    QStringView caption;
    NodeAction action = NodeAction::None;
    bool built = false; ///< the window or the page behind it exists
    int mainTab = -1;   ///< tab of `tabMain`, -1 for none
    InnerTabs inner = InnerTabs::NoTabs;
    int innerTab = 0;
};

/// The roots and all nodes below them, parents first; the position is the index of a language pack.
constexpr int treeNodeCount = 47;
std::span<const TreeNode> treeNodes();

/// What a key leads to, in any case of letters; nullptr for nothing. Some keys have no node in the
/// tree.
const TreeNode *treeNode(QStringView key);

} // namespace kavro
