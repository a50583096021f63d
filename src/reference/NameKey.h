// The text by which names of compounds are compared, so that a name is found as a paper prints it.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The name without case, blanks, hyphens of any length and "n-" before a word; Greek letters,
/// primes, raised dots and lowered digits become what is typed for them. Wildcards stay, so that a
/// pattern may be given as well. "" for a text of nothing else.
std::string NameKey(std::string_view name);

} // namespace vexora
