// What frmTwo offers, presets and refuses for a property measured against state variables, and the
// codes in which a set keeps it. Functions of codes and texts; no form is known here.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/FieldFault.h"
#include "entry/PhaseRules.h"
#include "records/Presentation.h"
#include "records/ResultDefinition.h"
#include "reference/KVODefinitions.h"

namespace vexora {

/// What stands on frmTwo, as codes; an empty text is an open choice.
struct TwoDraft {
    int nVar = 1;
    std::string context = "Pure";
    std::string property;
    bool hasSample = false;
    std::string variable1, unit1, variable2, unit2; // units as listed
    std::string constant;                           // value of the third variable
    std::string function, relation;                 // see ResultDefinition
    ResultDefinition Definition() const { return {function, relation}; }
    std::string refPhase, refTemp, refPressure;
    std::string constraint, phase1, phase2;
    std::string numerical;
};

enum class TwoField {
    Sample,
    Variable1,
    Unit1,
    Variable2,
    Unit2,
    Constant,
    Function,
    Relation,
    RefPhase,
    RefTemp,
    RefPressure,
    Constraint,
    Phase1,
    Phase2,
    Numerical
};

using TwoFault = FieldFault<TwoField>;

/// All that keeps a draft from being accepted, in the order in which it is told.
std::vector<TwoFault> CheckTwo(const TwoDraft& draft);

/// Texts and codes of the lists of definitions and of relations.
std::vector<CodeText> ResultFunctions();
std::vector<CodeText> ResultRelations();

/// Whether the variable is one of those of the set.
bool HasVariable(const TwoDraft& draft, std::string_view code);
/// Whether an upper or lower limit of temperature or pressure is among them.
bool HasLimits(const TwoDraft& draft);

/// The state variable that the set leaves open and that has one value for all of it.
struct ConstantVariable {
    std::string code; // empty when none is open
    bool isObligatory = false;
};
ConstantVariable OpenVariable(const TwoDraft& draft);

/// Whether a variable is the quantity that the property itself is: a boiling temperature is not
/// measured against temperature.
bool IsSameQuantity(std::string_view property, std::string_view variable);

/// What a new set of a property begins with.
TwoDraft PresetTwo(std::string_view property);

/// The phases that can be chosen beside each other; none for a second one off the phase boundary.
PhaseOffer OfferSetPhases(const TwoDraft& draft);
/// The code under which a set with these phases is kept: a pressure beside a gas is a vapour
/// pressure, an enthalpy of transition to a gas one of vaporization.
std::string StoredPropertyCode(std::string_view property, std::string_view phase1,
                               std::string_view phase2);

} // namespace vexora
