#pragma once

#include <string>
#include <vector>

#include "sources/citation/Citation.h"

namespace vexora {

/// The names at the beginning of a reference line, and what follows them.
struct NamesInFront {
    std::vector<CitedName> names;
    bool more = false; // "et al."
    std::string rest;
};

/// Takes names off the front in the order that takes most of them: "Last, F. M.", "F. M. Last" or
/// "Last FM". None when the text does not begin with a name.
NamesInFront TakeNames(const std::string& text);

} // namespace vexora
