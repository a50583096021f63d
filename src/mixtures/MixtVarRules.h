// What frmMixtVar offers, presets and refuses for a set of a binary or ternary mixture. Functions
// of codes and texts; no form is known here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/ResultDefinition.h"
#include "reference/KVODefinitions.h"
#include "reference/Vocabulary.h"

namespace vexora {

/// A state variable, or a constraint with its value: code, unit as listed, and the phase in which
/// it is meant. An empty text is an open choice.
struct MixtVarQuantity {
    std::string code, unit, phase;
    std::string value = {};
    bool isUnstated = false; // a constraint that the stored set leaves open, and that stays so
};

/// What stands on frmMixtVar, as codes; an empty text is an open choice.
struct MixtVarDraft {
    static constexpr int NotChosen = -1;

    std::string context = "Bin"; // or "Tern"
    std::string property;
    std::string unit;            // conversion code of the property
    std::string method;          // its code
    std::vector<bool> hasSample; // of each component
    int phaseCount = NotChosen;
    int constraintCount = NotChosen;
    std::vector<std::string> phases; // the primary one first
    std::vector<MixtVarQuantity> constraints, variables;
    std::string constant;           // of the variable that OpenSpectralVariable names
    std::string function, relation; // see ResultDefinition
    ResultDefinition Definition() const { return {function, relation}; }
    std::string refPhase, refTemp, refPressure;
    std::string solvent; // as clsMV::SOLVENT
    std::string standardState;
    std::string numerical;

    /// 2 or 3.
    int MixType() const { return context == "Tern" ? 3 : 2; }
    /// State variables that phases and constraints leave free by the phase rule; below 1 for too
    /// many of them, NotChosen while a number is open.
    int VariableCount() const;
};

enum class MixtVarField {
    Method,
    PhaseCount,
    ConstraintCount,
    Phase,
    Sample,
    Constraint,
    ConstraintUnit,
    ConstraintValue,
    ConstraintPhase,
    Variable,
    VariableUnit,
    VariablePhase,
    Constant,
    Function,
    Relation,
    RefPhase,
    RefTemp,
    RefPressure,
    Solvent,
    StandardState,
    Numerical
};

/// What keeps a draft from being accepted, and the field that mends it; of fields in a row the one
/// at the index, from 0. What asks is unlikely only, and may be meant.
struct MixtVarFinding {
    MixtVarField field;
    std::string text;
    int index = 0;
    bool asks = false;
};

/// All that speaks against a draft, in the order in which it is told.
std::vector<MixtVarFinding> CheckMixtVar(const MixtVarDraft& draft);

// What is offered.

/// Numbers of phases in equilibrium: a tension lies between two, a virial coefficient is of a gas.
std::vector<std::string> OfferPhaseCounts(std::string_view property, std::string_view context);
/// Numbers of constraints.
std::vector<std::string> OfferConstraintCounts(std::string_view context);
/// Codes of the phases of a mixture that the property can be meant in.
std::vector<std::string> OfferPhasesOfSet(std::string_view property, std::string_view context);
/// State variables, or those that can be held constant, without the quantity of the property.
std::vector<VariableRow> OfferMixtureVariables(std::string_view property, std::string_view context,
                                               bool constraintsOnly);
/// "component 1", "component 1 + component 2", ... with the codes of clsMV::SOLVENT.
CodeTexts SolventTexts(std::string_view context);
/// Texts and codes of the definitions of results and of their relations to a reference state.
std::vector<CodeText> MixtureFunctions();
std::vector<CodeText> MixtureRelations();

// What is asked for.

/// A quantity of one phase: contents, partial pressures, and volumes, densities and entropies.
bool IsOfOnePhase(std::string_view code);
/// A quantity can be meant in a phase: no content in a crystal of one component or in the air of
/// the room, a partial pressure in a gas alone.
bool CanBeOf(std::string_view code, std::string_view phase);
/// Something speaks of a solvent, which the set has to name.
bool NeedsSolvent(const MixtVarDraft& draft);
/// The solvent that follows from a partial enthalpy: all but its component; empty for others.
std::string_view SolventOfProperty(std::string_view property);
/// The component of a binary that is left when something speaks of one solute; empty where nothing
/// does, or of both, and for a ternary.
std::string_view SolventOfBinary(const MixtVarDraft& draft);
/// The component that a content or a property calls a solute, 0 for none.
int SoluteOf(std::string_view code);
/// An excess property, which knows no solvent.
bool IsExcess(std::string_view property);
/// An activity or its coefficient goes by the state in which it is 1.
bool NeedsStandardState(std::string_view property);
/// The phase that an enthalpy of solution starts from stands in the place of a reference phase.
bool NeedsPhaseOfSolute(std::string_view property);
/// The relation names a phase of its own.
bool NeedsReferencePhase(std::string_view relation);
/// Code of the wavelength or frequency that a spectral property has for all rows; empty for others
/// and where it varies or is a constraint.
std::string OpenSpectralVariable(const MixtVarDraft& draft);

/// How many constraints lead to this number of variables; NotChosen where none do.
int ConstraintsFor(int variables, int phases, std::string_view context);
/// How the results of a property are mostly given: energies as differences.
std::string_view PresetFunction(std::string_view property);

} // namespace vexora
