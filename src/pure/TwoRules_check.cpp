// The checks of frmTwo, in the order in which they are told.

#include "pure/TwoRules.h"

#include <array>

#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

using Fault = std::optional<TwoFault>;

constexpr const char* NoUnit = "Select Independent Variable Units";

bool HasBoth(const TwoDraft& draft, std::string_view upper, std::string_view lower) {
    return HasVariable(draft, upper) && HasVariable(draft, lower);
}

Fault Sample(const TwoDraft& draft) {
    if (draft.hasSample) return {};
    return TwoFault{TwoField::Sample, "Select Sample"};
}

Fault FirstVariable(const TwoDraft& draft) {
    if (!draft.variable1.empty()) return {};
    return TwoFault{TwoField::Variable1, "Select Independent Variable 1"};
}

Fault FirstUnit(const TwoDraft& draft) {
    if (!draft.unit1.empty()) return {};
    return TwoFault{TwoField::Unit1, NoUnit};
}

Fault SecondVariable(const TwoDraft& draft) {
    if (draft.nVar == 1 || !draft.variable2.empty()) return {};
    return TwoFault{TwoField::Variable2, "Select Independent Variable 2"};
}

Fault SecondUnit(const TwoDraft& draft) {
    if (draft.nVar == 1 || !draft.unit2.empty()) return {};
    return TwoFault{TwoField::Unit2, NoUnit};
}

Fault Spectral(const TwoDraft& draft) {
    const std::string third = OpenVariable(draft).code;
    const auto stated = [&](std::string_view code) {
        return HasVariable(draft, code) || third == code;
    };
    if (draft.property == "RPX" && !stated("WF"))
        return TwoFault{TwoField::Variable1, "Please select Frequency as one of the variables"};
    if (draft.property == "RIX" && !stated("WL"))
        return TwoFault{TwoField::Variable1, "Please select Wavelength as one of the variables"};
    return {};
}

Fault Constant(const TwoDraft& draft) {
    const ConstantVariable open = OpenVariable(draft);
    const bool mayBeEmpty = open.code.empty() || !open.isObligatory;
    if (draft.constant.empty() && mayBeEmpty) return {};
    if (open.code.empty() || IsNumeric(draft.constant)) return {};
    const QuantityText* quantity = QuantityByCode(StateVariables(), open.code);
    return TwoFault{TwoField::Constant, "Enter a constant value of the state variable " +
                                            std::string(quantity ? quantity->text : open.code)};
}

Fault Definition(const TwoDraft& draft) {
    if (!draft.function.empty()) return {};
    return TwoFault{TwoField::Function, "Define Measurement Results"};
}

/// Energies have no zero of their own.
Fault Energy(const TwoDraft& draft) {
    const std::string& code = draft.property;
    const bool isEnergy = code == "UA" || code == "U" || code == "G" || code == "H";
    if (!isEnergy || draft.function != "DIR") return {};
    return TwoFault{TwoField::Function, "This property should be stored as a difference"};
}

Fault Relation(const TwoDraft& draft) {
    if (!NeedsRelation(draft.function) || !draft.relation.empty()) return {};
    return TwoFault{TwoField::Relation, "Select Relation to Reference"};
}

Fault ReferencePhase(const TwoDraft& draft) {
    if (!NeedsRelation(draft.function) || !draft.Definition().NamesPhase()) return {};
    if (!draft.refPhase.empty()) return {};
    return TwoFault{TwoField::RefPhase, "Select Reference Phase"};
}

/// Limits come in pairs of one quantity, and what is defined between limits needs them.
Fault Limits(const TwoDraft& draft) {
    const bool temperature = HasBoth(draft, "TU", "TL");
    const bool pressure = HasBoth(draft, "PU", "PL");
    const bool needsT = draft.function == "DT" || draft.function == "MN";
    const bool needsP = draft.function == "DX";
    const bool single = HasLimits(draft) && !temperature && !pressure;
    const bool lacking = !HasLimits(draft) && (needsT || needsP);
    if (!single && !lacking) return {};
    const bool second = draft.nVar > 1 && draft.variable2 != "TU" && draft.variable2 != "PU";
    return TwoFault{second ? TwoField::Variable2 : TwoField::Variable1,
                    "Lower/Upper variables must be consistent"};
}

Fault BetweenLimits(const TwoDraft& draft) {
    const std::string& function = draft.function;
    if (HasBoth(draft, "TU", "TL") && function != "DT" && function != "MN")
        return TwoFault{TwoField::Function,
                        "Definition of Results must be Difference or Mean between TU and TL"};
    if (HasBoth(draft, "PU", "PL") && function != "DX")
        return TwoFault{TwoField::Function,
                        "Definition of Results must be Difference between PU and PL"};
    return {};
}

Fault ReferenceState(const TwoDraft& draft) {
    if (!NeedsRelation(draft.function)) return {};
    if (draft.Definition().FixesTemperature() && !IsNumeric(draft.refTemp))
        return TwoFault{TwoField::RefTemp, "Select Reference Temperature"};
    if (draft.Definition().FixesPressure() && !IsNumeric(draft.refPressure))
        return TwoFault{TwoField::RefPressure, "Select Reference Pressure"};
    return {};
}

Fault Constraint(const TwoDraft& draft) {
    if (!draft.constraint.empty()) return {};
    return TwoFault{TwoField::Constraint, "Select the Constraint"};
}

/// Two free state variables do not fit a phase boundary of a pure compound.
Fault Overdetermined(const TwoDraft& draft) {
    if (draft.nVar == 1 || draft.constraint != "PB" || HasLimits(draft)) return {};
    if (HasVariable(draft, "WL") || HasVariable(draft, "WF")) return {};
    return TwoFault{TwoField::Constraint, "Overdetermined system"};
}

Fault FirstPhase(const TwoDraft& draft) {
    if (!draft.phase1.empty()) return {};
    return TwoFault{TwoField::Phase1, "Select Phase 1"};
}

Fault SecondPhase(const TwoDraft& draft) {
    if (draft.constraint != "PB" || !draft.phase2.empty()) return {};
    return TwoFault{TwoField::Phase2, "Select Phase 2"};
}

Fault Duplicates(const TwoDraft& draft) {
    if (draft.nVar == 1 && draft.constraint == "PB" && draft.phase1 == draft.phase2)
        return TwoFault{TwoField::Phase2, "Duplicate phase"};
    if (draft.nVar > 1 && draft.variable1 == draft.variable2)
        return TwoFault{TwoField::Variable2, "Duplicate variable"};
    return {};
}

Fault Numbers(const TwoDraft& draft) {
    if (!draft.numerical.empty()) return {};
    return TwoFault{TwoField::Numerical, "Select availability of numeric data"};
}

constexpr std::array Checks = {
    &Sample,         &FirstVariable, &FirstUnit,     &SecondVariable, &SecondUnit,
    &Spectral,       &Constant,      &Definition,    &Energy,         &Relation,
    &ReferencePhase, &Limits,        &BetweenLimits, &ReferenceState, &Constraint,
    &Overdetermined, &FirstPhase,    &SecondPhase,   &Duplicates,     &Numbers,
};

} // namespace

std::vector<TwoFault> CheckTwo(const TwoDraft& draft) {
    std::vector<TwoFault> faults;
    for (const auto check : Checks) {
        if (auto fault = check(draft)) faults.push_back(std::move(*fault));
    }
    return faults;
}

} // namespace vexora
