#include "chem/Balancer.h"
#include "records/LineWriter.h"
#include "records/MixtureWords.h"
#include "records/ReactionAdvice.h"
#include "records/RecordChecks.h"
#include "records/StatedUncertainty.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsQ.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;

/// What stands on one side more than on the other.
std::string SurplusWords(const SlotTexts& formulas, const SlotTexts& coefficients) {
    const SurplusTexts surplus = SurplusOf(ElementBalances(formulas, coefficients));
    std::string words;
    if (!surplus.reactants.empty()) words += "; reactants have left over " + surplus.reactants;
    if (!surplus.products.empty()) words += "; products have left over " + surplus.products;
    return words;
}

/// Coefficients of all participants, and the same elements on both sides. What nobody knows the
/// formula of cannot be weighed.
void CheckBalance(const clsQ& reaction, const SlotTexts& coefficients, const std::string& name,
                  Remarks& remarks) {
    const SlotTexts formulas = reaction.Formulas();
    bool isComplete = true;
    for (int i = 1; i <= Count; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        if (reaction.RN(i).empty()) continue;
        const std::string& coefficient = coefficients[at];
        isComplete = isComplete && !formulas[at].empty() && IsNumeric(coefficient);
        if (IsBlankField(coefficient))
            remarks.Warn(name + ": no coefficient of " + reaction.Name(i) + " is stated");
        else if (!IsNumeric(coefficient) || Val(coefficient) == 0)
            remarks.Error(name + ": " + reaction.Name(i) +
                          " has an invalid coefficient: " + coefficient);
        if (formulas[at].empty())
            remarks.Warn(name + ": the formula of " + reaction.Name(i) + " is not known");
    }
    if (isComplete && !IsBalanced(formulas, coefficients))
        remarks.Error(name + ": the reaction is not balanced" +
                      SurplusWords(formulas, coefficients));
}

template <class Set>
SlotTexts CoefficientsOf(const Set& set, const clsQ& reaction) {
    SlotTexts coefficients = reaction.Coefficients();
    for (int i = 1; i <= Count; ++i)
        if (i <= clsE::Participants || std::is_same_v<Set, clsC>)
            coefficients[static_cast<std::size_t>(i - 1)] = set.PARTICIPANT_COEFF(i);
    return coefficients;
}

/// Those of a set are looked at when they are not those of the reaction, which are looked at once.
template <class Set>
void CheckCoefficients(const Set& set, const std::string& name, Remarks& remarks) {
    if (set.Parent == nullptr) return;
    const SlotTexts coefficients = CoefficientsOf(set, *set.Parent);
    if (coefficients != set.Parent->Coefficients())
        CheckBalance(*set.Parent, coefficients, name, remarks);
}

/// What was measured was measured on samples that are described.
template <class Set>
void CheckSamples(const Set& set, const std::string& name, Remarks& remarks) {
    bool hasAny = false;
    for (int i = 1; set.Parent && i <= Count; ++i) {
        const std::string sample = set.SMPNM(i);
        const auto participant = set.Parent->Participant(i);
        if (sample.empty() || !participant) continue;
        hasAny = true;
        if (!participant->FindSample(static_cast<int>(ToInteger(Val(sample)))))
            remarks.Error(name + ": " + participant->ShowKey() + " has no sample " + sample);
    }
    if (set.Parent && !hasAny) remarks.Warn(name + ": no participant has a sample");
}

void CheckStandardState(const std::string& code, const std::string& name, Remarks& remarks) {
    if (!IsBlankField(code) && TextOfCode(StandardStates, code).empty())
        remarks.Error(name + ": unknown standard state " + code);
}

void CheckState(const clsC& value, const std::string& name, Remarks& remarks) {
    const struct {
        const char* what;
        const std::string& text;
        bool isPressure;
    } figures[] = {{"initial temperature", value.INITIAL_TEMPERATURE, false},
                   {"initial pressure", value.INITIAL_PRESSURE, true},
                   {"final temperature", value.FINAL_TEMPERATURE, false},
                   {"final pressure", value.FINAL_PRESSURE, true}};
    for (const auto& [what, text, isPressure] : figures) {
        const bool isValid = IsNumeric(text) && (Val(text) > 0 || (isPressure && Val(text) == 0));
        if (text.empty())
            remarks.Warn(name + ": no " + what + " is stated");
        else if (!isValid)
            remarks.Error(name + ": invalid " + what + " " + text);
    }
}

