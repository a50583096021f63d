#include "sources/citation/TagLines.h"

#include <algorithm>

#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t LongestTag = 4;

/// The length of the tag with its dash and the blank behind, 0 for a line without.
std::size_t HeadLength(std::string_view line) {
    std::size_t letters = 0;
    while (letters < line.size() && letters < LongestTag &&
           ((line[letters] >= 'A' && line[letters] <= 'Z') ||
            (letters > 0 && line[letters] >= '0' && line[letters] <= '9')))
        ++letters;
    std::size_t dash = letters;
    while (dash < line.size() && dash <= LongestTag && line[dash] == ' ')
        ++dash;
    const bool isTag = letters > 1 && dash < line.size() && line[dash] == '-' &&
                       (dash + 1 == line.size() || line[dash + 1] == ' ');
    return isTag ? std::min(dash + 2, line.size()) : 0;
}

} // namespace

std::vector<TagLine> ReadTagLines(std::string_view text) {
    std::vector<TagLine> lines;
    for (const std::string& whole : Split(text, '\n')) {
        const std::string_view line = whole;
        const std::size_t head = HeadLength(line);
        const std::string content(Trim(line.substr(head)));
        if (head > 0)
            lines.push_back({std::string(line.substr(0, line.find_first_of(" -"))), content});
        else if (content.empty())
            continue;
        else if (lines.empty())
            lines.push_back({"", content});
        else
            lines.back().text += " " + content;
    }
    return lines;
}

bool PutByTable(Citation& citation, const TagLine& line, std::span<const TagPlace> places) {
    const auto found = std::ranges::find(places, line.tag, &TagPlace::tag);
    if (found == places.end()) return false;
    if (found->place == nullptr) return true;
    std::string& text = citation.*found->place;
    if (text.empty()) text = line.text;
    return true;
}

void AddTo(std::string& list, const std::string& text) {
    if (text.empty()) return;
    list += (list.empty() ? "" : "; ") + text;
}

} // namespace vexora
