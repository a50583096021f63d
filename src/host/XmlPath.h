#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vexora::host {

/// A text that is no well-formed XML, or a path that cannot be understood.
class XmlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The texts of the elements that a path leads to, in the order of the document: all character data
/// below the element, blanks at both ends removed. A path is steps of element names parted by "/"
/// from the root on, "//" reaching any depth, "*" any name; a step may end in [n] (the n-th of
/// those below one parent, from 1) and [name='text'] (with a child of that text). Name spaces are
/// left aside: names count as they are written. Throws XmlError.
std::vector<std::string> XmlTexts(std::string_view document, std::string_view path);

} // namespace vexora::host
