#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/Control.h"

namespace vexora::ui {

/// What a tree node stands for; records derive from it.
struct TreeTag {
    virtual ~TreeTag() = default;
};

class Captioned;
class TreeView;

/// One line of a tree. It is owned by the node above it; the record that it shows is its Tag.
class TreeNode {
public:
    TreeNode(TreeView& tree, TreeNode* parent, std::string key, std::string text);

    const std::string& Key() const { return key_; }
    const std::string& Text() const { return text_; }
    void Text(std::string text);
    bool Bold() const { return bold_; }
    void Bold(bool value);
    bool Expanded() const { return expanded_; }
    void Expanded(bool value);
    /// The filter of the tree leaves it out.
    bool Hidden() const { return hidden_; }
    /// Opens everything above the node, and shows it although the filter left it out.
    void EnsureVisible();

    std::weak_ptr<TreeTag> Tag;
    TreeNode* Parent() const { return parent_; }
    const std::vector<std::unique_ptr<TreeNode>>& Children() const { return children_; }

private:
    friend class TreeView;
    TreeView& tree_;
    TreeNode* parent_;
    std::string key_;
    std::string text_;
    std::vector<std::unique_ptr<TreeNode>> children_;
    bool bold_ = false;
    bool expanded_ = true;
    bool hidden_ = false;
    std::optional<bool> expandedBefore_; // while the tree is filtered: how it stood before
};

/// The document as a tree. Node keys are unique; a taken key gets "~2", "~3", ... behind it.
class TreeView : public Control {
public:
    TreeView(Form& form, std::string name)
        : Control(form, ControlKind::TreeView, std::move(name)) {}

    /// Adds a node below a parent, or a root for none, as the last of its siblings.
    TreeNode& Add(TreeNode* parent, std::string_view key, std::string text);
    void Remove(TreeNode& node);
    /// Takes a node out with all below it. Its records still know their nodes, so it has to be kept
    /// as long as they may come back.
    std::unique_ptr<TreeNode> Take(TreeNode& node);
    /// Puts it back below its parent, which has to be there still, at a place counted from 0.
    void Put(std::unique_ptr<TreeNode> node, std::size_t place);
    /// Place among its siblings, from 0.
    std::size_t PlaceOf(const TreeNode& node) const;
    /// Gives a node another key, and with it all below whose keys begin with that of the node.
    void Rekey(TreeNode& node, std::string_view key);
    void Clear();
    /// All nodes of a tree while they stand in none; they keep their place in memory.
    class Content {
        friend class TreeView;
        std::vector<std::unique_ptr<TreeNode>> roots_;
        std::unordered_map<std::string_view, TreeNode*> byKey_;
        TreeNode* selected_ = nullptr;
    };
    /// Empties the tree without destroying its nodes.
    Content TakeOut();
    /// Puts nodes that were taken out of this tree in place of those that are in it.
    void PutBack(Content content);
    bool IsEmpty() const { return roots_.empty(); }
    const std::vector<std::unique_ptr<TreeNode>>& Roots() const { return roots_; }
    TreeNode* Find(std::string_view key) const;

    /// Shows only the nodes that hit and those above them, which are opened. Each node is asked
    /// once, behind those above it. Nodes that come later are shown.
    void Filter(const std::function<bool(const TreeNode&)>& isHit);
    /// Shows all nodes again, opened and closed as before the first filter; a node that has been
    /// selected since stays in sight.
    void EndFilter();
    bool IsFiltered() const { return filtered_; }

    TreeNode* SelectedNode() const { return selected_; }
    void Select(TreeNode* node);
    std::string Display() const override { return selected_ ? selected_->Text() : std::string(); }

    std::function<void()> OnMouseDown;
    std::function<void(TreeNode&)> OnNodeClick;
    std::function<void(TreeNode&)> OnNodeDoubleClick;
    /// The keyboard brought the selection to the node.
    std::function<void(TreeNode&)> OnNodeReached;
    std::function<void(const std::string& path)> OnDrop;
    /// What can be done at the node that was clicked last, as the menu of the tree shows it: tool
    /// buttons and menu entries, with null for a line between them. No menu without it.
    std::function<std::vector<Captioned*>()> Offers;

    /// The tip of a node, in a person's words; asked when it is to be shown. None without it.
    std::function<std::string(const TreeNode&)> TipOf;
    /// The name of the icon of a node, by the kind of its record. None without it.
    std::function<std::string(const TreeNode&)> IconOf;

    void UserNodeClick(TreeNode& node);
    void UserNodeDoubleClick(TreeNode& node);
    /// The selection reaches the node by the keyboard: no mouse events.
    void UserNodeReached(TreeNode& node);
    void UserDrop(const std::string& path);
    /// The menu of the node is asked for, which is a click on it; of the tree itself for null.
    void UserMenu(TreeNode* node);
    /// Enter and Space are a click on the selected node, the menu key asks for its menu.
    bool UserKey(Key& key) override;

    /// Which node changed in text, look or place; null when the whole tree did.
    Signal<TreeNode*> NodeChanged;
    Signal<TreeNode*> NodeAdded;
    /// Sent before the node goes.
    Signal<TreeNode*> NodeRemoved;
    /// Which nodes are hidden has changed, and which are opened.
    Signal<> Filtered;
    /// The menu of Offers is to be shown.
    Signal<> MenuAsked;

private:
    friend class TreeNode;
    using Nodes = std::vector<std::unique_ptr<TreeNode>>;
    Nodes& SiblingsOf(const TreeNode& node) {
        return node.parent_ ? node.parent_->children_ : roots_;
    }
    void Forget(TreeNode& node);
    void Remember(TreeNode& node);
    std::string Unique(std::string_view key) const;
    static bool ShowHits(TreeNode& node, const std::function<bool(const TreeNode&)>& isHit);
    static void ShowAll(TreeNode& node);

    std::vector<std::unique_ptr<TreeNode>> roots_;
    std::unordered_map<std::string_view, TreeNode*> byKey_; // keys are those of the nodes
    TreeNode* selected_ = nullptr;
    const TreeNode* selectedBefore_ = nullptr; // the filter; only compared, it may be gone
    bool filtered_ = false;
};

} // namespace vexora::ui
