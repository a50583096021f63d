#include "chem/Balancer.h"

#include "chem/clsAtom.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <utility>

namespace vexora {

namespace {

using Integer = boost::multiprecision::cpp_int;
using Fraction = boost::multiprecision::cpp_rational;

constexpr std::size_t MostElements = 8;

bool IsUsed(std::string_view formula) {
    return !IsBlankField(formula) && formula != "None";
}

const std::string& TextAt(const SlotTexts& texts, std::size_t slot) {
    static const std::string none;
    return slot < texts.size() ? texts[slot] : none;
}

bool IsCoefficient(const std::string& text) {
    return IsNumeric(text) && Val(text) != 0;
}

// Numbers as they are shown: a count of 0.592 means 592/1000, not the double next to it.

Integer PowerOfTen(int exponent) {
    return pow(Integer(10), static_cast<unsigned>(exponent));
}

/// A number as its digits and the power of ten that they are to be divided by (negative:
/// multiplied).
struct Decimal {
    Integer digits;
    int places = 0;
};

Decimal DecimalOf(double value) {
    const std::string text = NumberText(value);
    const std::size_t end = std::min(text.find_first_of("eE"), text.size());
    std::string digits = text.substr(0, end);
    const std::size_t point = digits.find('.');
    int places = 0;
    if (point != std::string::npos) {
        places = static_cast<int>(digits.size() - point - 1);
        digits.erase(point, 1);
    }
    if (end < text.size()) places -= std::atoi(text.c_str() + end + 1);
    const bool isNegative = digits.starts_with('-');
    digits.erase(0, std::min(digits.find_first_of("123456789"), digits.size()));
    const Integer size(digits.empty() ? "0" : digits);
    return {isNegative ? Integer(-size) : size, places};
}

Integer Scaled(const Decimal& number, int places) {
    return number.digits * PowerOfTen(std::max(0, places - number.places));
}

Fraction FractionOf(double value) {
    const Decimal number = DecimalOf(value);
    return Fraction(Scaled(number, 0)) / Fraction(PowerOfTen(std::max(0, number.places)));
}

/// Plain decimals with up to 15 significant digits, rounded half away from zero; zeros at the end
/// are cut.
std::string TextOf(const Fraction& value) {
    constexpr int mostDigits = 15;
    if (value == 0) return "0";
    const Integer above = abs(numerator(value)), below = denominator(value);
    const auto length = [](const Integer& number) { return static_cast<int>(number.str().size()); };
    int places = mostDigits - (length(above) - length(below)); // or one too many
    const auto rounded = [&] {
        const Integer top = above * PowerOfTen(std::max(0, places)) * 2;
        const Integer bottom = below * PowerOfTen(std::max(0, -places));
        return Integer((top + bottom) / (bottom * 2));
    };
    Integer digits = rounded();
    while (length(digits) > mostDigits) {
        --places;
        digits = rounded();
    }
    std::string text = digits.str();
    if (places <= 0) {
        text.append(static_cast<std::size_t>(-places), '0');
    } else {
        const auto behind = static_cast<std::size_t>(places);
        if (text.size() <= behind) text.insert(0, behind + 1 - text.size(), '0');
        text.insert(text.size() - behind, ".");
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) text.pop_back();
    }
    return value < 0 ? "-" + text : text;
}

// The participants.

struct Participant {
    std::size_t slot = 0;
    clsAtom atoms;
    std::string coefficient;
};

bool IsFormula(const clsAtom& atoms) {
    return !atoms.Formula().empty();
}

/// Those of the used slots, in their order.
std::vector<Participant> ParticipantsOf(const SlotTexts& formulas, const SlotTexts& coefficients) {
    std::vector<Participant> participants;
    for (std::size_t slot = 0; slot < formulas.size(); ++slot) {
        const std::string_view formula = Trim(formulas[slot]);
        if (!IsUsed(formula)) continue;
        Participant participant{slot, {}, TextAt(coefficients, slot)};
        participant.atoms.Build(formula);
        participants.push_back(std::move(participant));
    }
    return participants;
}

template <class Visit>
void ForEachAtom(const clsAtom& atoms, Visit visit) {
    if (!IsFormula(atoms)) return;
    for (const clsAtom* atom = &atoms; atom; atom = atom->nextAtom.get())
        visit(*atom);
}

// The linear system.

/// Coefficients of the unknowns, the right side last.
using Row = std::vector<Integer>;

struct Element {
    std::string symbol;
    std::vector<Decimal> counts; // by participant
};

std::vector<Element> ElementsOf(const std::vector<Participant>& participants) {
    std::vector<Element> elements;
    for (std::size_t n = 0; n < participants.size(); ++n) {
        ForEachAtom(participants[n].atoms, [&](const clsAtom& atom) {
            auto at = std::ranges::find(elements, atom.Symbol, &Element::symbol);
            if (at == elements.end())
                at = elements.insert(at, {atom.Symbol, std::vector<Decimal>(participants.size())});
            at->counts[n] = DecimalOf(atom.Count);
        });
    }
    return elements;
}

/// What an element asks for: no atom comes or goes. Counts with decimals are multiplied up.
Row RowOf(const Element& element) {
    int places = 0;
    for (const Decimal& count : element.counts)
        places = std::max(places, count.places);
    Row row;
    for (const Decimal& count : element.counts)
        row.push_back(Scaled(count, places));
    row.emplace_back(0);
    return row;
}

void Reduce(Row& row) {
    Integer divisor = 0;
    for (const Integer& entry : row) {
        divisor = gcd(divisor, entry);
        if (divisor == 1) return;
    }
    if (divisor == 0) return;
    for (Integer& entry : row)
        entry /= divisor;
}

/// Takes so much of the pivot row off a row that it has nothing left in this column.
void Eliminate(Row& row, const Row& pivot, std::size_t column) {
    if (row[column] == 0) return;
    const Integer common = gcd(row[column], pivot[column]);
    const Integer ofRow = pivot[column] / common, ofPivot = row[column] / common;
    for (std::size_t k = 0; k < row.size(); ++k)
        row[k] = ofRow * row[k] - ofPivot * pivot[k];
    Reduce(row);
}

struct Solution {
    BalanceOutcome outcome = BalanceOutcome::Failed;
    std::vector<Fraction> values;
};

/// A system that contradicts itself is told before one that leaves something open: it can be both.
Solution Solve(std::vector<Row> rows, std::size_t unknowns) {
    std::size_t rank = 0;
    bool hasFree = false;
    for (std::size_t column = 0; column < unknowns; ++column) {
        std::size_t pivot = rank;
        while (pivot < rows.size() && rows[pivot][column] == 0)
            ++pivot;
        if (pivot == rows.size()) {
            hasFree = true;
            continue;
        }
        std::swap(rows[rank], rows[pivot]);
        for (std::size_t below = rank + 1; below < rows.size(); ++below)
            Eliminate(rows[below], rows[rank], column);
        ++rank;
    }
    for (std::size_t left = rank; left < rows.size(); ++left)
        if (rows[left].back() != 0) return {BalanceOutcome::Unable, {}};
    if (hasFree) return {BalanceOutcome::Ambiguous, {}};
    for (std::size_t n = unknowns; n-- > 0;)
        for (std::size_t above = 0; above < n; ++above)
            Eliminate(rows[above], rows[n], n);
    Solution solution{BalanceOutcome::Balanced, {}};
    for (std::size_t n = 0; n < unknowns; ++n)
        solution.values.emplace_back(Fraction(rows[n].back()) / Fraction(rows[n][n]));
    return solution;
}

/// The factor that makes whole numbers of all without a common divisor; 1 when a denominator is too
/// large for anybody to mean it.
Fraction FactorToWhole(const std::vector<Fraction>& values) {
    constexpr int largestDenominator = 1000;
    Integer multiple = 1, divisor = 0;
    for (const Fraction& value : values)
        multiple = lcm(multiple, denominator(value));
    if (multiple > largestDenominator) return 1;
    for (const Fraction& value : values)
        divisor = gcd(divisor, Integer(numerator(value) * (multiple / denominator(value))));
    return divisor == 0 ? Fraction(1) : Fraction(multiple) / Fraction(divisor);
}

/// Which participant fixes the scale, and by what.
struct Anchor {
    std::size_t participant = 0;
    int sign = -1;
    Fraction size = 1;
};

Anchor AnchorOf(const std::vector<Participant>& participants) {
    const auto typed = std::ranges::find_if(
        participants, [](const Participant& one) { return IsCoefficient(one.coefficient); });
    if (typed == participants.end()) return {};
    const double value = Val(typed->coefficient);
    return {static_cast<std::size_t>(typed - participants.begin()), value < 0 ? -1 : 1,
            FractionOf(std::abs(value))};
}

bool StaysAsTyped(const std::vector<Participant>& participants, const SlotTexts& formulas,
                  const SlotTexts& coefficients) {
    return std::ranges::all_of(
               participants,
               [](const Participant& one) { return IsCoefficient(one.coefficient); }) &&
           IsBalanced(formulas, coefficients);
}

Solution SolutionOf(const std::vector<Participant>& participants, const Anchor& anchor) {
    const std::vector<Element> elements = ElementsOf(participants);
    if (elements.size() > MostElements) return {};
    std::vector<Row> rows(1, Row(participants.size() + 1));
    rows[0][anchor.participant] = 1;
    rows[0].back() = anchor.sign;
    for (const Element& element : elements)
        rows.push_back(RowOf(element));
    return Solve(std::move(rows), participants.size());
}

} // namespace

