// How a reaction reads, on the screen and for the questions asked of its elements.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// One participant as an equation shows it. Reactants have negative coefficients.
struct EquationTerm {
    std::string coefficient; // text of a number
    std::string name;        // or a formula
    std::string phase = {};  // in words, empty for none
};

/// "2 hydrogen (Gas) + oxygen (Gas) = 2 water (Liquid)": reactants first, a coefficient of 1 left
/// out. A term whose coefficient is no number stands among the reactants without one, so that an
/// equation can be shown while it is typed. Without terms "".
std::string EquationText(const std::vector<EquationTerm>& terms);

/// "-1C3H8-5O2=3CO2+4H2O": formulas without blanks, the coefficients with their signs. Names would
/// hold letters of elements that are not there. Terms without a number are left out.
std::string FormulaEquation(const std::vector<EquationTerm>& terms);
/// The equation of formulas has no element but carbon, hydrogen, nitrogen and oxygen.
bool OnlyCHNO(std::string_view formulaEquation);
/// Some formula holds iodine, bromine, chlorine or phosphorus.
bool HoldsPClBr(const std::vector<std::string>& formulas);

/// A quantity of one participant: "X3" is the mole fraction of the third.
struct ParticipantCode {
    std::string code;    // as the tables have it, "X"; other codes as they are
    int participant = 0; // 1 to 8, 0 for a quantity of all
};
/// Takes a code of a reaction's variable apart; X and XI bear the digit of their participant.
ParticipantCode ParticipantCodeOf(std::string_view code);

} // namespace vexora
