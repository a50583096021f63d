#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// The text of a LaTeX source as UTF-8: accents, letters and Greek by their commands, quotation
/// marks, dashes; commands of style and braces go, what they enclose stays. A command that is not
/// known goes as well and is added to `unknown`.
std::string TextOfLatex(std::string_view source, std::vector<std::string>& unknown);

} // namespace vexora
