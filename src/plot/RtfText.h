#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// The plain text of a rich text file: paragraphs and tabs are kept, looks, tables of fonts and
/// colours, pictures and other unknown destinations are left out. A text that is not rich text
/// comes back as it is.
std::string TextOfRtf(std::string_view rtf);

} // namespace vexora
