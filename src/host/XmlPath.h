#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/XmlReader.h"

namespace vexora::host {

/// The texts of the elements that a path leads to, in the order of the document: all character data
/// below the element, blanks at both ends removed. A path is steps of element names parted by "/"
/// from the root on, "//" reaching any depth, "*" any name; a step may end in [n] (the n-th of
/// those below one parent, from 1) and [name='text'] (with a child of that text). Name spaces are
/// left aside: names count as they are written. Throws XmlError, for a path that cannot be
/// understood as well.
std::vector<std::string> XmlTexts(std::string_view document, std::string_view path);

} // namespace vexora::host
