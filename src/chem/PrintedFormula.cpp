#include "chem/PrintedFormula.h"

#include "reference/Text.h"

namespace vexora {

namespace {

constexpr char32_t LoweredZero = U'\u2080';

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// What a count may stand behind: an element, or a group in brackets.
bool IsCounted(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == ')' || c == ']' || c == '}';
}

} // namespace

std::string PrintedFormula(std::string_view formula) {
    std::string text;
    bool isCount = false; // the next digit is one of a count
    for (const char c : formula) {
        if (isCount && IsDigit(c)) {
            AppendCodePoint(text, LoweredZero + static_cast<char32_t>(c - '0'));
            continue;
        }
        text += c;
        isCount = IsCounted(c) || (isCount && c == '.');
    }
    return text;
}

} // namespace vexora