BalanceResult Balance(const SlotTexts& formulas, const SlotTexts& coefficients,
                      BalanceScale scale) {
    const std::vector<Participant> participants = ParticipantsOf(formulas, coefficients);
    const bool areFormulas = std::ranges::all_of(
        participants, [](const Participant& one) { return IsFormula(one.atoms); });
    if (participants.size() < 2 || !areFormulas) return {};
    BalanceResult result{BalanceOutcome::Balanced, SlotTexts(formulas.size())};
    if (scale == BalanceScale::AsTyped && StaysAsTyped(participants, formulas, coefficients)) {
        for (const Participant& one : participants)
            result.coefficients[one.slot] = one.coefficient;
        return result;
    }
    const Anchor anchor = AnchorOf(participants);
    const Solution solution = SolutionOf(participants, anchor);
    if (solution.outcome != BalanceOutcome::Balanced) return {solution.outcome, {}};
    const Fraction factor =
        scale == BalanceScale::AsTyped ? anchor.size : FactorToWhole(solution.values);
    for (std::size_t n = 0; n < participants.size(); ++n)
        result.coefficients[participants[n].slot] = TextOf(Fraction(solution.values[n] * factor));
    // Such figures as nobody types may leave the range of numbers.
    return IsBalanced(formulas, result.coefficients) ? result : BalanceResult();
}

