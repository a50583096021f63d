#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sources/citation/Citation.h"

namespace vexora {

/// A field of a format that has one a line: a tag of two to four capitals, "-" in the fifth or
/// sixth place, the text. Lines without a tag go on with the text before.
struct TagLine {
    std::string tag;
    std::string text;
};

/// The fields in their order; what stands before the first tag has the tag "".
std::vector<TagLine> ReadTagLines(std::string_view text);

/// A tag and where its text goes, null for a field that a source has no place for.
struct TagPlace {
    std::string_view tag;
    std::string Citation::*place;
};
/// Puts a field where the table says; of several for one place the first counts. False for a tag
/// that is not in the table.
bool PutByTable(Citation& citation, const TagLine& line, std::span<const TagPlace> places);

/// Joins two texts, "; " between them if both are there.
void AddTo(std::string& list, const std::string& text);

} // namespace vexora
