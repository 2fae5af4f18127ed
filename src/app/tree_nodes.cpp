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
    {u"preview",    u"view",       u"Preview",                 Preview,      later},
    {u"settings",   u"options",    u"Settings ..",             Settings,     later},
    {u"system",     u"options",    u"System ..",               System,       later},
    {u"history",    u"options",    u"History ..",              History,      later},
    {u"wizshow",    u"wizard",     u"Show",                    Wizard,       later},
    {u"onlinehelp", u"help",       u"Online Help",             OnlineHelp,   built},
    {u"showtips",   u"help",       u"Show Tips",               ShowTips,     built},
    {u"about",      u"help",       u"About",                   About,        built},
    {u"calc",       u"main",       u"Calculator",              Page,         later, 0},
    {u"part",       u"main",       u"Partition",               Page,         later, 1},
    {u"edit",       u"main",       u"Editor",                  Page,         built, 2},
    {u"mp",         u"main",       u"Media Player",            Page,         later, 3},
    {u"diag",       u"main",       u"Diagnose",                Page,         later, 4},
    {u"macro",      u"main",       u"Macro's",                 Page,         later, 5},
    {u"online",     u"main",       u"Online",                  Page,         later, 6},
    {u"adv",        u"calc",       u"Advanced",                Page,         later, 0, Calculator, 0},
    {u"classic",    u"calc",       u"Classic",                 Page,         later, 0, Calculator, 1},
    {u"basic",      u"edit",       u"Basic",                   Page,         built, 2, Editor, 0},
    {u"sr",         u"edit",       u"Search/Replace",          Page,         later, 2, Editor, 1},
    {u"filter",     u"edit",       u"Filters",                 Page,         later, 2, Editor, 2},
    {u"font",       u"edit",       u"Font",                    Page,         later, 2, Editor, 3},
    {u"shift",      u"edit",       u"Shift",                   Page,         later, 2, Timing, 0},
    {u"stretch",    u"edit",       u"Stretch",                 Page,         later, 2, Timing, 1},
    {u"time",       u"edit",       u"Time",                    Page,         later, 2, Timing, 2},
    {u"fr",         u"edit",       u"Frame Rate",              Page,         later, 2, Timing, 3},
    {u"dl",         u"online",     u"Download",                Page,         later, 6, Online, 0},
    {u"ul",         u"online",     u"Upload",                  Page,         later, 6, Online, 1},
    {u"clip",       u"sub",        u"Clipboard",               Page,         later, -1, Bottom, 0},
    {u"sp",         u"sub",        u"Script Player",           Page,         later, -1, Bottom, 1},
}};
// clang-format on

} // namespace

std::span<const TreeNode> treeNodes()
{
    return table;
}

const TreeNode *treeNode(QStringView key)
{
    const auto found = std::ranges::find_if(table, [key](const TreeNode &node) {
        return node.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    return found == table.end() ? nullptr : &*found;
}

} // namespace kavro
