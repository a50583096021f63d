#pragma once

#include <string>

namespace vexora::qt {

/// Gives the application the look "dark" or "light"; any other text leaves that of the platform.
void TakeLook(const std::string& look);

} // namespace vexora::qt
