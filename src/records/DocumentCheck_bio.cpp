#include "records/RecordChecks.h"

#include "chem/Balancer.h"
#include "chem/PropertyLimits.h"
#include "records/BioSetFacts.h"
#include "records/LineWriter.h"
#include "records/MixtureWords.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "records/clsS.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <initializer_list>
#include <set>
#include <utility>

namespace vexora {

namespace {

/// The tables of limits know these quantities by other codes, for mixtures and pure compounds.
constexpr std::pair<std::string_view, std::string_view> LimitCodes[] = {
    {"T", "T"},   {"P", "P"},   {"X", "X1"},  {"W", "W1"},  {"M", "M1"},
    {"J", "J1"},  {"Xs", "X1"}, {"Ws", "W1"}, {"Vs", "V1"}, {"Js", "J1"},
    {"Ic", "J1"}, {"Im", "M1"}, {"T12", "T"}, {"Tp", "T"},  {"T0", "T"},
    {"KT", "KT"}, {"KX", "KX"}, {"KM", "KM"}, {"KJ", "KJ"}};

std::string_view LimitCode(std::string_view code) {
    for (const auto& [own, other] : LimitCodes)
        if (own == code) return other;
    return {};
}

/// Concentrated acids and bases go a little beyond 0 and 14.
bool IsPlausiblePH(double value) {
    constexpr double least = -2, most = 16;
    return value >= least && value <= most;
}

bool IsPlausible(std::string_view code, double system) {
    if (code == "pH" || code == "pHs") return IsPlausiblePH(system);
    return IsPlausibleValue(LimitCode(code), system);
}

/// A number, or per cent of the value.
bool IsUncertainty(std::string_view text) {
    if (text.ends_with('%')) text.remove_suffix(1);
    return IsNumeric(text) && Val(text) >= 0;
}

void CheckSampleOf(const std::shared_ptr<clsL>& compound, const std::string& sample,
                   const std::string& name, Remarks& remarks) {
    if (compound && !sample.empty() && !compound->FindS(static_cast<int>(ToInteger(Val(sample)))))
        remarks.Error(name + ": " + compound->ShowKey() + " has no sample " + sample);
}

void CheckPhase(const std::string& phase, Remarks& remarks) {
    if (!IsBlankField(phase) && !PhaseValid(phase)) remarks.Error("Unknown phase " + phase);
}

/// What a compound is for in a complex is put in free words.
bool IsFunctionKnown(const BioSet& set, const std::string& function) {
    const auto* const property = dynamic_cast<const clsBP*>(&set);
    if (property && property->PrpType == "G") return true;
    constexpr std::size_t ofProperties = 3; // the first functions hold for all sets
    const std::size_t functions = set.IsReaction() ? BioFunctions.size() : ofProperties;
    return std::any_of(BioFunctions.begin(), BioFunctions.begin() + functions,
                       [&](const CodeText& one) { return one.text == function; });
}

void CheckComponents(const BioSet& set, const std::string& name, Remarks& remarks) {
    for (std::size_t n = 0; n < set.Components.size(); ++n) {
        const BioComponent& component = set.Components[n];
        const std::string key = set.KeyOf(n);
        const auto compound = set.CompoundOf(key);
        if (!compound) remarks.Error(name + ": component not described: " + component.RN);
        CheckSampleOf(compound, component.SMPNM, name, remarks);
        CheckPhase(component.phase, remarks);
        if (!IsFunctionKnown(set, component.function))
            remarks.Error(name + ": unknown function of " + set.CompoundName(key) + ": " +
                          OrPlaceholder(component.function));
        if (component.function == "Cofactor" && !StatesContent(set, component.RN))
            remarks.Warn(name + ": the content of the co-factor " + set.CompoundName(key) +
                         " is not stated");
    }
}

/// Whether quantities may name it: a participant, the substance, or a component.
bool HasKey(const BioSet& set, const std::string& key) {
    const auto participants = set.ParticipantKeys();
    if (std::ranges::find(participants, key) != participants.end()) return true;
    for (std::size_t n = 0; n < set.Components.size(); ++n)
        if (set.KeyOf(n) == key) return true;
    return false;
}

void CheckLimits(const BioQuantity& quantity, double system, const std::string& name,
                 Remarks& remarks) {
    const std::string words = name + ": value " + NumberText(system);
    if (!IsValidValue(LimitCode(quantity.code), system))
        remarks.Error(words + " is not valid");
    else if (!IsPlausible(quantity.code, system))
        remarks.Warn(words + " is suspicious");
}

/// The cells of a column, once its quantity is known.
class ColumnCheck {
public:
    ColumnCheck(const BioSet& set, std::size_t place)
        : quantity_(set.Quantities()[place]), place_(place), entered_(set.ConversionOf(quantity_)),
          mayBeEmpty_(place < set.CountOf(BioRole::Property) &&
                      set.CountOf(BioRole::Property) > 1) {}

