#include "app/tree_nodes.h"

#include <QString>

#include <algorithm>
#include <array>

namespace kavro {

namespace {

using enum InnerTabs;
using enum NodeAction;

constexpr bool later = false; ///< the window or page is still to come
constexpr bool built = true;

// clang-format off
constexpr std::array<TreeNode, treeNodeCount> table = {{
    // key           parent         caption                     action        state, tabMain, inner tabs
    {u"menu",       u"",           u"Menu"},
    {u"main",       u"",           u"Main"},
    {u"sub",        u"",           u"Sub Tab"},
    {u"recent",     u"",           u"Recent"},
    {u"file",       u"menu",       u"File"},
    {u"view",       u"menu",       u"View"},
    {u"options",    u"menu",       u"Options"},
    {u"wizard",     u"menu",       u"Wizard"},
    {u"help",       u"menu",       u"Help"},
    {u"new",        u"file",       u"New File",                NewFile,      built},
    {u"load",       u"file",       u"Load File ..",            LoadFile,     built},
    {u"add",        u"file",       u"Add File ..",             AddFile,      built},
    {u"save_sub",   u"file",       u"Save Subtitle File ..",   SaveSubtitle, built},
    {u"save_set",   u"file",       u"Save Settings",           SaveSettings, built},
    {u"collection", u"file",       u"Collection"},
    {u"col_manage", u"collection", u"Manage",                  Collection,   later},
    {u"print",      u"file",       u"Direct Print",            Print,        built},
    {u"exit",       u"file",       u"Exit",                    Exit,         built},
    {u"preview",    u"view",       u"Preview",                 Preview,      built},
    {u"settings",   u"options",    u"Settings ..",             Settings,     built},
    {u"system",     u"options",    u"System ..",               System,       later},
    {u"history",    u"options",    u"History ..",              History,      built},
    {u"wizshow",    u"wizard",     u"Show",                    Wizard,       built},
    {u"onlinehelp", u"help",       u"Online Help",             OnlineHelp,   built},
    {u"showtips",   u"help",       u"Show Tips",               ShowTips,     built},
    {u"about",      u"help",       u"About",                   About,        built},
    {u"calc",       u"main",       u"Calculator",              Page,         later, 0},
    {u"part",       u"main",       u"Partition",               Page,         built, 1},
    {u"edit",       u"main",       u"Editor",                  Page,         built, 2},
    {u"mp",         u"main",       u"Media Player",            Page,         later, 3},
    {u"diag",       u"main",       u"Diagnose",                Page,         built, 4},
    {u"macro",      u"main",       u"Macro's",                 Page,         later, 5},
    {u"online",     u"main",       u"Online",                  Page,         later, 6},
    {u"adv",        u"calc",       u"Advanced",                Page,         later, 0, Calculator, 0},
    {u"classic",    u"calc",       u"Classic",                 Page,         later, 0, Calculator, 1},
    {u"basic",      u"edit",       u"Basic",                   Page,         built, 2, Editor, 0},
    {u"sr",         u"edit",       u"Search/Replace",          Page,         built, 2, Editor, 1},
    {u"filter",     u"edit",       u"Filters",                 Page,         built, 2, Editor, 2},
    {u"font",       u"edit",       u"Font",                    Page,         built, 2, Editor, 3},
    {u"shift",      u"edit",       u"Shift",                   Page,         built, 2, Timing, 0},
    {u"stretch",    u"edit",       u"Stretch",                 Page,         built, 2, Timing, 1},
    {u"time",       u"edit",       u"Time",                    Page,         built, 2, Timing, 2},
    {u"fr",         u"edit",       u"Frame Rate",              Page,         built, 2, Timing, 3},
    {u"dl",         u"online",     u"Download",                Page,         later, 6, Online, 0},
    {u"ul",         u"online",     u"Upload",                  Page,         later, 6, Online, 1},
    {u"clip",       u"sub",        u"Clipboard",               Page,         built, -1, Bottom, 0},
    {u"sp",         u"sub",        u"Script Player",           Page,         later, -1, Bottom, 1},
}};

constexpr TreeNode withoutNode[] = {
    {u"tm",         u"",           u"",                        Page,         built, 2, Editor, 4},
    {u"info",       u"",           u"",                        Page,         built, -1, Bottom, 3},
    {u"subhelp",    u"",           u"",                        Page,         built, -1, Left, 1},
};
// clang-format on

} // namespace

std::span<const TreeNode> treeNodes()
{
    return table;
}

const TreeNode *treeNode(QStringView key)
{
    for (const std::span<const TreeNode> nodes :
         {treeNodes(), std::span<const TreeNode>(withoutNode)}) {
        const auto found = std::ranges::find_if(nodes, [key](const TreeNode &node) {
            return node.key.compare(key, Qt::CaseInsensitive) == 0;
        });
        if (found != nodes.end()) {
            return &*found;
        }
    }
    return nullptr;
}

} // namespace kavro
