#include "sources/citation/JournalNames.h"

#include "reference/Text.h"
#include "reference/Transliteration.h"

namespace vexora {

namespace {

/// The words that tell journals apart, in lower case, one blank between them.
std::string TellingWords(std::string_view name) {
    std::string words;
    std::string word;
    for (const char c : LowerAscii(Transliterate(name)) + " ") {
        const bool isOfWord = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        if (isOfWord) {
            word += c;
            continue;
        }
        const bool isSmall = IsOneOf(word, {"the", "of", "and", "for", "in", "on", "fur", "der",
                                            "die", "das", "des", "de", "la", "l", "et"});
        if (!word.empty() && !isSmall) words += (words.empty() ? "" : " ") + word;
        word.clear();
    }
    return words;
}

} // namespace

void JournalNames::Add(const std::string& shortTitle, std::string_view fullTitle) {
    byWords_.emplace(TellingWords(shortTitle), shortTitle);
    if (!fullTitle.empty()) byWords_.emplace(TellingWords(fullTitle), shortTitle);
}

std::optional<std::string> JournalNames::Find(std::string_view name) const {
    for (const std::string_view end :
         {std::string_view(), std::string_view(":"), std::string_view("(")}) {
        const std::size_t cut = end.empty() ? name.npos : name.find(end);
        if (!end.empty() && cut == name.npos) continue;
        const std::string words = TellingWords(name.substr(0, cut));
        const auto found = byWords_.find(words);
        if (!words.empty() && found != byWords_.end()) return found->second;
    }
    return std::nullopt;
}

} // namespace vexora