void CheckPhasesOfParticipants(const clsC& value, const std::string& name, Remarks& remarks) {
    for (int i = 1; value.Parent && i <= Count; ++i) {
        const std::string& phase = value.PARTICIPANT_PHASE(i);
        if (value.Parent->RN(i).empty()) continue;
        if (IsBlankField(phase))
            remarks.Warn(name + ": no phase of " + value.Parent->Name(i) + " is stated");
        else if (!PhaseValid(phase))
            remarks.Error("Unknown phase " + phase);
    }
}

/// Each participant is in one of the phases.
void CheckPlaces(const clsE& set, const std::string& name, Remarks& remarks) {
    for (int i = 1; set.Parent && i <= clsE::Participants; ++i) {
        if (set.Parent->RN(i).empty()) continue;
        bool isSomewhere = false;
        for (int place = 1; place <= clsE::Places; ++place)
            isSomewhere = isSomewhere || set.COMPONENTS_IN_PHASE(place).find(
                                             static_cast<char>('0' + i)) != std::string::npos;
        if (!isSomewhere)
            remarks.Warn(name + ": " + set.Parent->Name(i) + " is not associated with any phase");
    }
    for (const HeldConstant& constant : set.Constants()) {
        const std::string words = ReactionVariableName(set.Parent, constant.code);
        if (words.empty())
            remarks.Error(name + ": unknown constraint " + constant.code);
        else if (!IsNumeric(constant.value))
            remarks.Error(name + ", constant " + FirstSmall(words) +
                          ": this is no number: " + constant.value);
    }
}

} // namespace

void CheckReaction(const clsQ& reaction, Findings& findings) {
    Remarks remarks(findings, reaction);
    const std::string name = "Reaction " + reaction.ShowKey();
    for (int i = 1; i <= Count; ++i)
        if (!reaction.RN(i).empty() && !reaction.Participant(i))
            remarks.Error(name + ": participant not described: " + reaction.RN(i));
    if (ReactionType(reaction.REACTCLASS).empty())
        remarks.Error(name + ": unknown class " + OrPlaceholder(reaction.REACTCLASS));
    CheckBalance(reaction, reaction.Coefficients(), name, remarks);
    if (!reaction.HasData()) remarks.Hint(name + ": no data are given");
    CheckEqualPoints(reaction, findings);
}

void CheckPropertyChange(const clsC& value, Findings& findings) {
    Remarks remarks(findings, value);
    if (!FindProperty(value.PRPCODE, value.DataContext()))
        return remarks.Error("Unknown property " + value.PRPCODE);
    const std::string name = PropertyName(value.PRPCODE, value.DataContext());
    CheckCoefficients(value, name, remarks);
    CheckPhasesOfParticipants(value, name, remarks);
    CheckSamples(value, name, remarks);
    CheckStandardState(value.STANDARD_STATE, name, remarks);
    CheckState(value, name, remarks);
    CheckFigures(value, name, remarks);
    if (!StatesUncertainty(value)) remarks.Hint(name + ": no uncertainty is stated");
    AdviseOnCombustion(value, findings);
}

void CheckEquilibrium(const clsE& set, Findings& findings) {
    Remarks remarks(findings, set);
    if (!FindProperty(set.PRPCODE, set.DataContext()))
        return remarks.Error("Unknown property " + set.PRPCODE);
    const std::string name = PropertyName(set.PRPCODE, set.DataContext());
    CheckCoefficients(set, name, remarks);
    CheckPhases(set.Phases(), remarks);
    CheckPlaces(set, name, remarks);
    CheckSamples(set, name, remarks);
    CheckStandardState(set.STANDARD_STATE, name, remarks);
    if (set.PRPCODE == "KT" && IsBlankField(set.STANDARD_STATE))
        remarks.Warn(name + ": no standard state is stated");
    if (!set.recData.IsEmpty() && !StatesUncertainty(set))
        remarks.Hint(name + ": no uncertainty is stated");
    CheckRows(set, name, remarks);
    AdviseOnEquilibrium(set, findings);
}

} // namespace vexora
