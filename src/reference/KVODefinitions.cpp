#include "reference/KVODefinitions.h"

#include <algorithm>

namespace vexora {

constexpr std::array<CodeText, 3> DataTypes{{
    {"Experimental values", "Y"},
    {"Smoothed values", "S"},
    {"Calculated from the authors' equation", "C"},
}};

// Which state variables are held, and with them how many the phase rule leaves free.
constexpr std::array<CodeText, 6> ConstraintKinds{{
    {"Phase boundary", "PB"},
    {"Single phase at fixed pressure", "FP"},
    {"Single phase at fixed temperature", "FT"},
    {"Single phase at fixed volume", "FV"},
    {"Derived property", "DP"},
    {"Single phase", "SP"},
}};

constexpr std::array<CodeText, 10> PureReferenceStates{{
    {"Direct value", "DIR"},
    {"Rel. to ref. phase at fixed T and P", "FR"},
    {"Rel. to ref. phase at fixed T and same P", "PF"},
    {"Rel. to ref. phase at same T and fixed P", "TF"},
    {"Rel. to ref. phase at same T and P", "TP"},
    {"Rel. to ref. phase in equil. with Phase 1", "PH"},
    {"The reference state described in a comment", "RX"},
    {"Difference between Upper and Lower T", "DT"},
    {"Difference between Upper and Lower P", "DX"},
    {"Mean between Upper and Lower T", "MN"},
}};

constexpr std::array<CodeText, 13> MixtureReferenceStates{{
    {"Direct value", "DIR"},
    {"Rel. to ref. phase with same composition at FIXED T and P", "FR"},
    {"Rel. to ref. phase at fixed T and same P", "PF"},
    {"Rel. to ref. phase at same T and fixed P", "TF"},
    {"Rel. to ref. phase with SAME composition, T and P", "PH"},
    {"Rel. to mixture in EQUIL. with primary phase at same T and P", "EQ"},
    {"Rel. to pure COMPONENTS in same proportion at same T and P", "PC"},
    {"Rel. to pure SOLVENT at T of same phase EQUILIBRIUM", "PR"},
    {"Rel. to pure SOLVENT at same T and P", "PS"},
    {"Rel. to pure SOLUTE at same T and P", "PT"},
    {"Difference at TU and TL in eq. with PHASE2", "DT"},
    {"Mean between TU and TL in eq. with PHASE2", "MN"},
    {"The reference state described in a comment", "RX"},
}};

// The letter leads the code of a result definition, a reference state follows.
constexpr std::array<CodeText, 3> ReferenceRelations{{
    {"Difference X-Xref", "D"},
    {"Ratio X/Xref", "R"},
    {"Ratio of the difference (X-Xref)/Xref", "K"},
}};

constexpr std::array<CodeText, 6> SourceKinds{{
    {"", ""},
    {"Original document", "O"},
    {"Chemical Abstracts", "A"},
    {"KVO file card", "C"},
    {"Extracted from another database", "Z"},
    {"Other document", "X"},
}};

constexpr std::array<CodeText, 4> ExperimentPurposes{{
    {"", ""},
    {"Principal objective of the work", "B"},
    {"Secondary purpose (by-product of other objective)", "C"},
    {"Determined for identification of a synthesized compound", "D"},
}};

constexpr std::array<CodeText, 6> MixtureSolvents{{
    {"component 1", "1"},
    {"component 2", "2"},
    {"component 3", "3"},
    {"component 1 + component 2", "C"},
    {"component 1 + component 3", "D"},
    {"component 2 + component 3", "E"},
}};

constexpr std::array<CodeText, 5> StandardStates{{
    {"Pure compound", "P"},
    {"Pure liquid solute", "L"},
    {"Standard molality (1 mol/kg) solute", "M"},
    {"Standard concentration (1 mol/dm3) solute", "J"},
    {"Infinite-dilution solute", "I"},
}};

// Place n is bit n of the flag word, so nothing may be put in between.
constexpr std::array<CodeText, 4> ValueStatements{{
    {"The property value was reported as a range", ""},
    {"A correction of some kind was applied to the value", ""},
    {"The compiler recommends rejection of this data", ""},
    {"The same measurement published in a different article by the author", ""},
}};

// M, C, W and V are of combustion calorimetry: what the heat was referred to.
constexpr std::array<CodeText, 9> LetteredStatements{{
    {"It is not clear whether the reported data value was a new measurement by the author", "m"},
    {"The enthalpy change data was obtained by a second law calculation", "H"},
    {"The value of Cp or adiabatic compressibility was calculated from the speed of sound", "S"},
    {"The vapor composition in equilibrium with the liquid was calculated by integration of the "
     "Gibbs-Duhem equation",
     "Y"},
    {"Heat of combustion based on sample mass", "M"},
    {"Heat of combustion based on mass of carbon dioxide produced", "C"},
    {"Heat of combustion based on mass of water produced", "W"},
    {"Heat of combustion based on volume of gas burned", "V"},
    {"Equilibrium constant reported as log(K)", "L"},
}};

constexpr std::array<CodeText, 3> SampleAvailabilities{{
    {"The sample description is available", ""},
    {"The sample was not described in the document", "ns"},
    {"No sample used", "xx"},
}};

constexpr std::array<CodeText, 6> SampleSources{{
    {"Commercial source", "cm"},
    {"Synthesized by the authors", "sa"},
    {"Synthesized by others", "sx"},
    {"Standard Reference Material (SRM)", "rs"},
    {"Isolated from a natural product", "np"},
    {"Not stated in the document", "ns"},
}};

constexpr std::array<CodeText, 8> ParticipantCompositions{{
    {"Amount ratio of solvent to participant", "P"},
    {"Molality - amount of participant per mass of solvent, mol/kg", "M"},
    {"Amount of participant per mass of solution, mol/kg", "N"},
    {"Amount concentration - amount of participant per volume of solution, mol/dm3", "J"},
    {"Amount ratio of participant to solvent", "O"},
    {"Mass ratio of participant to solvent", "Q"},
    {"Volume ratio of participant to solvent", "B"},
    {"Mass of participant per volume of solution, kg/m3", "E"},
}};

constexpr std::array<CodeText, 2> ContentCompositions{{
    {"Mole fraction", "X"},
    {"Moles", "n"},
}};

constexpr std::array<CodeText, 2> BioPhases{{
    {"Native", "N"},
    {"Denaturated", "D"},
}};

constexpr std::array<std::string_view, 5> CriticalCurves{"CUL", "CLL", "CLG", "AZ", "MCL"};

// "A" is the Angstrom, in which the system keeps wavelengths.
constexpr std::array<QuantityText, 13> StateVariables{{
    {"T", "Temperature", "K"},
    {"TU", "Upper temperature", "K"},
    {"TL", "Lower temperature", "K"},
    {"P", "Pressure", "kPa"},
    {"PU", "Upper pressure", "kPa"},
    {"PL", "Lower pressure", "kPa"},
    {"VM", "Molar volume", "m3/mol"},
    {"VS", "Specific volume", "m3/kg"},
    {"VDN", "Density", "kg/m3"},
    {"VDM", "Molar density", "mol/m3"},
    {"S", "Entropy", "J/K/mol"},
    {"WL", "Wavelength", "A"},
    {"WF", "Frequency", "MHz"},
}};

constexpr std::array<BioQuantityText, 24> BioVariables{{
    {"T", "Temperature", "K", false, "", "eTemperature"},
    {"P", "Pressure", "kPa", false, "", "ePressure"},
    {"pH", "pH", "1", false, "", "eMiscellaneous"},
    {"pHs", "pH of solvent", "1", false, "", "eMiscellaneous"},
    {"Ic", "Ionic strength (molaRity basis)", "mol/dm3", false, "", "eMiscellaneous"},
    {"Im", "Ionic strength (molaLity basis)", "mol/kg", false, "", "eMiscellaneous"},
    {"X", "Mole fraction", "1", true, "", "eComponentComposition"},
    {"W", "Mass fraction", "1", true, "", "eComponentComposition"},
    {"M", "MolaLity", "mol/kg", true, "", "eComponentComposition"},
    {"J", "MolaRity", "mol/dm3", true, "", "eComponentComposition"},
    {"E", "Mass concentration", "kg/m3", true, "", "eComponentComposition"},
    {"Xs", "Solvent: mole fraction", "1", true, "", "eSolventComposition"},
    {"Ws", "Solvent: mass fraction", "1", true, "", "eSolventComposition"},
    {"Vs", "Solvent: volume fraction", "1", true, "", "eSolventComposition"},
    {"Js", "Solvent: MolaRity", "mol/dm3", true, "", "eSolventComposition"},
    {"pC", "pC (molaRity basis)", "1", true, "", "eMiscellaneous"},
    {"pCs", "pC of solvent", "1", true, "", "eMiscellaneous"},
    {"KT", "Thermodynamic equilibrium constant", "1", false, "P", "ReactionEquilibriumProp"},
    {"KX", "Apparent equilibrium constant (mole fraction)", "1", false, "P",
     "ReactionEquilibriumProp"},
    {"KM", "Apparent equilibrium constant (molaLity)", "1", false, "P", "ReactionEquilibriumProp"},
    {"KJ", "Apparent equilibrium constant (molaRity)", "1", false, "P", "ReactionEquilibriumProp"},
    {"H", "Enthalpy", "kJ/mol", false, "P", "ReactionEquilibriumProp"},
    {"S", "Entropy", "J/K/mol", false, "P", "ReactionEquilibriumProp"},
    {"G", "Gibbs Energy", "kJ/mol", false, "P", "ReactionEquilibriumProp"},
}};

constexpr std::array<BioQuantityText, 16> BioProperties{{
    {"T12", "Temperature of 1/2 conversion", "K", false, "D", "BioProperties"},
    {"Tp", "Peak temperature", "K", false, "D", "BioProperties"},
    {"T0", "Zero-Gibbs energy temperature", "K", false, "D", "BioProperties"},
    {"Cp", "Heat capacity change at transition", "J/K/mol", false, "D", "BioProperties"},
    {"Cpm", "Heat capacity change at transition (mass basis)", "J/K/kg", false, "D",
     "BioProperties"},
    {"H", "Enthalpy of transition", "kJ/mol", false, "D", "BioProperties"},
    {"Hm", "Enthalpy of transition (mass basis)", "kJ/kg", false, "D", "BioProperties"},
    {"HvH", "van't Hoff enthalpy of transition", "kJ/mol", false, "D", "BioProperties"},
    {"Hvm", "van't Hoff enthalpy of transition (mass basis)", "kJ/kg", false, "D", "BioProperties"},
    {"C0", "Partial heat capacity", "J/K/mol", false, "D", "BioProperties"},
    {"C0m", "Partial heat capacity (mass basis)", "J/K/kg", false, "D", "BioProperties"},
    {"X", "Mole fraction", "1", false, "S", "CompositionAtPhaseEquilibrium"},
    {"W", "Mass fraction", "1", false, "S", "CompositionAtPhaseEquilibrium"},
    {"M", "MolaLity", "mol/kg", false, "S", "CompositionAtPhaseEquilibrium"},
    {"J", "MolaRity", "mol/dm3", false, "S", "CompositionAtPhaseEquilibrium"},
    {"E", "Mass concentration", "kg/dm3", false, "S", "CompositionAtPhaseEquilibrium"},
}};

constexpr std::array<BioQuantityText, 3> HydrateQuantities{{
    {"X", "Mole fraction", "1", true, "", "eComponentComposition"},
    {"T", "Temperature", "K", false, "", "eTemperature"},
    {"P", "Pressure", "kPa", false, "", "ePressure"},
}};

constexpr std::array<CodeText, 5> BioFunctions{{
    {"Solvent", "Solvent"},
    {"Buffer component", "Buffer"},
    {"Inert", "Inert"},
    {"Cofactor", "Cofactor"},
    {"Catalyst", "Catalyst"},
}};

constexpr std::array<PurityUnit, 8> PurityUnits{{
    {"mol %", "m%", "nPurityMol"},
    {"mass %", "w%", "nPurityMass"},
    {"vol %", "v%", "nPurityVol"},
    {"not specified %", "x%", "nUnknownPerCent"},
    {"water mass %", "h%", "nWaterMassPerCent"},
    {"water mol %", "g%", "nWaterMolPerCent"},
    {"halide impurity mass %", "i%", "nHalideMassPerCent"},
    {"halide impurity mol %", "j%", "nHalideMolPerCent"},
}};

// FX is what single values have for TF; both leave with one text.
constexpr std::array<CodeText, 6> PureReferenceTexts{{
    {"Reference phase with the same composition at fixed temperature and pressure", "FR"},
    {"Reference phase with the same composition, temperature and pressure", "TP"},
    {"Reference phase at fixed temperature and the same pressure", "PF"},
    {"Reference phase at the same temperature and fixed pressure", "FX"},
    {"Reference phase at the same temperature and fixed pressure", "TF"},
    {"Phase in equilibrium with primary phase at the same temperature and pressure", "PH"},
}};

constexpr std::array<CodeText, 9> MixtureReferenceTexts{{
    {"Reference phase with the same composition at fixed temperature and pressure", "FR"},
    {"Reference phase at fixed temperature and the same pressure", "PF"},
    {"Reference phase at the same temperature and fixed pressure", "TF"},
    {"Reference phase with the same composition, temperature and pressure", "PH"},
    {"Phase in equilibrium with primary phase at the same temperature and pressure", "EQ"},
    {"Pure components in the same proportion at the same temperature and pressure", "PC"},
    {"Pure solvent at the temperature of the same phase equilibrium", "PR"},
    {"Pure solvent at the same temperature and pressure", "PS"},
    {"Pure solute at the same temperature and pressure", "PT"},
}};

namespace {

template <class Table, class Member>
auto FindIn(const Table& table, Member member, std::string_view wanted) {
    const auto found = std::ranges::find(table, wanted, member);
    return found == table.end() ? nullptr : &*found;
}

} // namespace

std::string CodeAt(CodeTexts table, std::size_t index) {
    return index < table.size() ? std::string(table[index].code) : std::string();
}

int IndexOfCode(CodeTexts table, std::string_view code) {
    const CodeText* found = FindIn(table, &CodeText::code, code);
    return found ? static_cast<int>(found - table.data()) : -1;
}

std::string TextOfCode(CodeTexts table, std::string_view code) {
    const CodeText* found = FindIn(table, &CodeText::code, code);
    return found ? std::string(found->text) : std::string();
}

std::string CodeOfText(CodeTexts table, std::string_view text) {
    const CodeText* found = FindIn(table, &CodeText::text, text);
    return found ? std::string(found->code) : std::string();
}

const QuantityText* QuantityByCode(QuantityTexts table, std::string_view code) {
    return FindIn(table, &QuantityText::code, code);
}

const BioQuantityText* QuantityByCode(BioQuantityTexts table, std::string_view code) {
    return FindIn(table, &BioQuantityText::code, code);
}

const PurityUnit* PurityUnitByCode(std::string_view code) {
    return FindIn(PurityUnits, &PurityUnit::code, code);
}

} // namespace vexora
