// The checks of frmMixtVar, in the order in which they are told.

#include "mixtures/MixtVarRules.h"

#include "reference/Conversions.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <utility>

namespace vexora {

namespace {

using enum MixtVarField;

constexpr int MostVariables = 3;
constexpr const char* NoConstraintCount =
    "Select the number of constraints (special conditions like critical, or fixed state variables)";
constexpr const char* Inconsistent =
    "Solvent composition is inconsistent with one variable or property\n";

/// A content in the solvent alone.
bool IsOfSolvent(std::string_view code) {
    return IsComposition(code) && code.ends_with('S');
}

/// A variable or constraint and the list in which it was chosen.
struct Stated {
    const MixtVarQuantity* quantity;
    MixtVarField field;
    int index;
    const std::string& code() const { return quantity->code; }
};

/// A draft with what is found in it.
class Checks {
public:
    explicit Checks(const MixtVarDraft& checked);

    void Method();
    void Counts();
    void Phases();
    void SolventOfExcess();
    void Duplicates();
    void Activity();
    void Samples();
    void Constraints();
    void Variables();
    void Results();
    void ReferenceState();
    void PhasesOfQuantities();
    void SolventAndState();
    void SolventContent();
    void Components();
    void Kinds();
    void UnitByMass();

    const MixtVarDraft& draft;
    std::vector<MixtVarFinding> findings;

private:
    void Tell(bool isWrong, MixtVarField field, std::string text, int index = 0) {
        if (isWrong) findings.push_back({field, std::move(text), index});
    }
    void Ask(bool isOdd, MixtVarField field, std::string text, int index = 0) {
        if (isOdd) findings.push_back({field, std::move(text), index, true});
    }
    void OneConstraint(int index);

