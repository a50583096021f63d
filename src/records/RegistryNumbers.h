#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The number with its last digit set right; the text itself when it is not all digits, or one
/// digit only.
/// The sum cannot tell which digit was mistyped; the check digit is the one set right, and whoever
/// calls this has to tell the user.
std::string WithCheckDigit(std::string_view rn);

/// What stands in a file for a participant that is not there.
inline constexpr std::string_view EmptySlot = "999999994";

/// True for the texts that name no compound: "", "999999994" (an empty slot), no number, 0.
/// Systems with fewer members than places fill up with the empty slot.
bool NamesNoCompound(std::string_view rn);

/// The number is that of a complex ("-1"), which no registry has.
bool NamesComplex(std::string_view rn);

} // namespace vexora
