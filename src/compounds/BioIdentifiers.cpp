#include "compounds/BioIdentifiers.h"

#include "reference/Text.h"

#include <algorithm>
#include <string>

namespace vexora {

namespace {

constexpr std::size_t EnzymeParts = 4, CodeLength = 4;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsLetterOrDigit(char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsEnzymePart(const std::string& part) {
    return part == "-" || (!part.empty() && std::ranges::all_of(part, IsDigit));
}

} // namespace

std::string_view EnzymeNumberHint(std::string_view text) {
    text = TrimBlanks(text);
    const auto parts = Split(text, '.');
    const bool isSound = parts.size() == EnzymeParts && std::ranges::all_of(parts, IsEnzymePart);
    return text.empty() || isSound ? "" : "Four parts are usual: 5.3.1.5, or 5.3.1.-";
}

std::string_view ProteinCodeHint(std::string_view text) {
    text = TrimBlanks(text);
    const bool isSound = text.size() == CodeLength && IsDigit(text.front()) &&
                         std::ranges::all_of(text, IsLetterOrDigit);
    return text.empty() || isSound ? "" : "Four characters are usual, first a digit: 1LYZ";
}

} // namespace vexora
