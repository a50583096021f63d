#include "ui/TreeView.h"

#include <algorithm>
#include <utility>

namespace vexora::ui {

TreeNode::TreeNode(TreeView& tree, TreeNode* parent, std::string key, std::string text)
    : tree_(tree), parent_(parent), key_(std::move(key)), text_(std::move(text)) {}

void TreeNode::Text(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    tree_.NodeChanged.Emit(this);
}

void TreeNode::Bold(bool value) {
    if (bold_ == value) return;
    bold_ = value;
    tree_.NodeChanged.Emit(this);
}

void TreeNode::Expanded(bool value) {
    if (expanded_ == value) return;
    expanded_ = value;
    tree_.NodeChanged.Emit(this);
}

void TreeNode::EnsureVisible() {
    for (TreeNode* node = this; node != nullptr; node = node->parent_) {
        if (std::exchange(node->hidden_, false)) tree_.NodeChanged.Emit(node);
    }
    for (TreeNode* node = parent_; node != nullptr; node = node->parent_)
        node->Expanded(true);
}

TreeNode& TreeView::Add(TreeNode* parent, std::string_view key, std::string text) {
    const std::string unique = Unique(key);
    auto& siblings = parent ? parent->children_ : roots_;
    siblings.push_back(std::make_unique<TreeNode>(*this, parent, unique, std::move(text)));
    TreeNode& node = *siblings.back();
    byKey_[node.key_] = &node;
    NodeAdded.Emit(&node);
    return node;
}

std::string TreeView::Unique(std::string_view key) const {
    std::string unique(key);
    for (int n = 2; byKey_.contains(unique); ++n)
        unique = std::string(key) + "~" + std::to_string(n);
    return unique;
}

void TreeView::Rekey(TreeNode& node, std::string_view key) {
    const std::string before = node.key_;
    if (before == key) return;
    byKey_.erase(node.key_); // looks into the key that goes
    node.key_ = Unique(key);
    byKey_[node.key_] = &node;
    for (const auto& child : node.children_) {
        if (child->key_.starts_with(before))
            Rekey(*child, node.key_ + child->key_.substr(before.size()));
    }
}

void TreeView::Forget(TreeNode& node) {
    for (const auto& child : node.children_)
        Forget(*child);
    byKey_.erase(node.key_);
    if (selected_ == &node) selected_ = nullptr;
}

void TreeView::Remember(TreeNode& node) {
    node.key_ = Unique(node.key_);
    byKey_[node.key_] = &node;
    for (const auto& child : node.children_)
        Remember(*child);
}

void TreeView::Remove(TreeNode& node) {
    Take(node);
}

std::size_t TreeView::PlaceOf(const TreeNode& node) const {
    const Nodes& siblings = node.parent_ ? node.parent_->children_ : roots_;
    if (!siblings.empty() && siblings.back().get() == &node) return siblings.size() - 1;
    const auto found = std::find_if(siblings.begin(), siblings.end(),
                                    [&node](const auto& entry) { return entry.get() == &node; });
    return static_cast<std::size_t>(found - siblings.begin());
}

std::unique_ptr<TreeNode> TreeView::Take(TreeNode& node) {
    NodeRemoved.Emit(&node);
    Forget(node);
    Nodes& siblings = SiblingsOf(node);
    const auto place = siblings.begin() + static_cast<std::ptrdiff_t>(PlaceOf(node));
    std::unique_ptr<TreeNode> taken = std::move(*place);
    siblings.erase(place);
    Changed();
    return taken;
}

void TreeView::Put(std::unique_ptr<TreeNode> node, std::size_t place) {
    Nodes& siblings = SiblingsOf(*node);
    place = std::min(place, siblings.size());
    TreeNode& entry =
        **siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(place), std::move(node));
    Remember(entry);
    NodeAdded.Emit(&entry);
}

void TreeView::Clear() {
    while (!roots_.empty())
        Remove(*roots_.back());
}

