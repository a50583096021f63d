#pragma once

#include <string>

namespace vexora {

class clsTwo;

/// A data set in plain words: what it is, how far its values reach, and what is still missing.
std::string ReadingOfSet(const clsTwo& set);

} // namespace vexora
