#pragma once

#include <string>

namespace vexora {

/// Tells a new user what a form is for: in the first run alone, and each text once in it.
void ExplainOnce(const std::string& text);

} // namespace vexora
