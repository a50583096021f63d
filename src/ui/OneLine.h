#pragma once

#include <string>
#include <string_view>

namespace vexora::ui {

/// What somebody puts into a place of one line: a cell copied from a table brings its line end or
/// tabs along, which are dropped with the blanks beside them; line ends and tabs between words
/// become one blank. A text without any stays as it is.
std::u32string OneLine(std::u32string_view piece);
std::string OneLine(std::string_view piece);

} // namespace vexora::ui
