#pragma once

#include <string>

namespace vexora {

/// The status line: which document is open, whether it is saved, and what can be done next
/// (captions of toolbar buttons, may be empty).
std::string StatusText(const std::string& fileTitle, const std::string& nextSteps);

} // namespace vexora
