#pragma once

#include <string>

namespace vexora {

/// What makes the XML text of the open document, or null where a build has no export: the menu
/// entry is off then.
using XmlMaker = std::string (*)();
XmlMaker DocumentXml();

} // namespace vexora
