// The search for compounds in the reference database, from what stands in the boxes of the
// substance form.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/Vocabulary.h"

namespace vexora {

/// The typed name as a search pattern: "[" opens a list in patterns and so becomes "*"; runs of "*"
/// become one; a lone "*" asks for nothing and becomes empty.
std::string NamePattern(std::string_view typed);

/// True for a formula that stands for several ("C6*").
bool IsFormulaPattern(std::string_view formula);

/// The compounds whose name matches the pattern, apart from case, blanks, hyphens and "n-", and
/// whose formula matches the formula, case counting; an empty one is no condition. The very name
/// first, else table order; nothing when both are empty or there is no database.
std::vector<CompoundRow> FindCompounds(std::string_view namePattern, std::string_view formula);

/// The first hundred names that begin with what was typed, compared as by FindCompounds; nothing
/// for an empty text or a damaged database.
std::vector<std::string> NamesBeginningWith(std::string_view typed);

/// The compounds of that very name, case apart, in table order.
std::vector<CompoundRow> CompoundsNamed(std::string_view name);

} // namespace vexora
