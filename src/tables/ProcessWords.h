#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tables/ProcessTable.h"

namespace vexora {

class clsM;

/// The kinds of tables that are processed, as frmSelect offers them.
inline constexpr std::string_view ThermalFunctionsKind =
    "Thermal functions for a pure substance derived from heat capacities";
inline constexpr std::string_view PhaseEquilibriaKind =
    "VLE and LLE in binary and ternary mixtures";
inline constexpr std::string_view OtherUnits = "ALL OTHER UNITS";

/// The kinds of data that it offers elsewhere: below a complex sample, and of bio data.
inline constexpr std::string_view BulkPropertyKind = "Bulk property";
inline constexpr std::string_view PhaseEquilibriumKind = "Phase equilibrium";
inline constexpr std::string_view CrystalStructureKind = "Crystal structure";
inline constexpr std::string_view DecompositionKind = "Decomposition thermodynamics";
inline constexpr std::string_view BioTransitionKind = "Bio Property from DSC (in solution)";
inline constexpr std::string_view BioSolubilityKind = "Bio Substance Solubility";
inline constexpr std::string_view BioReactionKind = "Bio Reaction";

/// An entry of a list above a column: its code, and its text with the names of the components.
struct HeadEntry {
    std::string code, text;
};

/// The quantities of a column: "Nothing" first with an empty code, "Comb.Uncertainty" last. Mixture
/// null: those of a pure compound.
std::vector<HeadEntry> Headings(const clsM* mixture);
/// The phases of a column of a mixture, or those offered for a pure compound.
std::vector<HeadEntry> HeadPhases(const clsM* mixture);
/// The units of a quantity by conversion code, as the tables name them; OtherUnits last, with
/// ProcessColumn::ByFactor.
std::vector<HeadEntry> HeadUnits(std::string_view quantity);
/// The system unit of a quantity, empty for a ratio or one that is not known.
std::string HeadSystemUnit(std::string_view quantity);

} // namespace vexora
