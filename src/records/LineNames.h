#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexora {

/// The fields of a line of the record file, each under the name that a person knows it by. What
/// follows from the rest of the document (letters of what it holds, counts) is left out. A tag that
/// nobody has named gives "field 1", "field 2", ..., so that nothing of a line is lost. Data of a
/// mixture have other fields: `components` is 2 or 3 there.
std::vector<std::pair<std::string, std::string>> NamedFields(std::string_view line,
                                                             int components = 1);

/// The letter of the line without regard to case: "^z" and "^Z" are one kind of line, but "^q" is
/// one of its own.
std::string LineKind(std::string_view line);

} // namespace vexora
