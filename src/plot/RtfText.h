#pragma once

#include <string>
#include <string_view>

#include "ui/Html.h"

namespace vexora {

/// A rich text file as a page: paragraphs, bold, italic, underlined, raised and lowered letters and
/// large ones are kept; fonts, colours, pictures and other unknown destinations are left out. A
/// text that is not rich text comes back as HtmlOfText gives it.
std::string HtmlOfRtf(std::string_view rtf);

using ui::HtmlOfText;

} // namespace vexora
