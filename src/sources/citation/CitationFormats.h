// The readers of the single formats, for ReadCitation. Each fills in what the text tells as it
// stands there and throws CitationError for a text that is no citation of its format.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "sources/citation/Citation.h"
#include "sources/citation/JournalNames.h"

namespace vexora {

/// What is wrong with a pasted text, in words for the user.
class CitationError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

Citation ReadRis(std::string_view text);
Citation ReadNbib(std::string_view text);
Citation ReadBibTex(std::string_view text);
Citation ReadPlainReference(std::string_view text, const JournalNames& journals);

} // namespace vexora
