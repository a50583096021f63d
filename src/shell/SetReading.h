#pragma once

#include <string>

namespace vexora {

class clsE;
class clsMV;
class clsTwo;

/// A data set in plain words: what it is, how far its values reach, and what is still missing.
std::string ReadingOfSet(const clsTwo& set);
std::string ReadingOfMixtureSet(const clsMV& set);
std::string ReadingOfEquilibrium(const clsE& set);

} // namespace vexora
