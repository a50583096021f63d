#pragma once

#include <string>
#include <string_view>

namespace vexora::ui {

/// The code points of a UTF-8 text; a byte that does not fit becomes U+FFFD.
std::u32string ToPoints(std::string_view text);
/// The UTF-8 text of code points; what is no Unicode scalar value becomes U+FFFD.
std::string FromPoints(std::u32string_view points);

} // namespace vexora::ui
