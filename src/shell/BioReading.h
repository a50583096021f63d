#pragma once

#include <string>

namespace vexora {

class clsBP;
class clsBR;

/// A bio set in plain words: who takes part, what the solution holds, how far its values reach, and
/// what is still missing.
std::string ReadingOfBioReaction(const clsBR& set);
std::string ReadingOfBioProperty(const clsBP& set);

} // namespace vexora
