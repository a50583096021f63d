// The checks of frmTwo, in the order in which they are told.

#include "pure/TwoRules.h"

#include <utility>

#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

using enum TwoField;

constexpr const char* NoUnit = "Select Independent Variable Units";

/// A draft with what is found in it.
class Checks {
public:
    explicit Checks(const TwoDraft& checked) : draft(checked) {}

    void Variables();
    void Constants();
    void Results();
    void Limits();
    void ReferenceState();
    void Phases();

    const TwoDraft& draft;
    std::vector<TwoFault> faults;

private:
    void Tell(bool isWrong, TwoField field, std::string text) {
        if (isWrong) faults.push_back({field, std::move(text)});
    }
    bool Has(std::string_view variable) const { return HasVariable(draft, variable); }

    const bool two_ = draft.nVar > 1;
    const bool isRelative_ = NeedsRelation(draft.function);
};

void Checks::Variables() {
    Tell(!draft.hasSample, Sample, "Select Sample");
    Tell(draft.variable1.empty(), Variable1, "Select Independent Variable 1");
    Tell(draft.unit1.empty(), Unit1, NoUnit);
    Tell(two_ && draft.variable2.empty(), Variable2, "Select Independent Variable 2");
    Tell(two_ && draft.unit2.empty(), Unit2, NoUnit);
}

void Checks::Constants() {
    const ConstantVariable open = OpenVariable(draft);
    const auto lacks = [&](std::string_view code) { return !Has(code) && open.code != code; };
    Tell(draft.property == "RPX" && lacks("WF"), Variable1,
         "Please select Frequency as one of the variables");
    Tell(draft.property == "RIX" && lacks("WL"), Variable1,
         "Please select Wavelength as one of the variables");
    const bool mayBeEmpty = draft.constant.empty() && !open.isObligatory;
    if (open.code.empty() || mayBeEmpty) return;
    const QuantityText* quantity = QuantityByCode(StateVariables, open.code);
    Tell(!IsNumeric(draft.constant), Constant,
         "Enter a constant value of the state variable " +
             std::string(quantity ? quantity->text : open.code));
}

/// Energies have no zero of their own.
void Checks::Results() {
    const std::string& code = draft.property;
    const bool isEnergy = code == "UA" || code == "U" || code == "G" || code == "H";
    Tell(draft.function.empty(), Function, "Define Measurement Results");
    Tell(isEnergy && draft.function == "DIR", Function,
         "This property should be stored as a difference");
    Tell(isRelative_ && draft.relation.empty(), Relation, "Select Relation to Reference");
    Tell(isRelative_ && draft.Definition().NamesPhase() && draft.refPhase.empty(), RefPhase,
         "Select Reference Phase");
}

/// Limits come in pairs of one quantity, and what is defined between limits needs them.
void Checks::Limits() {
    const bool temperature = Has("TU") && Has("TL");
    const bool pressure = Has("PU") && Has("PL");
    const bool needsT = draft.function == "DT" || draft.function == "MN";
    const bool needsP = draft.function == "DX";
    const bool single = HasLimits(draft) && !temperature && !pressure;
    const bool lacking = !HasLimits(draft) && (needsT || needsP);
    const bool second = two_ && draft.variable2 != "TU" && draft.variable2 != "PU";
    Tell(single || lacking, second ? Variable2 : Variable1,
         "Lower/Upper variables must be consistent");
    Tell(temperature && !needsT, Function,
         "Definition of Results must be Difference or Mean between TU and TL");
    Tell(pressure && !needsP, Function,
         "Definition of Results must be Difference between PU and PL");
}

void Checks::ReferenceState() {
    const ResultDefinition definition = draft.Definition();
    const bool noT = isRelative_ && definition.FixesTemperature() && !IsNumeric(draft.refTemp);
    const bool noP = isRelative_ && definition.FixesPressure() && !IsNumeric(draft.refPressure);
    Tell(noT, RefTemp, "Select Reference Temperature");
    Tell(noP && !noT, RefPressure, "Select Reference Pressure");
}

/// Two free state variables do not fit a phase boundary of a pure compound.
void Checks::Phases() {
    const bool boundary = draft.constraint == "PB";
    const bool spectral = Has("WL") || Has("WF");
    Tell(draft.constraint.empty(), Constraint, "Select the Constraint");
    Tell(two_ && boundary && !HasLimits(draft) && !spectral, Constraint, "Overdetermined system");
    Tell(draft.phase1.empty(), Phase1, "Select Phase 1");
    Tell(boundary && draft.phase2.empty(), Phase2, "Select Phase 2");
    Tell(!two_ && boundary && draft.phase1 == draft.phase2, Phase2, "Duplicate phase");
    Tell(two_ && draft.variable1 == draft.variable2, Variable2, "Duplicate variable");
    Tell(draft.numerical.empty(), Numerical, "Select availability of numeric data");
}

} // namespace

std::vector<TwoFault> CheckTwo(const TwoDraft& draft) {
    Checks checks(draft);
    checks.Variables();
    checks.Constants();
    checks.Results();
    checks.Limits();
    checks.ReferenceState();
    checks.Phases();
    return std::move(checks.faults);
}

} // namespace vexora
