// The code tables that live in the program itself: what a dialog shows beside what a record stores,
// in list order. They need no database. An empty first row means "nothing chosen".
// They are no rows of the reference tables because rules of the program depend on single codes.
// Codes stand in records: one that was given out keeps its meaning, only texts may change.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace vexora {

/// One entry of a fixed list.
struct CodeText {
    std::string_view text;
    std::string_view code;
};
/// A quantity with its system unit.
/// Values of the quantity are stored in this unit.
struct QuantityText {
    std::string_view code;
    std::string_view text;
    std::string_view unit;
};
/// A quantity of bio data.
struct BioQuantityText {
    std::string_view code;
    std::string_view text;
    std::string_view unit; // system unit, "1" for none
    /// It is said of a component, which has to be named.
    bool needsComponent = false;
    /// "P" for one that only a property can be; of properties of bio substances the kind of set
    /// that it belongs to: "D" a transition, "S" a solubility.
    std::string_view kind;
    /// Element of its group in the export.
    std::string_view group;
};
/// A unit of purity statements with the element that exports it.
/// The second letter of a code is "%"; the first says of what.
struct PurityUnit {
    std::string_view text;
    std::string_view code;
    std::string_view element;
};
using CodeTexts = std::span<const CodeText>;
using QuantityTexts = std::span<const QuantityText>;
using BioQuantityTexts = std::span<const BioQuantityText>;

/// Experimental, smoothed or calculated values.
/// First letter of `DATATYPE`.
extern const std::array<CodeText, 3> DataTypes;
/// Kinds of constraint of a pure data set.
extern const std::array<CodeText, 6> ConstraintKinds;
/// Reference-state codes for pure and mixture data sets.
/// They say to which state a value is relative: of the same sample at another state, of a phase in
/// equilibrium, or of pure components.
extern const std::array<CodeText, 10> PureReferenceStates;
extern const std::array<CodeText, 13> MixtureReferenceStates;
/// Difference and ratios to the reference state.
extern const std::array<CodeText, 3> ReferenceRelations;
/// Kinds of document source, `SOURCEDOC`; first row blank.
extern const std::array<CodeText, 6> SourceKinds;
/// Purpose of the experiment, `EXPPURPOSE`; first row blank.
extern const std::array<CodeText, 4> ExperimentPurposes;
/// Standard states of a solute, in a reaction or a mixture.
extern const std::array<CodeText, 5> StandardStates;
/// The solvent of a mixture: a component, or two of three, which leaves the third as the solute.
extern const std::array<CodeText, 6> MixtureSolvents;
/// Statements about a value: the four of `PRPFLAG` in bit order (no codes), and the lettered ones.
/// The first ones are bits of a number in the header of a record, the others tags in its comment.
extern const std::array<CodeText, 4> ValueStatements;
extern const std::array<CodeText, 9> LetteredStatements;
/// Availability of a sample description, and sources of a sample.
/// "ns" and "xx" stand for a whole description: nothing follows them.
extern const std::array<CodeText, 3> SampleAvailabilities;
extern const std::array<CodeText, 6> SampleSources;
/// Composition of a participant in solution.
extern const std::array<CodeText, 8> ParticipantCompositions;
/// "Mole fraction" and "Moles" of a hydrate's content.
extern const std::array<CodeText, 2> ContentCompositions;
/// Phases of a bio transition.
extern const std::array<CodeText, 2> BioPhases;
/// Constraint codes of critical curves.
/// Lines along which phases become alike: consolute, critical and azeotropic ones.
extern const std::array<std::string_view, 5> CriticalCurves;

/// State variables of pure data.
extern const std::array<QuantityText, 13> StateVariables;
/// The quantities of bio data. Their codes are a list of their own: "S" is an entropy here.
/// Variables and constraints of all sets, and the properties of bio reactions (K, H, S, G).
extern const std::array<BioQuantityText, 24> BioVariables;
/// Properties of bio substances.
extern const std::array<BioQuantityText, 16> BioProperties;
/// All quantities of a phase equilibrium of a complex sample.
extern const std::array<BioQuantityText, 3> HydrateQuantities;
/// What a further component of the solution is there for: in a bio reaction, and (the first three)
/// in the solution of a bio substance. The code is the word of the export.
extern const std::array<CodeText, 5> BioFunctions;

extern const std::array<PurityUnit, 8> PurityUnits;

/// Texts of the reference states in the export, for pure and mixture data.
/// Words of the schema; they are longer than those of the dialogs.
extern const std::array<CodeText, 6> PureReferenceTexts;
extern const std::array<CodeText, 9> MixtureReferenceTexts;

/// Code of the entry at a list index from 0; "" outside the table.
std::string CodeAt(CodeTexts table, std::size_t index);
/// Index from 0 of a code (exact case); -1 if absent.
int IndexOfCode(CodeTexts table, std::string_view code);
/// Text of a code, code of a text (both exact); "" if absent.
std::string TextOfCode(CodeTexts table, std::string_view code);
std::string CodeOfText(CodeTexts table, std::string_view text);
/// The quantity with this code; null if absent.
const QuantityText* QuantityByCode(QuantityTexts table, std::string_view code);
const BioQuantityText* QuantityByCode(BioQuantityTexts table, std::string_view code);
/// The purity unit with this code; null if absent.
const PurityUnit* PurityUnitByCode(std::string_view code);

} // namespace vexora
