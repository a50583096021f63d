#include "host/TreeText.h"

namespace vexora::host {

namespace {

void Append(std::string& text, const ui::TreeNode& node, std::size_t depth) {
    if (node.Hidden()) return;
    text += std::string(2 * depth, ' ') + node.Text() + '\n';
    for (const auto& child : node.Children())
        Append(text, *child, depth + 1);
}

} // namespace

std::string TreeText(const ui::TreeView& tree) {
    std::string text;
    for (const auto& root : tree.Roots())
        Append(text, *root, 0);
    return text;
}

std::string NodePath(const ui::TreeNode& node) {
    if (!node.Parent()) return node.Text();
    return NodePath(*node.Parent()) + " / " + node.Text();
}

} // namespace vexora::host
