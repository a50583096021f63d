#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/ScriptParser.h"
#include "ui/Form.h"

namespace vexora::host {

/// What a person could see and do at a control, beyond what the control knows of itself: pages of a
/// tab strip that is turned elsewhere hide what stands on them, menus hide their entries.

bool IsSeen(const ui::Control& control);
/// Enabled, and so is everything around it; it need not be seen.
bool IsEnabledThrough(const ui::Control& control);
/// Why a person could not use the control now, empty when it is usable.
std::string WhyNotUsable(const ui::Control& control);
/// Why a person could not work on the form now, empty when it is reachable.
std::string WhyNotReachable(const ui::Form& form);

/// What the control shows, as `expect` reads it. A list with several entries on joins them by "; ".
std::string ShownText(const ui::Control& control);
/// The entries of a list, for messages; a word of its own when it has none.
std::string EntriesText(const ui::ItemList& list, const std::string& none);
/// Whether it is on, nothing for what cannot be on.
std::optional<bool> IsOn(const ui::Control& control);
/// Position of an entry written as text or as #n, -1 when it is not there.
int EntryIndex(const ui::ItemList& list, const std::string& word, bool quoted);

/// The nodes of a tree that labels joined by " / " lead to from a root; a label may end in "*" for
/// any ending. Labels may hold " / " themselves.
std::vector<ui::TreeNode*> NodesAt(const ui::TreeView& tree, const std::string& path);
/// The nodes that a line names from this word to its end: by labels, or one by "key" and its key.
std::vector<ui::TreeNode*> NodesNamed(const ui::TreeView& tree, const ScriptLine& line,
                                      std::size_t word);

} // namespace vexora::host