    void Row(std::size_t row, const clsBD& data) {
        if (place_ >= data.Cells.size()) return; // told of the set
        const std::string value(data.Cells[place_].value);
        const std::string_view uncertainty = data.Cells[place_].uncertainty;
        if (!IsBlankField(uncertainty) && !IsUncertainty(uncertainty))
            noUncertainty_.Add(row, "this is no uncertainty: " + std::string(uncertainty));
        if (IsBlankField(value)) {
            if (!mayBeEmpty_) noNumber_.Add(row, "a value is missing");
            return;
        }
        if (!IsNumeric(value)) return noNumber_.Add(row, "this is no number: " + value);
        if (!entered_.IsPossible()) return; // told of the quantity
        const double system = entered_.Absolute(Val(value));
        const std::string text = "value " + NumberText(system);
        if (!IsValidValue(LimitCode(quantity_.code), system))
            invalid_.Add(row, text + " is not valid");
        else if (!IsPlausible(quantity_.code, system))
            suspicious_.Add(row, text + " is suspicious");
    }
    void Tell(const std::string& name, Remarks& remarks) const {
        for (const RowTally* tally : {&noNumber_, &noUncertainty_, &invalid_})
            if (!tally->IsEmpty()) remarks.Error(name + ": " + tally->Text());
        if (!suspicious_.IsEmpty()) remarks.Warn(name + ": " + suspicious_.Text());
    }

private:
    const BioQuantity& quantity_;
    std::size_t place_;
    UnitConversion entered_; // looked up once for all rows
    bool mayBeEmpty_;        // of several properties a row need not have all
    RowTally noNumber_, noUncertainty_, invalid_, suspicious_;
};

void CheckConstraint(const BioSet& set, const BioQuantity& quantity, const std::string& name,
                     Remarks& remarks) {
    if (!IsNumeric(quantity.value))
        return remarks.Error(name + ": this is no number: " + OrPlaceholder(quantity.value));
    const UnitConversion entered = set.ConversionOf(quantity);
    if (entered.IsPossible())
        CheckLimits(quantity, entered.Absolute(Val(quantity.value)), name, remarks);
}

void CheckQuantity(const BioSet& set, std::size_t place, const std::string& name,
                   Remarks& remarks) {
    constexpr const char* words[] = {"property", "variable", "constraint"};
    const BioQuantity& quantity = set.Quantities()[place];
    const BioQuantityText* const entry = set.TextOf(quantity);
    if (entry == nullptr)
        return remarks.Error(name + ": unknown " + words[static_cast<int>(quantity.role)] + " " +
                             quantity.code);
    const std::string which = name + ", " + FirstSmall(set.NameOf(quantity));
    if (!set.ConversionOf(quantity).IsPossible())
        remarks.Error(which + ": unknown unit " + quantity.unit);
    if (entry->needsComponent && quantity.component.empty())
        remarks.Error(which + ": no component is stated");
    if (!quantity.component.empty() && !HasKey(set, quantity.component))
        remarks.Error(which + ": component not described: " + quantity.component);
    CheckPhase(quantity.phase, remarks);
    const bool isConstraint = quantity.role == BioRole::Constraint;
    const bool mayStand = quantity.uncertainty.empty() || IsUncertainty(quantity.uncertainty) ||
                          (quantity.StatesByRow() && !isConstraint);
    if (!mayStand) remarks.Error(which + ": this is no uncertainty: " + quantity.uncertainty);
    if (place < set.recU.size() && set.recU[place].HasUnmarked())
        remarks.Warn(which + ": a figure of uncertainty has no mark and is not exported");
    if (isConstraint) return CheckConstraint(set, quantity, which, remarks);
    ColumnCheck column(set, place);
    for (std::size_t row = 0; row < set.recD.size(); ++row)
        column.Row(row + 1, set.recD[row]);
    column.Tell(which, remarks);
}

/// What fixes an apparent equilibrium or a transition has to be known to use it.
void AdviseOnSolution(const BioSet& set, const std::string& name, Remarks& remarks) {
    const auto isStated = [&set](std::initializer_list<std::string_view> codes) {
        return std::ranges::any_of(set.Quantities(), [&](const BioQuantity& quantity) {
            return std::ranges::find(codes, quantity.code) != codes.end();
        });
    };
    if (!isStated({"T", "T12", "Tp", "T0"})) remarks.Hint(name + ": no temperature is stated");
    if (!isStated({"pH", "pHs"})) remarks.Hint(name + ": no pH is stated");
    if (!isStated({"Ic", "Im"})) remarks.Hint(name + ": no ionic strength is stated");
}

/// What all bio sets are checked for.
void CheckBioSet(const BioSet& set, const std::string& name, Remarks& remarks) {
    CheckComponents(set, name, remarks);
    if (set.CountOf(BioRole::Property) == 0) remarks.Error(name + ": no property is stated");
    if (!set.Check()) remarks.Error(name + ": rows and statements do not fit the quantities");
    for (std::size_t place = 0; place < set.Quantities().size(); ++place)
        CheckQuantity(set, place, name, remarks);
    if (set.recD.empty()) remarks.Warn(name + ": the data set has no rows");
    if (IsBlankField(set.Method)) remarks.Warn(name + ": no method is stated");
    if (!set.recD.empty() && !StatesUncertainty(set))
        remarks.Hint(name + ": no uncertainty is stated");
}

std::string Signed(double charge) {
    return (charge > 0 ? "+" : "") + NumberText(charge);
}

/// Reactants and products, added up by their coefficients.
std::pair<double, double> ChargesOf(const clsBR& set) {
    std::pair<double, double> charges;
    for (const BioParticipant& participant : set.Participants) {
        const auto compound = set.CompoundOf(participant.RN);
        if (!compound || !IsNumeric(participant.coefficient)) continue;
        const double coefficient = Val(participant.coefficient);
        (coefficient < 0 ? charges.first : charges.second) +=
            (coefficient < 0 ? -coefficient : coefficient) * compound->Charge;
    }
    return charges;
}

/// In biochemical notation hydrogen and charge are free; that one is meant, where only they fail.
void CheckChemicalBalance(const clsBR& set, const std::string& name, Remarks& remarks) {
    const auto balances = ElementBalances(set.Formulas(), set.Coefficients());
    const SurplusTexts surplus = SurplusOf(balances);
    const bool isHydrogenOnly = std::ranges::all_of(balances, [](const ElementBalance& element) {
        return element.symbol == "H" || element.IsEven();
    });
    std::string words;
    if (!surplus.reactants.empty()) words += "; reactants have left over " + surplus.reactants;
    if (!surplus.products.empty()) words += "; products have left over " + surplus.products;
    if (!words.empty() && isHydrogenOnly)
        remarks.Warn(name + ": hydrogen is not balanced in chemical notation" + words);
    else if (!words.empty())
        remarks.Error(name + ": the reaction is not balanced" + words);
    const auto [before, after] = ChargesOf(set);
    if (before != after)
        remarks.Warn(name + ": charge is not balanced in chemical notation; reactants have " +
                     Signed(before) + ", products " + Signed(after));
}

/// Says whether the balance can be weighed: all formulas and coefficients are known.
bool CheckParticipant(const clsBR& set, const BioParticipant& participant, const std::string& name,
                      Remarks& remarks) {
    const auto compound = set.CompoundOf(participant.RN);
    const std::string who = set.CompoundName(participant.RN);
    if (!compound) remarks.Error(name + ": participant not described: " + participant.RN);
    CheckSampleOf(compound, participant.SMPNM, name, remarks);
    const bool isNumber = IsNumeric(participant.coefficient) && Val(participant.coefficient) != 0;
    if (IsBlankField(participant.coefficient))
        remarks.Warn(name + ": no coefficient of " + who + " is stated");
    else if (!isNumber)
        remarks.Error(name + ": " + who +
                      " has an invalid coefficient: " + participant.coefficient);
    if (IsBlankField(participant.phase)) remarks.Warn(name + ": no phase of " + who + " is stated");
    CheckPhase(participant.phase, remarks);
    const bool hasFormula = compound && !compound->Formula.empty();
    if (compound && !hasFormula) remarks.Warn(name + ": the formula of " + who + " is not known");
    return hasFormula && isNumber;
}

void CheckStates(const clsBP& set, const std::string& name, Remarks& remarks) {
    if (IsBlankField(set.State1)) remarks.Error(name + ": no initial state is stated");
    if (IsBlankField(set.State2)) remarks.Error(name + ": no final state is stated");
    if (!IsBlankField(set.State1) && set.State1 == set.State2)
        remarks.Error(name + ": the final state is the initial one: " + set.State1);
}

/// A phase takes part once.
void CheckPhasesOfHydrate(const clsBP& set, const std::string& name, Remarks& remarks) {
    std::set<std::string> found;
    for (const std::string& phase : {set.PHASE1, set.PHASE2, set.PHASE3, set.PHASE4})
        if (!IsBlankField(phase) && !found.insert(phase).second)
            remarks.Error(name + ": a phase stands twice: " + PhaseName(phase));
    if (found.empty()) remarks.Error("No phase is given");
}

} // namespace

void CheckBioReaction(const clsBR& set, Findings& findings) {
    Remarks remarks(findings, set);
    const std::string name = set.ShowKey();
    bool isWeighable = !set.Participants.empty();
    if (!isWeighable) remarks.Error(name + ": no participant is stated");
    bool hasSample = false;
    for (const BioParticipant& participant : set.Participants) {
        isWeighable = CheckParticipant(set, participant, name, remarks) && isWeighable;
        hasSample = hasSample || !participant.SMPNM.empty();
    }
    if (!set.Participants.empty() && !hasSample)
        remarks.Warn(name + ": no participant has a sample");
    if (set.Notation && isWeighable) CheckChemicalBalance(set, name, remarks);
    CheckBioSet(set, name, remarks);
    AdviseOnSolution(set, name, remarks);
}

void CheckBioProperty(const clsBP& set, Findings& findings) {
    Remarks remarks(findings, set);
    const std::string name = set.ShowKey();
    if (!IsOneOf(set.PrpType, {"D", "S", "G"}))
        return remarks.Error(name + ": unknown kind of bio property " + set.PrpType);
    for (const std::string& phase : {set.PHASE1, set.PHASE2, set.PHASE3, set.PHASE4})
        CheckPhase(phase, remarks);
    const bool isHydrate = set.PrpType == "G";
    const auto substance = isHydrate ? nullptr : set.CompoundOf(set.RN);
    if (!isHydrate && !substance)
        remarks.Error(name + ": substance not described: " + OrPlaceholder(set.RN));
    CheckSampleOf(substance, set.SMPNM, name, remarks);
    if (set.PrpType == "D") CheckStates(set, name, remarks);
    if (isHydrate) CheckPhasesOfHydrate(set, name, remarks);
    CheckBioSet(set, name, remarks);
    if (!isHydrate) AdviseOnSolution(set, name, remarks);
}

} // namespace vexora
