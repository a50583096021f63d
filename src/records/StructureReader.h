// The lines of crystal structures.
#pragma once

#include <string_view>

namespace vexora {

struct ReaderState;

/// XB: begins a structure of the complex sample that was read last.
void ReadStructure(ReaderState& state, std::string_view line);
/// XD: a distance of it.
void ReadDistance(ReaderState& state, std::string_view line);
/// XE: it joins the sample; once more has no effect.
void ReadStructureEnd(ReaderState& state, std::string_view line);
/// XC: an atom of it, in front of XE or behind.
void ReadAtom(ReaderState& state, std::string_view line);

} // namespace vexora
