#pragma once

#include <string>
#include <string_view>

namespace vexora::ui {

/// The text of a page without its marks; an unclosed mark swallows what stands behind it.
std::string TextOfHtml(std::string_view html);

/// A plain text as HTML, line by line.
std::string HtmlOfText(std::string_view text);

} // namespace vexora::ui
