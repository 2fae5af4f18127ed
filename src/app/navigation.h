#pragma once

#include "app/tree_nodes.h"
#include "controls/control_array.h"
#include "controls/list_box.h"
#include "controls/tab_strip.h"
#include "controls/tree_view.h"
#include "core/language.h"
#include "core/main_tabs.h"

#include <QString>

#include <array>
#include <optional>

namespace kavro {

class Folders;
class Form;
class HelpWindow;
class Messages;
class SubtitleDocument;
class SubtitleLoader;
struct ActionTrace;
struct ClipboardPanel;
struct EditorPage;
struct MainMenu;
struct PlayerPage;
struct Ports;
struct SettingsPage;

/// Place and size of the main window in twips, 15 to a pixel. The view keeps it true.
struct ScreenPos
{
    static constexpr double twipsPerPixel = 15;
    static constexpr double minFormWidth = 14295;
    static constexpr double minFormHeight = 9195;

    double left = 0;
    double top = 0;
    double width = minFormWidth;
    double height = minFormHeight;
};

/// The tree and the tabs: what a click on them brings to the front.
class Navigation
{
public:
    /// All are borrowed and outlive the navigation.
    struct Parts
    {
        const Ports &ports;
        MainMenu &menu;
        EditorPage &editor;
        PlayerPage &player;
        ClipboardPanel &clipboard;
        SettingsPage &settings;
        SubtitleDocument &document;
        SubtitleLoader &loader;
        HelpWindow &help;
        Messages &messages;
        const LanguageTable &language;
        Folders &folders;
        ActionTrace &trace;
    };

    Navigation(Form &frmMain, const Parts &parts);

    /// Reads pos.sdf; a missing or damaged one gives the default window in the screen's middle.
    void SetScreenPos();
    /// Builds the tree from `nodeCaption` and the recent list.
    void LoadNodes();
    /// Does what a click on the node of that key does; nothing for a key that leads nowhere.
    void selectNode(const QString &key);
    /// The buttons `command4` for the tab of `SSTab3`.
    void subSetEditTab();

    /// The path is added to the recent list and the tree, or selected where it stands.
    void addRecent(const QString &path);
    /// Brings a page of the help to the front if the big commands shall do so.
    void autoHelp(int page);
    /// The help page of a page of the window, with the tab that its inner tabs show.
    [[nodiscard]] int helpOfMainTab(int tab) const;
    /// The help page of what a page's inner tabs or those of the bottom panel show.
    [[nodiscard]] std::optional<int> helpOfTabs(const TabStrip &tabs) const;
    /// Opens the help's index, and its tab.
    void mnuHelpIndex();
    /// True when a click on that node of the tree, or on one below it, leads somewhere now; a view
    /// leaves the others out.
    [[nodiscard]] bool leadsSomewhere(int node) const;

    ScreenPos screenPos;
    /// Captions of the tree's nodes in the order of `treeNodes`, the roots included.
    std::array<QString, treeNodeCount> nodeCaption;

    TreeView TV1;
    ComboBox Combo13;       ///< recent files by full path, in the order they came; never shown
    TabStrip tabMain;       ///< Calculator to Online
    TabStrip tabCalculator; ///< Advanced, Classic
    TabStrip tabClipboard;  ///< the bottom panel: Clipboard, Script Player, ...
    TabStrip SSTab1;        ///< left panel: tree, help page
    TabStrip SSTab5;        ///< Download, Upload
    ControlArray<Button, 0, 0> command55; ///< opens and closes the bottom panel: "-" while open

private:
    void connectTabs();
    void connectInner(InnerTabs inner, int firstCode);
    void clickMenu(NodeAction action);
    void showPage(const TreeNode &node);
    void markPlace(InnerTabs inner);
    [[nodiscard]] TabStrip *innerTabs(InnerTabs inner);
    void loadRecent(const QString &path);
    void enterMainTab(int tab);
    void enterPlayer();
    void openBottomPanel(bool open);
    void showCopyButton(int button, LangGroup group, int item);
    void showCalculatorButtons();
    void renewCopyButtons();

    Parts m_parts;
};

} // namespace kavro
