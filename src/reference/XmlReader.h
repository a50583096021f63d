#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace vexora {

/// A text that is no well-formed XML.
class XmlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Who is told of the elements of a document, in their order.
class XmlHandler {
public:
    virtual ~XmlHandler() = default;
    /// An element begins in this line, counted from 1. The name holds as long as the document does.
    virtual void Open(std::string_view name, int line) = 0;
    /// Character data of the element opened last; it may come in parts.
    virtual void Text(std::string_view text) = 0;
    /// The element opened last ends.
    virtual void Close() = 0;
};

/// Reads a document of elements, attributes, character data, comments, CDATA and instructions. A
/// document type is refused: nothing written here has one. Name spaces are left aside. Throws
/// XmlError, with the line; the handler may have been told of a part by then.
void ReadXml(std::string_view document, XmlHandler& handler);

} // namespace vexora
