#pragma once

#include <string>
#include <string_view>

#include "ui/Picture.h"

namespace vexora {

/// A picture as an SVG file on white ground; one unit of the picture is one unit of the drawing.
std::string SvgOf(const ui::Picture& picture, std::string_view title);

/// Asks for a file and writes the picture into it, as an SVG or, by the ending of its name, as a
/// PNG. Asks before it replaces a file; what goes wrong is told in a box.
void SavePicture(const ui::Picture& picture, std::string_view title, const std::string& proposed);

} // namespace vexora
