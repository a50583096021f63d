#pragma once

#include <string>
#include <string_view>

#include "ui/Picture.h"

namespace vexora {

/// A picture as an SVG file on white ground; one unit of the picture is one unit of the drawing.
std::string SvgOf(const ui::Picture& picture, std::string_view title);

} // namespace vexora
