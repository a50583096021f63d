#pragma once

#include <string_view>

namespace vexora {

/// Whether a value in system units can be true at all for a property or variable. A code without a
/// rule is always valid.
bool IsValidValue(std::string_view code, double systemValue);

/// Whether a value in system units is plausible for a property or variable; bounds are inclusive
/// unless the rule says otherwise. A code without a rule is always plausible.
bool IsPlausibleValue(std::string_view code, double systemValue);

} // namespace vexora
