#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The number with its last digit set right; the text itself when it is not all digits, or one
/// digit only.
std::string WithCheckDigit(std::string_view rn);

/// True for the texts that name no compound: "", "999999994" (an empty slot), no number, 0.
bool NamesNoCompound(std::string_view rn);

} // namespace vexora
