#include "reactions/EquilRules.h"

#include "records/clsE.h"
#include "records/clsQ.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vexora {

namespace {

using enum EquilField;

constexpr const char* Incomplete = "Incomplete data";

/// A draft with what is found in it.
class Checks {
public:
    explicit Checks(const EquilDraft& checked) : draft(checked) {}

    void Completeness();
    void Phases();
    void Constants();
    void Variables();
    void Duplicates();
    void Rest();

    const EquilDraft& draft;
    std::vector<EquilFault> faults;

private:
    void Tell(bool isWrong, EquilField field, std::string text, int index = 0) {
        if (isWrong) faults.push_back({field, std::move(text), index});
    }
};

/// One sample tells of which material the equilibrium was measured.
void Checks::Completeness() {
    const auto& all = draft.participants;
    const auto first = std::ranges::find_if(all, [](const auto& one) { return !one.name.empty(); });
    Tell(!IsNumeric(draft.setNumber), SetNumber, Incomplete);
    Tell(std::ranges::none_of(all, &EquilParticipant::hasCoefficient), Coefficients, Incomplete);
    Tell(std::ranges::none_of(all, &EquilParticipant::hasSample), Sample, Incomplete,
         first == all.end() ? 0 : static_cast<int>(first - all.begin()));
}

void Checks::Phases() {
    for (std::size_t i = 0; i < draft.participants.size(); ++i) {
        const std::string& name = draft.participants[i].name;
        const char digit = static_cast<char>('1' + i);
        const bool isSomewhere = std::ranges::any_of(draft.phases, [digit](const auto& phase) {
            return phase.participants.find(digit) != std::string::npos;
        });
        Tell(!name.empty() && !isSomewhere, Participant, name + " is not associated with any phase",
             static_cast<int>(i));
    }
    Tell(std::ranges::all_of(draft.phases, [](const auto& phase) { return phase.code.empty(); }),
         Phase, "At least one phase should be specified");
}

void Checks::Constants() {
    int index = 0;
    for (const EquilQuantity& one : draft.constants)
        Tell(!one.code.empty() && !IsNumeric(one.value), ConstantValue,
             "Enter the constant variable value", index++);
}

void Checks::Variables() {
    int index = 0;
    for (const EquilQuantity& one : draft.variables)
        Tell(one.code.empty(), Variable, "Select the independent variable", index++);
    index = 0;
    for (const EquilQuantity& one : draft.variables)
        Tell(one.unit.empty(), VariableUnit, "Select units of the independent variable", index++);
}

void Checks::Duplicates() {
    std::set<std::string> known;
    const auto tellOfKnown = [&](const std::vector<EquilQuantity>& quantities, EquilField field) {
        int index = 0;
        for (const EquilQuantity& one : quantities)
            Tell(!one.code.empty() && !known.insert(one.code).second, field, "Duplicate variable",
                 index++);
    };
    tellOfKnown(draft.variables, Variable);
    tellOfKnown(draft.constants, Constant);
}

void Checks::Rest() {
    Tell(draft.property == "KT" && draft.standardState.empty(), StandardState,
         "Select the standard state for thermodynamic equilibrium constant");
    Tell(draft.saysNumerical && draft.numerical.empty(), Numerical,
         "Select availability of numeric data");
}

} // namespace

std::vector<EquilFault> CheckEquil(const EquilDraft& draft) {
    Checks checks(draft);
    checks.Completeness();
    checks.Phases();
    checks.Constants();
    checks.Variables();
    checks.Duplicates();
    checks.Rest();
    return std::move(checks.faults);
}

std::vector<std::string> EquilPhases() {
    std::vector<std::string> codes;
    for (const std::string& name : PhaseList("Tern")) // those of mixtures of several components
        codes.push_back(PhaseCode(name));
    for (const char* solution : {"S", "S1", "S2"})
        codes.emplace_back(solution);
    return codes;
}

std::vector<std::string> EquilVariables(const clsQ& reaction) {
    std::vector<std::string> codes = {"T", "P"};
    for (const std::string stem : {"X", "XI"})
        for (int i = 1; i <= clsE::Participants; ++i)
            if (!reaction.RN(i).empty()) codes.push_back(stem + std::to_string(i));
    return codes;
}

std::string EquilDigits(const std::string& before, std::string_view shown,
                        std::string_view ticked) {
    const auto has = [](std::string_view digits, char digit) {
        return digits.find(digit) != std::string_view::npos;
    };
    const bool same = std::ranges::all_of(
        shown, [&](char digit) { return has(before, digit) == has(ticked, digit); });
    if (same) return before;
    std::string digits(ticked);
    for (const char digit : before)
        if (!has(shown, digit)) digits += digit;
    return digits;
}

} // namespace vexora
