#include "controls/tree_view.h"

#include "controls/form.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class TreeViewTest : public testing::Test
{
protected:
    TreeViewTest() : form(u"frmMain"_s), tree(form, u"TV1"_s)
    {
        menu = tree.add(TreeView::noNode, u"Menu"_s, u"menu"_s);
        main = tree.add(TreeView::noNode, u"Main"_s, u"main"_s);
        file = tree.add(menu, u"File"_s, u"file"_s);
        load = tree.add(file, u"Load"_s);
        tree.add(main, u"Load"_s);
        QObject::connect(&tree, &TreeView::clicked, &tree,
                         [this](int number) { heard.append(u"clicked %1"_s.arg(number)); });
        QObject::connect(&tree, &TreeView::selectedChanged, &tree,
                         [this](int number) { heard.append(u"selected %1"_s.arg(number)); });
        QObject::connect(&tree, &TreeView::reset, &tree, [this] { heard.append(u"reset"_s); });
    }

    std::string takeHeard() { return std::exchange(heard, {}).join(u"; "_s).toStdString(); }

    Form form;
    TreeView tree;
    int menu, main, file, load;
    QStringList heard;
};

TEST_F(TreeViewTest, KeysAreTheSameInAnyCase)
{
    EXPECT_EQ(tree.find(u"FILE"_s), file);
    EXPECT_EQ(tree.find(u"load"_s), TreeView::noNode); // a text is no key
    EXPECT_EQ(tree.add(main, u"File"_s, u"File"_s), TreeView::noNode);
    EXPECT_EQ(tree.add(99, u"Lost"_s), TreeView::noNode);
    tree.clear();
    EXPECT_EQ(tree.find(u"file"_s), TreeView::noNode);
    EXPECT_NE(tree.add(TreeView::noNode, u"File"_s, u"File"_s), TreeView::noNode);
}

TEST_F(TreeViewTest, TextIsFoundFromTheTopAsShown)
{
    EXPECT_EQ(tree.findText(u"Load"), load); // below the first root, though deeper
    EXPECT_EQ(tree.findText(u"load"), TreeView::noNode);
}

TEST_F(TreeViewTest, EveryClickActs)
{
    tree.click(main);
    tree.click(main);
    EXPECT_EQ(takeHeard(), "selected 1; clicked 1; clicked 1");
    tree.setSelected(menu);
    tree.setSelected(menu);
    EXPECT_EQ(takeHeard(), "selected 0");
    tree.setSelected(99);
    tree.click(99);
    tree.click(-1);
    EXPECT_EQ(tree.selected(), menu);
    tree.clear();
    tree.click(menu);
    EXPECT_EQ(takeHeard(), "reset; selected -1");
}

TEST_F(TreeViewTest, BatchIsToldOnce)
{
    QObject::connect(&tree, &TreeView::added, &tree, [this] { heard.append(u"added"_s); });
    QObject::connect(&tree, &TreeView::expanded, &tree,
                     [this](int number) { heard.append(u"expanded %1"_s.arg(number)); });
    {
        const TreeView::Batch outer(tree);
        tree.clear();
        const TreeView::Batch inner(tree);
        menu = tree.add(TreeView::noNode, u"New"_s);
        tree.expand(menu);
    }
    EXPECT_EQ(takeHeard(), "reset");
    EXPECT_TRUE(tree.node(menu).expanded);
    main = tree.add(TreeView::noNode, u"Next"_s);
    tree.expand(menu);
    tree.expand(main);
    tree.expand(99);
    EXPECT_EQ(takeHeard(), "added; expanded 1");
}

} // namespace
} // namespace kavro
