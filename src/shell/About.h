#pragma once

#include <string>

namespace vexora {

/// What the program is called, its version and what it is for.
std::string AboutText();

/// The same with the build and the licences of the libraries that it is linked with.
std::string AboutTextWithLicences();

} // namespace vexora