TreeView::Content TreeView::TakeOut() {
    for (auto root = roots_.rbegin(); root != roots_.rend(); ++root)
        NodeRemoved.Emit(root->get());
    Content content;
    content.roots_.swap(roots_);
    content.byKey_.swap(byKey_);
    content.selected_ = std::exchange(selected_, nullptr);
    try {
        Changed();
    } catch (...) { // the nodes are never lost on the way
        roots_.swap(content.roots_);
        byKey_.swap(content.byKey_);
        selected_ = content.selected_;
        throw;
    }
    return content;
}

void TreeView::PutBack(Content content) {
    // First of all the nodes: who is told of them may fail.
    roots_.swap(content.roots_);
    byKey_.swap(content.byKey_);
    selected_ = content.selected_;
    for (auto root = content.roots_.rbegin(); root != content.roots_.rend(); ++root)
        NodeRemoved.Emit(root->get());
    for (const auto& root : roots_)
        NodeAdded.Emit(root.get());
    Changed();
}

TreeNode* TreeView::Find(std::string_view key) const {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : found->second;
}

void TreeView::Select(TreeNode* node) {
    if (selected_ == node) return;
    selected_ = node;
    if (node) node->EnsureVisible();
    Changed();
}

void TreeView::UserNodeClick(TreeNode& node) {
    if (!IsUsable()) return;
    SetFocus();
    Fire(OnMouseDown);
    Select(&node);
    if (OnNodeClick) OnNodeClick(node);
}

void TreeView::UserNodeDoubleClick(TreeNode& node) {
    UserNodeClick(node);
    if (IsUsable() && OnNodeDoubleClick) OnNodeDoubleClick(node);
}

void TreeView::UserNodeReached(TreeNode& node) {
    if (!IsUsable()) return;
    SetFocus();
    Select(&node);
    if (OnNodeReached) OnNodeReached(node);
}

bool TreeView::ShowHits(TreeNode& node, const std::function<bool(const TreeNode&)>& isHit) {
    if (!node.expandedBefore_) node.expandedBefore_ = node.expanded_;
    node.hidden_ = !isHit(node);
    bool hasHits = false;
    for (const auto& child : node.children_)
        hasHits = ShowHits(*child, isHit) || hasHits;
    if (hasHits) node.hidden_ = false;
    node.expanded_ = hasHits || *node.expandedBefore_;
    return !node.hidden_;
}

void TreeView::Filter(const std::function<bool(const TreeNode&)>& isHit) {
    if (!std::exchange(filtered_, true)) selectedBefore_ = selected_;
    for (const auto& root : roots_)
        ShowHits(*root, isHit);
    Filtered.Emit();
    Changed();
}

void TreeView::ShowAll(TreeNode& node) {
    node.hidden_ = false;
    node.expanded_ = node.expandedBefore_.value_or(node.expanded_);
    node.expandedBefore_.reset();
    for (const auto& child : node.children_)
        ShowAll(*child);
}

void TreeView::EndFilter() {
    if (!std::exchange(filtered_, false)) return;
    for (const auto& root : roots_)
        ShowAll(*root);
    if (selected_ != nullptr && selected_ != selectedBefore_) selected_->EnsureVisible();
    Filtered.Emit();
    Changed();
}

void TreeView::UserMenu(TreeNode* node) {
    if (!IsUsable() || !Offers) return;
    if (node)
        UserNodeClick(*node);
    else
        SetFocus();
    MenuAsked.Emit();
}

bool TreeView::UserKey(Key& key) {
    if (Control::UserKey(key)) return true;
    if (!IsUsable()) return false;
    TreeNode* node = selected_ != nullptr && !selected_->hidden_ ? selected_ : nullptr;
    const std::string name = key.FullName();
    if (name == "Menu" || name == "Shift+F10")
        UserMenu(node);
    else if (node != nullptr && (name == "Enter" || name == "Space"))
        UserNodeClick(*node);
    else
        return false;
    return true;
}

void TreeView::UserDrop(const std::string& path) {
    if (IsUsable() && OnDrop) OnDrop(path);
}

} // namespace vexora::ui
