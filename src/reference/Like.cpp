#include "reference/Text.h"

namespace vexora {

namespace {

/// ASCII letters only, as everywhere in this room.
char32_t Fold(char32_t c, bool caseSensitive) {
    return !caseSensitive && c >= U'A' && c <= U'Z' ? c - U'A' + U'a' : c;
}

/// Tests one character against the list that opens at byte `at` of the pattern; `at` moves behind
/// the closing bracket.
bool MatchesList(std::string_view pattern, std::size_t& at, char32_t c, bool caseSensitive) {
    const std::size_t close = pattern.find(']', at + 1);
    std::string_view list = pattern.substr(at + 1, close - at - 1);
    at = close + 1;
    // "!" counts at the front only; "-" at either end is itself.
    const bool negated = !list.empty() && list.front() == '!';
    if (negated) list.remove_prefix(1);
    bool found = false;
    for (std::size_t i = 0; i < list.size();) {
        const char32_t low = Fold(NextCodePoint(list, i), caseSensitive);
        char32_t high = low;
        if (i + 1 < list.size() && list[i] == '-')
            high = Fold(NextCodePoint(list, ++i), caseSensitive);
        found = found || (low <= c && c <= high);
    }
    return found != negated;
}

/// Matches one pattern element other than "*" against one character and moves `at` behind it.
bool MatchesOne(std::string_view pattern, std::size_t& at, char32_t c, bool caseSensitive) {
    const char element = pattern[at];
    if (element == '[' && pattern.find(']', at + 1) != std::string_view::npos)
        return MatchesList(pattern, at, Fold(c, caseSensitive), caseSensitive);
    const char32_t wanted = NextCodePoint(pattern, at);
    if (wanted == U'?') return true;
    if (wanted == U'#') return c >= U'0' && c <= U'9';
    return Fold(wanted, caseSensitive) == Fold(c, caseSensitive);
}

} // namespace

// One place to go back to is enough: what a later star has matched need not be tried otherwise. So
// the time stays within length times length.
bool Like(std::string_view pattern, std::string_view text, bool caseSensitive) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t starAt = std::string_view::npos; // pattern behind the last "*"
    std::size_t starText = 0;                    // text where that "*" ends for now
    while (t < text.size()) {
        if (p < pattern.size() && (pattern[p] == '*' || pattern[p] == '%')) {
            starAt = ++p;
            starText = t;
            continue;
        }
        std::size_t next = t;
        const char32_t c = NextCodePoint(text, next);
        if (p < pattern.size() && MatchesOne(pattern, p, c, caseSensitive)) {
            t = next;
        } else if (starAt != std::string_view::npos) {
            NextCodePoint(text, starText);
            t = starText;
            p = starAt;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of("*%", p) == std::string_view::npos;
}

} // namespace vexora
