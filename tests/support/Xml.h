// What a strange XML reader makes of the files written here.
#pragma once

#include <libxml/parser.h>

#include <string>

namespace vexora::test {

/// Read by libxml2, which knows nothing of this program.
inline bool IsWellFormed(const std::string& xml) {
    xmlDoc* document = xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "", nullptr,
                                     XML_PARSE_NONET | XML_PARSE_NOERROR);
    if (document) xmlFreeDoc(document);
    return document != nullptr;
}

} // namespace vexora::test
