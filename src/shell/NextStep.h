// What comes next on the way through a document, and why a button cannot be pressed now.
#pragma once

#include <string>
#include <string_view>

#include "ui/TreeView.h"

namespace vexora {

/// The button of the toolbar that leads on from the selected node; empty where no one of those that
/// can be pressed is before the others.
std::string_view NextButton();

/// What a record asks for next ("its sample"); empty for one that asks for nothing.
std::string NextFor(const ui::TreeTag* record);

/// Why the button is dead at the selected node, in a person's words.
/// reachedByKey: a node is selected, but nobody has clicked it or pressed Enter on it.
std::string WhyNotOffered(std::string_view button, bool reachedByKey);

} // namespace vexora
