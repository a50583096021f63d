#pragma once

#include <string>

namespace vexora {

/// A text as JSON has it (RFC 8259), quotation marks included.
std::string JsonText(const std::string& text);

} // namespace vexora
