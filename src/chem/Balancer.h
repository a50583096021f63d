// Balancing of a reaction by the elements of its participants. Reactants have negative
// coefficients, products positive ones.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A text for each participant slot.
using SlotTexts = std::vector<std::string>;

/// AsTyped keeps the scale of the first coefficient that was typed; WholeNumbers gives the smallest
/// whole numbers, unless a denominator above 1000 is needed.
enum class BalanceScale { AsTyped, WholeNumbers };

/// Failed: fewer than two participants, more than eight elements, or a text that is no formula.
enum class BalanceOutcome { Balanced, Unable, Ambiguous, Failed };

struct BalanceResult {
    BalanceOutcome outcome = BalanceOutcome::Failed;
    /// In the slots of the formulas, empty in unused ones; "0" of a participant that takes no part.
    SlotTexts coefficients;
};

/// The coefficients that balance the reaction. An unused slot has the formula "", "&" or "None".
/// The first numeric coefficient that is not 0 fixes the scale, and the first participant with -1
/// when there is none; the others are found anew. Coefficients that balance already stay as typed.
///
/// Exact: a linear system in unbounded integers, each row with its common divisor taken out. In
/// doubles the counts of proteins drown the hydrogen that decides.
BalanceResult Balance(const SlotTexts& formulas, const SlotTexts& coefficients,
                      BalanceScale scale = BalanceScale::AsTyped);

/// What a reaction makes of an element: atoms of its products less those of its reactants, and all
/// of them added up.
struct ElementBalance {
    std::string symbol;
    double surplus = 0;
    double total = 0;

    /// Nothing is left over that rounded coefficients do not explain.
    bool IsEven() const;
};

/// The elements in the order in which the formulas name them. A slot whose coefficient is no number
/// counts nothing, and neither does a text that is no formula.
std::vector<ElementBalance> ElementBalances(const SlotTexts& formulas,
                                            const SlotTexts& coefficients);

/// Every used slot has a numeric coefficient, and every element is even. False for a text that is
/// no formula, and for a reaction without participants.
bool IsBalanced(const SlotTexts& formulas, const SlotTexts& coefficients);

/// What the reactants have left over, and what the products have: "C 2, O 1", empty for nothing.
struct SurplusTexts {
    std::string reactants, products;
};
SurplusTexts SurplusOf(const std::vector<ElementBalance>& balances);

} // namespace vexora
