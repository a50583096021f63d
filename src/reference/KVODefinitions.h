// The code tables that live in the program itself: what a dialog shows beside what a record stores,
// in list order. They need no database. An empty first row means "nothing chosen".
// They are no rows of the reference tables because rules of the program depend on single codes.
// Codes stand in records: one that was given out keeps its meaning, only texts may change.
#pragma once

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
/// A unit of purity statements with the element that exports it.
/// The second letter of a code is "%"; the first says of what.
struct PurityUnit {
    std::string_view text;
    std::string_view code;
    std::string_view element;
};
using CodeTexts = std::span<const CodeText>;
using QuantityTexts = std::span<const QuantityText>;

/// Experimental, smoothed or calculated values.
/// First letter of `DATATYPE`.
CodeTexts DataTypes();
/// Kinds of constraint of a pure data set, and the shorter list for single values.
CodeTexts ConstraintKinds();
CodeTexts SingleConstraintKinds();
/// Reference-state codes for single values, pure data sets and mixture data sets.
/// They say to which state a value is relative: of the same sample at another state, of a phase in
/// equilibrium, or of pure components.
CodeTexts SingleReferenceStates();
CodeTexts PureReferenceStates();
CodeTexts MixtureReferenceStates();
/// Difference and ratios to the reference state.
CodeTexts ReferenceRelations();
/// Kinds of document source, `SOURCEDOC`; first row blank.
CodeTexts SourceKinds();
/// Purpose of the experiment, `EXPPURPOSE`; first row blank.
CodeTexts ExperimentPurposes();
/// Standard states of a reaction's solute.
CodeTexts StandardStates();
/// Statements about a value: the four of `PRPFLAG` in bit order (no codes), and the lettered ones.
/// The first ones are bits of a number in the header of a record, the others tags in its comment.
CodeTexts ValueStatements();
CodeTexts LetteredStatements();
/// Availability of a sample description, and sources of a sample.
/// "ns" and "xx" stand for a whole description: nothing follows them.
CodeTexts SampleAvailabilities();
CodeTexts SampleSources();
/// Composition of a participant in solution.
CodeTexts ParticipantCompositions();
/// "Mole fraction" and "Moles" of a hydrate's content.
CodeTexts ContentCompositions();
/// Phases of a bio transition.
CodeTexts BioPhases();
/// Constraint codes of critical curves.
/// Lines along which phases become alike: consolute, critical and azeotropic ones.
std::span<const std::string_view> CriticalCurves();

/// State variables of pure data.
QuantityTexts StateVariables();
/// Variables and properties of bio data.
/// Their codes are a list of their own: "S" is an entropy here.
QuantityTexts BioVariables();
QuantityTexts BioProperties();

std::span<const PurityUnit> PurityUnits();

/// Texts of the reference states in the export, for pure and mixture data.
/// Words of the schema; they are longer than those of the dialogs.
CodeTexts PureReferenceTexts();
CodeTexts MixtureReferenceTexts();

/// Code of the entry at a list index from 0; "" outside the table.
std::string CodeAt(CodeTexts table, std::size_t index);
/// Index from 0 of a code (exact case); -1 if absent.
int IndexOfCode(CodeTexts table, std::string_view code);
/// Text of a code, code of a text (both exact); "" if absent.
std::string TextOfCode(CodeTexts table, std::string_view code);
std::string CodeOfText(CodeTexts table, std::string_view text);
/// The quantity with this code or this text; null if absent.
const QuantityText* QuantityByCode(QuantityTexts table, std::string_view code);
const QuantityText* QuantityByText(QuantityTexts table, std::string_view text);
/// The purity unit with this code; null if absent.
const PurityUnit* PurityUnitByCode(std::string_view code);

} // namespace vexora
