// What a citation makes of the description of a source: the same texts that a person would type
// from it, and what he has to look at before he takes them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/citation/Citation.h"

namespace vexora {

class clsAuthor;

/// An author as the form of authors would get him.
struct CitedAuthor {
    clsAuthor Typed() const;

    std::string last, first;          // in plain letters
    std::shared_ptr<clsAuthor> known; // of that name in the table of authors, or null
    bool hasNamesakes = false;        // the table has several of that name
};

struct CitedSource {
    Citation citation;
    std::string journal; // by its short title in the table, else as cited
    bool isKnownJournal = false;
    std::string source;             // the source text of the record
    std::string detailForm;         // which asks for its parts, "" for none
    std::vector<std::string> parts; // as that form keeps them
    std::vector<CitedAuthor> authors;
    std::vector<std::string> remarks;

    /// What was found besides title, authors, year, abstract and key words, a line each.
    std::vector<std::string> Details() const;
};

/// Reads a citation and looks up its journal and its authors. A text that holds none is told, and
/// the answer is nothing.
std::optional<CitedSource> CitedSourceIn(std::string_view text);
/// The same for a file; one that cannot be read is told as well.
std::optional<CitedSource> CitedSourceInFile(const std::string& path);

} // namespace vexora
