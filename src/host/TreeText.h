#pragma once

#include <string>

#include "ui/TreeView.h"

namespace vexora::host {

/// The whole tree without what its filter hides, a label a line, children indented by two blanks.
std::string TreeText(const ui::TreeView& tree);
/// The labels from the root down to the node, joined by " / ".
std::string NodePath(const ui::TreeNode& node);

} // namespace vexora::host
