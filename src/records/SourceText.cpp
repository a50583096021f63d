#include "records/SourceText.h"

#include "reference/KVODefinitions.h"
#include "reference/Text.h"

#include <algorithm>
#include <iterator>

namespace vexora {

namespace {

/// The part between two marks, empty when they are not both there.
std::string Between(std::string_view text, char mark) {
    const std::size_t first = text.find(mark);
    if (first == std::string_view::npos) return {};
    const std::size_t second = text.find(mark, first + 1);
    if (second == std::string_view::npos) return {};
    return std::string(Trim(text.substr(first + 1, second - first - 1)));
}

// What stands in front of the pages where a source text tells other things behind its last comma:
// publisher, place or date.
constexpr CodeText PageMarks[] = {
    {", Pg. ", "B"}, {", pp", "M"}, {", pp", "D"}, {"", "R"}, {"", "P"}, {"", "T"}, {"", "C"},
};

/// Up to the next part of the text, which has a comma and a blank in front.
std::string MarkedPages(std::string_view source, std::string_view mark) {
    const std::size_t at = mark.empty() ? std::string_view::npos : source.find(mark);
    if (at == std::string_view::npos) return {};
    const std::string_view pages = source.substr(at + mark.size());
    return std::string(Trim(pages.substr(0, pages.find(", "))));
}

} // namespace

std::string PublicationName(std::string_view source) {
    const std::string name = Between(source, '@');
    return name.empty() ? std::string(Trim(source.substr(0, source.find(',')))) : name;
}

std::string PublicationInWords(std::string_view source) {
    std::string words(source);
    std::erase_if(words, [](char c) { return c == '@' || c == '$'; });
    return words;
}

std::string VolumeOf(std::string_view source) {
    return Between(source, '$');
}

// Behind the volume the issue stands before the comma; the pages follow it.
std::string PagesOf(std::string_view source, std::string_view type) {
    std::size_t from = source.find('$');
    if (from != std::string_view::npos) from = source.find('$', from + 1);
    const auto* marked = std::ranges::find(PageMarks, type, &CodeText::code);
    if (from == std::string_view::npos && marked != std::end(PageMarks))
        return MarkedPages(source, marked->text);
    // A title between its marks may hold commas, and so may the pages.
    if (from == std::string_view::npos) from = source.rfind('@');
    const std::size_t comma =
        from != std::string_view::npos ? source.find(',', from) : source.rfind(',');
    return comma == std::string_view::npos ? std::string()
                                           : std::string(Trim(source.substr(comma + 1)));
}

} // namespace vexora
