// The publication of a source as its field SSOURCE says it, "@name@ $volume$(issue), pages", or
// with a comma behind the name and no marks.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

/// Name of the journal or book, volume and pages; empty where nothing of the kind is told.
std::string PublicationName(std::string_view source);
std::string VolumeOf(std::string_view source);
/// type is the kind of document (TYPDOC), which says how pages are marked.
std::string PagesOf(std::string_view source, std::string_view type);

/// The publication as a person reads it, without the marks that part its name and its volume.
std::string PublicationInWords(std::string_view source);

} // namespace vexora
