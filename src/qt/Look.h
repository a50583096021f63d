#pragma once

#include <string>

namespace vexora::qt {

/// Gives the application the look "dark" or "light"; any other text leaves that of the platform.
/// In each of them the control that has the keyboard is marked.
void TakeLook(const std::string& look);

} // namespace vexora::qt
