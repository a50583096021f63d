#pragma once

#include <string_view>

namespace vexora {

/// Whether a value in system units can be true at all for a property or variable. A code without a
/// rule is always valid.
/// An absolute temperature or a density below 0, a fraction above 1. What fails is not stored.
bool IsValidValue(std::string_view code, double systemValue);

/// Whether a value in system units is plausible for a property or variable; bounds are inclusive
/// unless the rule says otherwise. A code without a rule is always plausible.
/// Most of what fails is a slip of unit or of the decimal point, so the operator is asked.
bool IsPlausibleValue(std::string_view code, double systemValue);

} // namespace vexora
