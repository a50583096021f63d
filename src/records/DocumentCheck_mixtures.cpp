#include "records/RecordChecks.h"

#include "chem/PropertyLimits.h"
#include "records/LineWriter.h"
#include "records/MixtureAdvice.h"
#include "records/MixtureWords.h"
#include "records/StatedUncertainty.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsS.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// What was measured was measured on samples that are described.
template <class Data>
void CheckSamples(const Data& data, const std::string& name, Remarks& remarks) {
    for (int n = 1; n <= data.MixType; ++n) {
        const auto compound = data.Parent ? data.Parent->Component(n) : nullptr;
        const auto number = static_cast<int>(ToInteger(Val(data.SMPNM(n))));
        if (compound && !compound->FindS(number))
            remarks.Error(name + ": " + compound->ShowKey() + " has no sample " + data.SMPNM(n));
    }
}

void CheckConstraints(const clsMV& set, const std::string& name, Remarks& remarks) {
    for (int n = 1; n <= set.ConstraintCount(); ++n) {
        const std::string& code = set.CONSTRAINT(n);
        if (NamesPhase(code)) continue;
        if (code.empty())
            remarks.Warn(name + ": constraint " + std::to_string(n) + " is not stated");
        else if (!IsConstraint(code))
            remarks.Error(name + ": unknown constraint " + code);
        else if (!IsCriticalCurve(code) && !IsNumeric(set.CNVALUE(n)))
            remarks.Error(name + ", " + QuantityInWords(set, set.nVar + n) +
                          ": this is no number: " + set.CNVALUE(n));
    }
    for (const HeldConstant& constant : set.Constants()) {
        // Of two contents of one component each is looked at, so none is asked for by its code.
        const UnitConversion entered = set.Conversion(constant.item);
        if (!IsNumeric(constant.value) || !entered.IsPossible()) continue;
        const double system = entered.Absolute(Val(constant.value));
        const std::string words =
            name + ", " + QuantityInWords(set, constant.item) + ": value " + NumberText(system);
        if (!IsValidValue(constant.code, system))
            remarks.Error(words + " is not valid");
        else if (!IsPlausibleValue(constant.code, system))
            remarks.Warn(words + " is suspicious");
    }
}

/// What the results go by besides phases and constraints.
void CheckSurroundings(const clsMV& set, const std::string& name, Remarks& remarks) {
    if (!set.SOLVENT.empty() && ComponentsOfSolvent(set.SOLVENT).empty())
        remarks.Error(name + ": unknown solvent " + set.SOLVENT);
    for (const std::string& figure : {set.REFERENCE_TEMPERATURE, set.REFERENCE_PRESSURE})
        if (!figure.empty() && !IsNumeric(figure))
            remarks.Error(name + ", reference state: this is no number: " + figure);
    if (!PhaseValid(OrPlaceholder(set.REFERENCE_PHASE)))
        remarks.Error("Unknown phase " + set.REFERENCE_PHASE);
}

} // namespace

void CheckMixture(const clsM& mixture, Findings& findings) {
    Remarks remarks(findings, mixture);
    for (int n = 1; n <= mixture.MixType; ++n) {
        if (!mixture.Component(n))
            remarks.Error("Component of mixture not described: " + mixture.RN(n));
    }
    if (!mixture.HasData())
        remarks.Warn("Mixture " + mixture.ShowKey() + " has no data and will not be saved");
    CheckEqualPoints(mixture, findings);
    AdviseOnTiedFractions(mixture, findings);
    AdviseOnPureEnds(mixture, findings);
    AdviseOnBoilingCurves(mixture, findings);
}

void CheckMixtureValue(const clsMZ& value, Findings& findings) {
    Remarks remarks(findings, value);
    if (MixtureAvailable(value.PRPCODE, "MixZ").empty() &&
        MixtureAvailable(value.PRPCODE, "MixV").empty())
        return remarks.Error("Unknown property " + value.PRPCODE);
    const std::string name =
        WithComponents(PropertyName(value.PRPCODE, value.DataContext()), value.Parent);
    CheckPhases({value.PHASE(1), value.PHASE(2), value.PHASE(3), value.PHASE(4), value.PHASE(5)},
                remarks);
    CheckSamples(value, name, remarks);
    CheckFigures(value, name, remarks);
    if (!StatesUncertainty(value)) remarks.Hint(name + ": no uncertainty is stated");
}

void CheckMixtureSet(const clsMV& set, Findings& findings) {
    Remarks remarks(findings, set);
    if (MixtureAvailable(set.PRPCODE, "MixV").empty())
        return remarks.Error("Unknown property " + set.PRPCODE);
    const std::string name = FirstCapital(QuantityInWords(set, 0));
    CheckPhases(set.Phases(), remarks);
    CheckSamples(set, name, remarks);
    CheckConstraints(set, name, remarks);
    CheckSurroundings(set, name, remarks);
    if (!set.recData.IsEmpty() && !StatesUncertainty(set))
        remarks.Hint(name + ": no uncertainty is stated");
    CheckRows(set, name, remarks);
    AdviseOnFractions(set, findings);
    AdviseOnExcess(set, findings);
}

} // namespace vexora
