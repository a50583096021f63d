// The texts by which names are compared, so that one is found as a paper prints it.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The name without case, blanks, hyphens of any length and "n-" before a word; Greek letters,
/// primes, raised dots and lowered digits become what is typed for them. Wildcards stay, so that a
/// pattern may be given as well. "" for a text of nothing else.
std::string NameKey(std::string_view name);

/// Journals are abbreviated with and without blanks and points: the title without them, and without
/// case.
std::string TitleKey(std::string_view title);
/// Whether a character counts in that key.
bool CountsInTitle(char c);

} // namespace vexora