    std::vector<Stated> stated_; // constraints, then variables
};

Checks::Checks(const MixtVarDraft& checked) : draft(checked) {
    int index = 0;
    for (const MixtVarQuantity& constraint : draft.constraints)
        stated_.push_back({&constraint, Constraint, index++});
    index = 0;
    for (const MixtVarQuantity& variable : draft.variables)
        stated_.push_back({&variable, Variable, index++});
}

void Checks::Method() {
    const std::vector<MethodRow> methods = MethodsOf(draft.property);
    const bool isKnown =
        IsOneOf(draft.method, {"OTHER", "UNKNOWN"}) ||
        (!draft.method.empty() &&
         std::ranges::find(methods, draft.method, &MethodRow::MethodCode) != methods.end());
    Tell(!isKnown, MixtVarField::Method, "Please select experimental method");
}

void Checks::Counts() {
    const bool isTension = IsOneOf(draft.property, {"IIT", "IST"});
    Tell(draft.phaseCount < 1, PhaseCount, "Select the number of phases in equilibrium");
    Tell(isTension && draft.phaseCount != 2, PhaseCount,
         "Surface/Interfacial tension must involve two phases");
    const int variables = draft.VariableCount();
    const bool isOpen = draft.constraintCount < 0 || variables > MostVariables;
    Tell(isOpen, ConstraintCount, NoConstraintCount);
    Tell(!isOpen && draft.phaseCount > 0 && variables < 1, ConstraintCount,
         "Overdetermined system");
}

void Checks::Phases() {
    int index = 0;
    for (const std::string& phase : draft.phases) {
        Tell(phase.empty(), Phase,
             index == 0 ? "Select the primary phase" : "Select phase " + std::to_string(index + 1),
             index);
        ++index;
    }
}

void Checks::SolventOfExcess() {
    if (!IsExcess(draft.property)) return;
    for (const Stated& one : stated_) {
        Tell(NeedsSolvent(one.code()), one.field,
             "Sorry, composition variables associated with solvent definition are not allowed for "
             "excess properties",
             one.index);
    }
}

/// A content may stand in each phase once; what is of no phase, once.
void Checks::Duplicates() {
    for (std::size_t i = 1; i < draft.phases.size(); ++i) {
        const auto before = draft.phases.begin() + static_cast<std::ptrdiff_t>(i);
        Tell(std::find(draft.phases.begin(), before, draft.phases[i]) != before, Phase,
             "Duplicate phase", static_cast<int>(i));
    }
    const auto isSame = [](const Stated& a, const Stated& b) {
        const bool isOnce = !IsOfOnePhase(a.code()) || a.quantity->phase == b.quantity->phase;
        return a.code() == b.code() && !a.code().empty() && isOnce &&
               !IsOneOf(a.code(), {"VV1", "VVI", "VV2", "DP"});
    };
    // What is measured is neither held nor chosen.
    for (const Stated& one : stated_)
        Tell(one.code() == draft.property && !IsOfOnePhase(one.code()), one.field,
             "Duplicate variable", one.index);
    for (std::size_t i = 0; i < stated_.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            Tell(isSame(stated_[i], stated_[j]), stated_[i].field, "Duplicate variable",
                 stated_[i].index);
}

void Checks::Activity() {
    if (!NeedsStandardState(draft.property)) return;
    const int component = ComponentOf(draft.property);
    const bool isAssociated = std::ranges::any_of(stated_, [&](const Stated& one) {
        return IsComposition(one.code()) && !IsOfSolvent(one.code()) &&
               ComponentOf(one.code()) == component;
    });
    Ask(component > 0 && !isAssociated, Variable,
        "No composition variable is associated with a component activity\nIs that all right?");
}

void Checks::Samples() {
    int index = 0;
    for (const bool has : draft.hasSample)
        Tell(!has, Sample, "Select sample # for component", index++);
}

/// A critical curve is a condition without a figure. A table may have been processed without a
/// constant that its paper does not tell.
void Checks::OneConstraint(int index) {
    const MixtVarQuantity& one = draft.constraints[static_cast<std::size_t>(index)];
    if (one.isUnstated) return;
    const std::string number = std::to_string(index + 1);
    Tell(one.code.empty(), Constraint, "Select constraint", index);
    if (IsCriticalCurve(one.code)) return;
    Tell(one.unit.empty(), ConstraintUnit, "Select units for constraint " + number, index);
    Tell(one.value.empty(), ConstraintValue, "Enter constraint " + number + " value", index);
    Tell(!one.value.empty() && !IsNumeric(one.value), ConstraintValue,
         "Enter valid constraint " + number + " value", index);
}

void Checks::Constraints() {
    for (int i = 0; i < static_cast<int>(draft.constraints.size()); ++i)
        OneConstraint(i);
}

void Checks::Variables() {
    int index = 0;
    for (const MixtVarQuantity& one : draft.variables) {
        Tell(one.code.empty(), Variable, "Select independent variable", index);
        Tell(one.unit.empty(), VariableUnit, "Select units for independent variable", index++);
    }
    const std::string open = OpenSpectralVariable(draft);
    Tell(!open.empty() && !IsNumeric(draft.constant), Constant,
         "Enter a constant value of the state variable " + VariableName(open));
}

/// Energies have no zero of their own.
void Checks::Results() {
    Tell(NeedsPhaseOfSolute(draft.property) && draft.refPhase.empty(), RefPhase,
         "Select the initial phase of solute");
    Tell(draft.function.empty(), Function, "Define Measurement Results");
    Tell(IsOneOf(draft.property, {"UA", "U", "G", "H"}) && draft.function == "DIR", Function,
         "This property should be stored as a difference");
}

void Checks::ReferenceState() {
    if (!NeedsRelation(draft.function)) return;
    const ResultDefinition definition = draft.Definition();
    Tell(draft.relation.empty(), Relation, "Select Relation to the Reference State");
    Tell(NeedsReferencePhase(draft.relation) && draft.refPhase.empty(), RefPhase,
         "Select Reference Phase");
    Tell(definition.FixesTemperature() && !IsNumeric(draft.refTemp), RefTemp,
         "Select Reference Temperature");
    Tell(definition.FixesPressure() && !IsNumeric(draft.refPressure), RefPressure,
         "Select Reference Pressure");
}

void Checks::PhasesOfQuantities() {
    for (const Stated& one : stated_) {
        const std::string of = one.field == Variable ? "variable " : "constraint ";
        Tell(IsOfOnePhase(one.code()) && one.quantity->phase.empty(),
             one.field == Variable ? VariablePhase : ConstraintPhase,
             "Select phase for " + of + std::to_string(one.index + 1), one.index);
    }
}

void Checks::SolventAndState() {
    Tell(draft.solvent.empty() && NeedsSolvent(draft), Solvent,
         "Select the solvent or solvent composition\n"
         "The property or state variables need a solvent definition");
    Tell(!draft.solvent.empty() && IsExcess(draft.property), Solvent,
         "Sorry, solvent definition is not allowed for excess properties");
    Tell(draft.standardState.empty() && NeedsStandardState(draft.property), StandardState,
         "Select the standard state");
}

/// A solute is no part of the solvent; what a content in the solvent speaks of is one of several.
void Checks::SolventContent() {
    const std::vector<int> parts = ComponentsOfSolvent(draft.solvent);
    if (parts.empty()) return;
    const auto has = [&](int n) { return std::ranges::find(parts, n) != parts.end(); };
    std::vector<std::string_view> codes = {draft.property};
    for (const Stated& one : stated_)
        codes.push_back(one.code());
    for (const std::string_view code : codes) {
        Tell(has(SoluteOf(code)), Solvent,
             std::string(Inconsistent) + "It contains a component defined as a solute");
        const bool isMissing = IsOfSolvent(code) && (parts.size() < 2 || !has(ComponentOf(code)));
        Tell(isMissing, Solvent,
             std::string(Inconsistent) + "Or does not contain a specified solvent component");
    }
}

void Checks::Components() {
    // All contents in the solvent are of one, the solvent.
    const auto ofWhat = [](std::string_view code) {
        return IsOfSolvent(code) ? 0 : ComponentOf(code);
    };
    std::vector<std::pair<int, std::string>> contents;
    if (IsComposition(draft.property) && !draft.phases.empty())
        contents.emplace_back(ofWhat(draft.property), draft.phases.front());
    for (const Stated& one : stated_) {
        if (!IsComposition(one.code())) continue;
        const std::pair content{ofWhat(one.code()), one.quantity->phase};
        Tell(std::ranges::find(contents, content) != contents.end(), one.field,
             "Duplicate component content in the same phase", one.index);
        contents.push_back(content);
    }
}

/// Contents in the solvent are of a kind of their own.
void Checks::Kinds() {
    char kinds[2] = {};
    for (const Stated& one : stated_) {
        if (!IsComposition(one.code())) continue;
        char& kind = kinds[IsOfSolvent(one.code()) ? 1 : 0];
        if (kind == '\0') kind = one.code().front();
        if (kind == one.code().front()) continue;
        Ask(true, one.field,
            "Are you sure you want to use composition variables of different types?", one.index);
        return;
    }
}

void Checks::UnitByMass() {
    const bool isOfSolution = IsOneOf(draft.property, {"HSL", "HA", "CPA", "HEX1", "HEX2", "HEX3"});
    Tell(isOfSolution && IsMassBased(draft.unit), MixtVarField::Method,
         "Consider revision of property selection to mass basis or numerical values to mole basis\n"
         "Sorry, this conversion is not supported");
    Tell(draft.numerical.empty(), Numerical, "Select availability of numeric data");
}

} // namespace

std::vector<MixtVarFinding> CheckMixtVar(const MixtVarDraft& draft) {
    Checks checks(draft);
    checks.Method();
    checks.Counts();
    checks.Phases();
    checks.SolventOfExcess();
    checks.Duplicates();
    checks.Activity();
    checks.Samples();
    checks.Constraints();
    checks.Variables();
    checks.Results();
    checks.ReferenceState();
    checks.PhasesOfQuantities();
    checks.SolventAndState();
    checks.SolventContent();
    checks.Components();
    checks.Kinds();
    checks.UnitByMass();
    return std::move(checks.findings);
}

} // namespace vexora
