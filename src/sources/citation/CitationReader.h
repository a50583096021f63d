#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sources/citation/Citation.h"
#include "sources/citation/JournalNames.h"

namespace vexora {

/// A citation, or in words why there is none.
struct CitationReading {
    std::optional<Citation> citation;
    std::string error;
};

/// Reads one citation in RIS, BibTeX or NBIB, or a plain reference line, whichever the text is.
/// An empty or foreign text, one that was cut off and one with several citations give an error.
/// The journals help to find where the title of a plain line ends.
CitationReading ReadCitation(std::string_view text, const JournalNames& journals);

} // namespace vexora
