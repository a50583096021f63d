#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace vexora {

/// What one of a unit is in the base units of the SI.
struct UnitMeasure {
    double size = 1;
    std::array<int, 6> powers{}; // of m, kg, s, K, mol, A
};

/// A unit text of the tables ("kcal(IT)/K/kg", "1/(mPa*s)", "1e-9 m2/s") worked out from its parts,
/// a second way beside the factors of the table. "A" is the angstrom, temperatures are widths of
/// a degree. Nothing for a text with a part that is no unit.
std::optional<UnitMeasure> MeasureOfUnit(std::string_view text);

/// What one unit is in another one: nothing where a text cannot be read, 0 where the dimensions
/// differ. `perMass` is told of units per mass that stand for units per mole: then the figure is
/// that of 1 g/mol.
std::optional<double> FactorBetween(std::string_view from, std::string_view to, bool perMass);

} // namespace vexora
