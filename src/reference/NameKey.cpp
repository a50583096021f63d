#include "reference/NameKey.h"

#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vexora {

namespace {

struct Sign {
    char32_t sign;
    std::string_view typed;
};

// In the order of their code points.
constexpr auto Signs = std::to_array<Sign>({
    {U'\u00A0', ""},
    {U'\u00AD', ""},
    {U'\u00B7', "."},
    {U'\u03B1', "alpha"},
    {U'\u03B2', "beta"},
    {U'\u03B3', "gamma"},
    {U'\u03B4', "delta"},
    {U'\u03B5', "epsilon"},
    {U'\u03C9', "omega"},
    {U'\u2019', "'"},
    {U'\u2022', "."},
    {U'\u2032', "'"},
    {U'\u2033', "''"},
    {U'\u2212', ""},
    {U'\u22C5', "."},
});

constexpr char32_t FirstSpace = U'\u2000'; // en quad, the first of the spaces and hyphens
constexpr char32_t LastDash = U'\u2015';   // horizontal bar, the last of them
constexpr char32_t LoweredZero = U'\u2080';
constexpr char32_t LoweredNine = U'\u2089';

bool IsAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// "n-" of a straight chain stands before a word: "n-butane", "di-n-butyl ether". That of
/// "N,N-dimethyl" or "sodium-..." does not.
bool IsStraightChainMark(std::string_view name, std::size_t at) {
    if (name[at] != 'n' && name[at] != 'N') return false;
    const bool before = at == 0 || std::string_view(" -([*%").find(name[at - 1]) != name.npos;
    return before && at + 2 < name.size() && name[at + 1] == '-' && IsAsciiLetter(name[at + 2]);
}

void AppendSign(std::string& key, char32_t c) {
    if (c >= FirstSpace && c <= LastDash) return;
    if (c >= LoweredZero && c <= LoweredNine) {
        key += static_cast<char>('0' + (c - LoweredZero));
        return;
    }
    const auto* found = std::ranges::lower_bound(Signs, c, {}, &Sign::sign);
    if (found != Signs.end() && found->sign == c)
        key += found->typed;
    else
        AppendCodePoint(key, c);
}

} // namespace

std::string NameKey(std::string_view name) {
    std::string key;
    key.reserve(name.size());
    for (std::size_t at = 0; at < name.size();) {
        const char c = name[at];
        if (static_cast<unsigned char>(c) >= 0x80) { // beyond ASCII
            AppendSign(key, NextCodePoint(name, at));
            continue;
        }
        if (IsStraightChainMark(name, at))
            ++at; // the hyphen goes as all do
        else if (c != ' ' && c != '-' && c != '\t')
            key += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        ++at;
    }
    return key;
}

bool CountsInTitle(char c) {
    return c != ' ' && c != '.';
}

std::string TitleKey(std::string_view title) {
    std::string key = LowerAscii(title);
    std::erase_if(key, [](char c) { return !CountsInTitle(c); });
    return key;
}

} // namespace vexora
