// What a compound burns to.
#pragma once

#include <string_view>
#include <vector>

namespace vexora {

class clsQ;

/// A compound that a complete combustion takes or gives.
struct CombustionCompound {
    std::string_view formula, name, rn;
};

/// Oxygen, which stands in the second place of the equation.
CombustionCompound OxygenOfCombustion();
/// The products that the elements of a formula call for, in the order in which they are added:
/// nitrogen, water (for all acids too), hydrogen chloride, hydrogen fluoride, sulfuric acid, carbon
/// dioxide. Other elements add nothing; neither does a text that is no formula.
std::vector<CombustionCompound> ProductsOfCombustion(std::string_view formula);

/// Gives the reaction oxygen at its second place, from where another participant moves to the next
/// free one, and those products that it does not have yet. False, with nothing changed, when there
/// is no room for all of them.
bool CompleteCombustion(clsQ& reaction, const std::vector<CombustionCompound>& products);

} // namespace vexora
