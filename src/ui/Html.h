#pragma once

#include <string>
#include <string_view>

namespace vexora::ui {

/// The text of a page without its marks; an unclosed mark swallows what stands behind it.
std::string TextOfHtml(std::string_view html);

} // namespace vexora::ui
