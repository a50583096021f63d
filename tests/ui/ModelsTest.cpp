#include <gtest/gtest.h>

#include "ui/Collection.h"
#include "ui/Form.h"
#include "ui/Utf8.h"

#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace vexora::test {
namespace {

struct Entry {
    std::string name;
};

TEST(Collection, KeysAndPositionsStayRightWhenEntriesGo) {
    ui::Collection<Entry> entries;
    const auto a = std::make_shared<Entry>(Entry{"a"});
    const auto b = std::make_shared<Entry>(Entry{"b"});
    EXPECT_EQ(entries.Add(a, "K"), "K");
    EXPECT_EQ(entries.Add(b, "K"), "K~2");
    EXPECT_EQ(entries.Add(std::make_shared<Entry>(Entry{"c"})), "");
    EXPECT_EQ(entries.Item("K~2"), b);
    EXPECT_EQ(entries.Item(0), nullptr);
    EXPECT_EQ(entries.Item("k"), nullptr);
    EXPECT_TRUE(entries.Remove(a.get()));
    EXPECT_FALSE(entries.Remove(a.get()));
    EXPECT_EQ(entries.Position(b.get()), 1U);
    EXPECT_EQ(entries.Item("K"), nullptr);
    EXPECT_EQ(entries.Item("K~2"), b);
}

TEST(Collection, FindsEveryKeyThroughManyChanges) {
    ui::Collection<Entry> entries;
    std::vector<std::pair<std::string, std::shared_ptr<Entry>>> model; // key and entry, in order
    std::mt19937 random(7);
    const auto any = [&](std::size_t count) { return random() % count; };
    for (int step = 0; step < 4000; ++step) {
        const std::size_t action = any(4);
        if (action < 2 || model.empty()) {
            auto entry = std::make_shared<Entry>();
            const std::string key = entries.Add(entry, "k" + std::to_string(any(300)));
            model.emplace_back(key, entry);
        } else if (action == 2) {
            auto& [key, entry] = model[any(model.size())];
            key = entries.Rekey(entry.get(), "k" + std::to_string(any(300)));
        } else {
            const std::size_t at = any(model.size());
            EXPECT_TRUE(entries.Remove(model[at].second.get()));
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
        }
        if (model.empty()) continue;
        const std::size_t at = any(model.size());
        ASSERT_EQ(entries.Item(model[at].first), model[at].second) << step;
        ASSERT_EQ(entries.Item(at + 1), model[at].second) << step;
    }
    for (std::size_t at = 0; at < model.size(); ++at)
        EXPECT_EQ(entries.Position(model[at].second.get()), at + 1);
    EXPECT_EQ(entries.Item("gone"), nullptr);
}

TEST(TreeView, RemovingANodeForgetsWhatStandsBelowIt) {
    ui::Form form("frmTree", "Tree");
    ui::TreeView tree(form, "tvwTree");
    ui::TreeNode& root = tree.Add(nullptr, "R", "Root");
    ui::TreeNode& child = tree.Add(&root, "K", "one");
    EXPECT_EQ(tree.Add(&child, "K", "two").Key(), "K~2");
    tree.Select(tree.Find("K~2"));
    tree.Remove(child);
    EXPECT_EQ(tree.SelectedNode(), nullptr);
    EXPECT_EQ(tree.Find("K~2"), nullptr);
    EXPECT_EQ(tree.Find("R"), &root);
    tree.Clear();
    EXPECT_TRUE(tree.IsEmpty());
}

TEST(TreeView, AnotherKeyIsThatOfAllNodesBelow) {
    ui::Form form("frmTree", "Tree");
    ui::TreeView tree(form, "tvwTree");
    ui::TreeNode& root = tree.Add(nullptr, "R", "Root");
    ui::TreeNode& sample = tree.Add(&root, "RS1", "sample");
    ui::TreeNode& set = tree.Add(&sample, "RS1VDN", "set");
    tree.Add(&root, "RS2", "another");
    tree.Rekey(sample, "RS2");
    EXPECT_EQ(tree.Find("RS2~2"), &sample);
    EXPECT_EQ(tree.Find("RS2~2VDN"), &set);
    EXPECT_EQ(tree.Find("RS1"), nullptr);
    EXPECT_EQ(tree.Find("RS1VDN"), nullptr);
}

TEST(TreeView, TheMouseClicksWhereTheKeyboardOnlySelects) {
    ui::Form form("frmTree", "Tree");
    ui::TreeView tree(form, "tvwTree");
    ui::TreeNode& node = tree.Add(nullptr, "R", "Root");
    std::string told;
    tree.OnMouseDown = [&told] { told += "down "; };
    tree.OnNodeClick = [&told](ui::TreeNode& clicked) { told += "click " + clicked.Key() + " "; };
    tree.OnNodeDoubleClick = [&told](ui::TreeNode&) { told += "double "; };
    tree.UserNodeReached(node);
    EXPECT_EQ(told, "");
    EXPECT_EQ(tree.SelectedNode(), &node);
    tree.UserNodeDoubleClick(node);
    EXPECT_EQ(told, "down click R double ");
    tree.Enabled(false);
    tree.UserNodeDoubleClick(node);
    EXPECT_EQ(told, "down click R double ");
}

TEST(TreeView, AFilterShowsHitsBelowWhatLeadsToThemUntilItEnds) {
    ui::Form form("frmTree", "Tree");
    ui::TreeView tree(form, "tvwTree");
    ui::TreeNode& root = tree.Add(nullptr, "R", "Root");
    ui::TreeNode& one = tree.Add(&root, "1", "one");
    ui::TreeNode& deep = tree.Add(&one, "11", "deep");
    ui::TreeNode& two = tree.Add(&root, "2", "two");
    one.Expanded(false);
    std::string asked;
    const auto filter = [&](const std::string& text) {
        asked.clear();
        tree.Filter([&](const ui::TreeNode& node) {
            asked += node.Key() + " ";
            return node.Text() == text;
        });
    };
    const auto shown = [&] {
        std::string keys;
        for (const ui::TreeNode* node : {&root, &one, &deep, &two})
            if (!node->Hidden()) keys += node->Key() + (node->Expanded() ? "+ " : "- ");
        return keys;
    };
    filter("deep");
    EXPECT_EQ(asked, "R 1 11 2 "); // each once, from above
    EXPECT_EQ(shown(), "R+ 1+ 11+ ");
    filter("two");
    EXPECT_EQ(shown(), "R+ 2+ ");
    tree.Add(&root, "3", "new").EnsureVisible();
    EXPECT_FALSE(tree.Find("3")->Hidden());
    filter("nothing");
    EXPECT_EQ(shown(), "");
    tree.EndFilter();
    EXPECT_EQ(shown(), "R+ 1- 11+ 2+ ");
    filter("deep");
    tree.Select(&deep); // what was found stays in sight
    tree.EndFilter();
    EXPECT_EQ(shown(), "R+ 1+ 11+ 2+ ");
}

TEST(Grid, APersonReachesOnlyTheCellsBehindTheFixedOnes) {
    ui::Form form("frmGrid", "Grid");
    ui::Grid grid(form, "grdData", 3, 3, 1, 1);
    std::string told;
    grid.OnEdit = [&](int row, int column, const std::string& text) {
        told += std::to_string(row) + std::to_string(column) + "=" + text + " ";
        grid.Cell(row, column, text);
    };
    grid.OnPaste = [&](const std::string& text) { told += "paste " + text; };
    grid.UserCell(0, 1, "x");
    grid.UserCell(1, 0, "x");
    grid.UserCell(9, 9, "x");
    grid.UserCell(1, 1, "5");
    grid.UserCell(1, 1, "5");
    grid.UserSelect({1, 1, 1, 1});
    grid.UserPaste("6\t7");
    EXPECT_EQ(told, "11=5 paste 6\t7");
    grid.Editable(false);
    grid.UserPaste("8");
    EXPECT_EQ(told, "11=5 paste 6\t7");
    grid.UserCell(2, 2, "x");
    EXPECT_EQ(grid.Cell(2, 2), "");
    grid.Resize(2, 2);
    EXPECT_EQ(grid.Cell(2, 1), "");
    EXPECT_EQ(grid.Cell(1, 1), "5");
}

TEST(OptionButton, OneOfItsGroupIsOn) {
    ui::Form form("frmOptions", "Options");
    ui::OptionButton a(form, "optA", "A"), b(form, "optB", "B");
    ui::OptionButton other(form, "optC", "C", 1);
    other.Value(true);
    a.UserClick();
    b.UserClick();
    EXPECT_FALSE(a.Value());
    EXPECT_TRUE(b.Value());
    EXPECT_TRUE(other.Value());
    b.UserClick();
    EXPECT_TRUE(b.Value());
}

TEST(Captions, MnemonicMarksAreLeftOut) {
    EXPECT_EQ(ui::WithoutMnemonic("&Save && go&"), "Save & go&");
}

TEST(Key, NamesAreReadAndWrittenAlike) {
    for (const char* name : {"Enter", "Ctrl+V", "Ctrl+Shift+Z", "a", "+", "Num*", "Alt+F4"})
        EXPECT_EQ(ui::ParseKey(name).FullName(), name);
    EXPECT_EQ(ui::ParseKey("Num*").character, U'*');
    EXPECT_EQ(ui::ParseKey("Ctrl+V").character, U'\0');
    EXPECT_EQ(ui::ParseKey("Space").character, U' ');
}

TEST(Utf8, WhatIsNoTextBecomesTheReplacementCharacter) {
    EXPECT_EQ(ui::ToPoints("a\xC3\xA9\xF0\x9F\x98\x80"), U"a\u00E9\U0001F600");
    for (const char* bad : {"\xC3", "\xA9", "\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80"})
        EXPECT_EQ(ui::ToPoints(bad).substr(0, 1), U"\uFFFD") << bad;
    const char32_t surrogate = 0xD800;
    EXPECT_EQ(ui::FromPoints({&surrogate, 1}), "\xEF\xBF\xBD");
}

TEST(Signal, AListenerMayLeaveWhileItIsTold) {
    ui::Signal<int> signal;
    std::string told;
    int ticket = 0;
    ticket = signal.Connect([&](int number) {
        told += "a" + std::to_string(number);
        signal.Disconnect(ticket);
    });
    signal.Connect([&](int number) { told += "b" + std::to_string(number); });
    signal.Emit(1);
    signal.Emit(2);
    EXPECT_EQ(told, "a1b1b2");
}

} // namespace
} // namespace vexora::test
