// What the codes of mixtures say about components, which are numbered from 1.
#pragma once

#include <string_view>
#include <vector>

namespace vexora {

/// The component that a property or a variable of mixtures is about: 2 for "X2", 1 for "HEX1" and
/// "M1S"; 0 for none.
int ComponentOf(std::string_view code);

/// A content of a component in a phase or in the solvent: fractions, molality and molarity, ratios,
/// amounts and masses in the solution.
bool IsComposition(std::string_view code);

/// The components of a solvent: "1", "2", "3" alone, "C" 1 and 2, "D" 1 and 3, "E" 2 and 3; none
/// for another text.
std::vector<int> ComponentsOfSolvent(std::string_view solvent);

/// A property or variable of mixtures that says nothing unless the solvent is known: ratios to it,
/// what is composed of it, and what is said of a solute.
bool NeedsSolvent(std::string_view code);

} // namespace vexora