bool ElementBalance::IsEven() const {
    // Coefficients have 15 digits: a third three times is not quite one.
    constexpr double tolerance = 1e-9;
    return std::abs(surplus) <= tolerance * total && std::isfinite(total);
}

std::vector<ElementBalance> ElementBalances(const SlotTexts& formulas,
                                            const SlotTexts& coefficients) {
    std::vector<ElementBalance> balances;
    for (const Participant& one : ParticipantsOf(formulas, coefficients)) {
        const double coefficient = IsNumeric(one.coefficient) ? Val(one.coefficient) : 0;
        ForEachAtom(one.atoms, [&](const clsAtom& atom) {
            auto at = std::ranges::find(balances, atom.Symbol, &ElementBalance::symbol);
            if (at == balances.end()) at = balances.insert(at, {atom.Symbol});
            at->surplus += coefficient * atom.Count;
            at->total += std::abs(coefficient * atom.Count);
        });
    }
    return balances;
}

bool IsBalanced(const SlotTexts& formulas, const SlotTexts& coefficients) {
    const std::vector<Participant> participants = ParticipantsOf(formulas, coefficients);
    const bool areComplete = std::ranges::all_of(participants, [](const Participant& one) {
        return IsFormula(one.atoms) && IsNumeric(one.coefficient);
    });
    return areComplete && !participants.empty() &&
           std::ranges::all_of(ElementBalances(formulas, coefficients), &ElementBalance::IsEven);
}

SurplusTexts SurplusOf(const std::vector<ElementBalance>& balances) {
    SurplusTexts texts;
    for (const ElementBalance& element : balances) {
        if (element.IsEven()) continue;
        std::string& side = element.surplus < 0 ? texts.reactants : texts.products;
        constexpr int shownDigits = 6; // a hint, not a figure to go on with
        side += (side.empty() ? "" : ", ") + element.symbol + " " +
                NumberText(Val(FormatValue(std::abs(element.surplus), shownDigits)));
    }
    return texts;
}

} // namespace vexora
