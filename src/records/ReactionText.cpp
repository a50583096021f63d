#include "records/ReactionText.h"

#include "chem/clsAtom.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

namespace {

bool IsProduct(const EquationTerm& term) {
    return IsNumeric(term.coefficient) && Val(term.coefficient) > 0;
}

/// The figure as typed, without its sign.
std::string Unsigned(std::string_view coefficient) {
    coefficient = Trim(coefficient);
    if (coefficient.starts_with('-') || coefficient.starts_with('+')) coefficient.remove_prefix(1);
    return std::string(coefficient);
}

std::string TermText(const EquationTerm& term) {
    const bool hasFigure = IsNumeric(term.coefficient) && Val(Unsigned(term.coefficient)) != 1;
    return (hasFigure ? Unsigned(term.coefficient) + " " : std::string()) + term.name +
           (term.phase.empty() ? "" : " (" + term.phase + ")");
}

} // namespace

std::string EquationText(const std::vector<EquationTerm>& terms) {
    if (terms.empty()) return {};
    std::string reactants, products;
    for (const EquationTerm& term : terms) {
        std::string& side = IsProduct(term) ? products : reactants;
        side += (side.empty() ? "" : " + ") + TermText(term);
    }
    return reactants + " = " + products;
}

std::string FormulaEquation(const std::vector<EquationTerm>& terms) {
    std::string reactants, products;
    for (const EquationTerm& term : terms) {
        if (!IsNumeric(term.coefficient)) continue;
        const bool isProduct = IsProduct(term);
        std::string& side = isProduct ? products : reactants;
        side +=
            (isProduct ? (side.empty() ? "" : "+") : "-") + Unsigned(term.coefficient) + term.name;
    }
    return Replace(reactants + "=" + products, " ", "");
}

bool OnlyCHNO(std::string_view formulaEquation) {
    return formulaEquation.find_first_not_of("CHNO0123456789+-=.") == formulaEquation.npos;
}

bool HoldsPClBr(const std::vector<std::string>& formulas) {
    return std::ranges::any_of(formulas, [](const std::string& formula) {
        clsAtom atoms;
        atoms.Build(Trim(formula));
        for (const clsAtom* atom = &atoms; atom; atom = atom->nextAtom.get())
            if (IsOneOf(atom->Symbol, {"I", "Br", "Cl", "P"})) return true;
        return false;
    });
}

ParticipantCode ParticipantCodeOf(std::string_view code) {
    const char last = code.empty() ? '\0' : code.back();
    const std::string_view stem = code.substr(0, code.size() - (code.empty() ? 0 : 1));
    if (last < '1' || last > '8' || !IsOneOf(stem, {"X", "XI"})) return {std::string(code), 0};
    return {std::string(stem), last - '0'};
}

} // namespace vexora
