#include "sources/citation/PersonNames.h"

#include <algorithm>

#include "reference/Text.h"
#include "reference/Transliteration.h"
#include "sources/citation/CleanText.h"

namespace vexora {

namespace {

using Words = std::vector<std::string>;

Words WordsOf(std::string_view text) {
    Words words;
    for (std::string& word : Split(text, ' '))
        if (!word.empty()) words.push_back(std::move(word));
    return words;
}

std::string Joined(Words::const_iterator from, Words::const_iterator to) {
    std::string text;
    for (; from != to; ++from)
        text += (text.empty() ? "" : " ") + *from;
    return text;
}

/// Initials without points are spelled with them, so that each counts.
std::string Spelled(std::string_view initials) {
    std::string text;
    for (const char c : initials)
        text += std::string(1, c) + ".";
    return text;
}

/// In a name with commas only a last part of bare capitals stands for initials.
std::string FirstNames(const std::string& text) {
    return text.size() > 1 && AreBareInitials(text) ? Spelled(text) : text;
}

CitedName FromParts(const std::vector<std::string>& parts) {
    CitedName name{std::string(TrimBlanks(parts[0])), {}, {}};
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const std::string part(TrimBlanks(parts[i]));
        if (part.empty()) continue;
        if (name.suffix.empty() && IsNameSuffix(part) && parts.size() > 2)
            name.suffix = part;
        else
            name.first += (name.first.empty() ? "" : " ") + part;
    }
    Words words = WordsOf(name.first);
    if (name.suffix.empty() && words.size() > 1 && IsNameSuffix(words.back())) {
        name.suffix = words.back();
        name.first = Joined(words.begin(), words.end() - 1);
    }
    name.first = FirstNames(name.first);
    return name;
}

CitedName FromWords(Words words) {
    CitedName name;
    if (words.size() > 2 && IsNameSuffix(words.back())) {
        name.suffix = words.back();
        words.pop_back();
    }
    if (words.size() > 1 && AreBareInitials(words.back()) && !AreBareInitials(words.front())) {
        name.first = Spelled(words.back());
        name.last = Joined(words.begin(), words.end() - 1);
        return name;
    }
    const auto last = words.end() - (words.empty() ? 0 : 1);
    const auto from =
        std::find_if(words.begin(), last, [](const std::string& word) { return IsParticle(word); });
    name.first = Joined(words.begin(), from);
    name.last = Joined(from, words.end());
    return name;
}

} // namespace

bool AreOthers(std::string_view text) {
    return IsOneOf(LowerAscii(text),
                   {"others", "and others", "et al", "et al.", "et al,", "al., et", "al, et"});
}

bool IsNameSuffix(std::string_view word) {
    return IsOneOf(LowerAscii(word), {"jr", "jr.", "sr", "sr.", "ii", "iii", "iv"});
}

bool IsCapitalized(std::string_view word) {
    std::size_t end = 0;
    if (word.empty()) return false;
    NextCodePoint(word, end);
    const std::string plain = Transliterate(word.substr(0, end));
    return !plain.empty() && plain[0] >= 'A' && plain[0] <= 'Z';
}

bool IsParticle(std::string_view word) {
    return IsOneOf(word, {"van", "von", "der", "den", "de", "del",  "della", "di",
                          "da",  "dos", "du",  "la",  "le", "ten",  "ter",   "zu",
                          "zur", "el",  "al",  "af",  "v.", "v.d.", "van't", "'t"});
}

bool AreBareInitials(std::string_view word) {
    constexpr std::size_t most = 3;
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    return !word.empty() && word.size() <= most && std::ranges::all_of(word, isCapital);
}

CitedName NameOf(std::string_view text) {
    const std::string clean = CleanText(text);
    const auto parts = Split(clean, ',');
    return parts.size() > 1 ? FromParts(parts) : FromWords(WordsOf(clean));
}

} // namespace vexora
