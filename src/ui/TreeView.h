#pragma once

#include <cstddef>
#include <memory>
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
    /// Opens everything above the node.
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

    TreeNode* SelectedNode() const { return selected_; }
    void Select(TreeNode* node);
    std::string Display() const override { return selected_ ? selected_->Text() : std::string(); }

    std::function<void()> OnMouseDown;
    std::function<void(TreeNode&)> OnNodeClick;
    std::function<void(TreeNode&)> OnNodeDoubleClick;
    /// The keyboard brought the selection to the node.
    std::function<void(TreeNode&)> OnNodeReached;
    std::function<void(const std::string& path)> OnDrop;

    void UserNodeClick(TreeNode& node);
    void UserNodeDoubleClick(TreeNode& node);
    /// The selection reaches the node by the keyboard: no mouse events.
    void UserNodeReached(TreeNode& node);
    void UserDrop(const std::string& path);

    /// Which node changed in text, look or place; null when the whole tree did.
    Signal<TreeNode*> NodeChanged;
    Signal<TreeNode*> NodeAdded;
    /// Sent before the node goes.
    Signal<TreeNode*> NodeRemoved;

private:
    friend class TreeNode;
    using Nodes = std::vector<std::unique_ptr<TreeNode>>;
    Nodes& SiblingsOf(const TreeNode& node) {
        return node.parent_ ? node.parent_->children_ : roots_;
    }
    void Forget(TreeNode& node);
    void Remember(TreeNode& node);
    std::string Unique(std::string_view key) const;

    std::vector<std::unique_ptr<TreeNode>> roots_;
    std::unordered_map<std::string_view, TreeNode*> byKey_; // keys are those of the nodes
    TreeNode* selected_ = nullptr;
};

} // namespace vexora::ui
