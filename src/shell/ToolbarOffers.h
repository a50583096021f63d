// What the toolbar offers at the nodes of the tree, and what its buttons open.
#pragma once

#include <optional>
#include <string_view>

namespace vexora {

/// The button can be pressed at the selected node: it is offered there, its dialogs exist, and the
/// document has what it needs.
bool IsOffered(std::string_view button);

/// What a button opens at the selected node, once what comes first (a question, a choice of the
/// kind of data) is done and the globals tell the dialog what it is for; nothing when it ends
/// there.
std::optional<std::string_view> DialogOf(std::string_view button);

} // namespace vexora
