#include "chem/Balancer.h"

#include "reference/Numbers.h"
#include "reference/Text.h"
#include "support/DocumentFixture.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <array>
#include <optional>
#include <random>

namespace vexora {
namespace {

using Balancing = test::DocumentFixture;

/// The coefficients in one text, or why there are none.
std::string TextOf(const BalanceResult& result) {
    switch (result.outcome) {
    case BalanceOutcome::Unable:
        return "unable";
    case BalanceOutcome::Ambiguous:
        return "ambiguous";
    case BalanceOutcome::Failed:
        return "failed";
    default:
        break;
    }
    std::string text;
    for (const std::string& coefficient : result.coefficients)
        text += (text.empty() ? "" : " ") + (coefficient.empty() ? "_" : coefficient);
    return text;
}

TEST_F(Balancing, ReactionsGetTheirCoefficients) {
    const struct {
        const char *formulas, *typed, *asTyped, *whole;
    } cases[] = {
        {"C3H8 O2 CO2 H2O", "", "-1 -5 3 4", "-1 -5 3 4"},
        {"C3H8 O2 CO2 H2O", "& & 1", "-0.333333333333333 -1.66666666666667 1 1.33333333333333",
         "-1 -5 3 4"},
        // What balances stays as it was typed, another coefficient is found anew.
        {"C3H8 O2 CO2 H2O", "-0.333333333333333 -1.66666666666667 1.0 1.33333333333333",
         "-0.333333333333333 -1.66666666666667 1.0 1.33333333333333", "-1 -5 3 4"},
        {"C3H8 O2 CO2 H2O", "-2. 7 8 9", "-2 -10 6 8", "-1 -5 3 4"},
        {"CH4 O2 N2 CO2 H2O", "-1 -2 0 1 2", "-1 -2 0 1 2", "-1 -2 0 1 2"},
        // Unused slots stay empty wherever they stand.
        {"& C3H8 None O2 CO2 & H2O", "& x 5 0", "_ -1 _ -5 3 _ 4", "_ -1 _ -5 3 _ 4"},
        {"C6H12O6 C2H6O CO2", "", "-1 2 2", "-1 2 2"},
        {"KMnO4 HCl KCl MnCl2 H2O Cl2", "", "-1 -8 1 1 4 2.5", "-2 -16 2 2 8 5"},
        {"C10H16N5O13P3 H2O C10H15N5O10P2 H3PO4", "", "-1 -1 1 1", "-1 -1 1 1"},
        {"CH4 O2 N2 CO2 H2O", "", "-1 -2 0 1 2", "-1 -2 0 1 2"},
        {"C254H377N65O75S6 O2 N2 H2O H2SO4 CO2", "", "-1 -319.75 32.5 182.5 6 254",
         "-4 -1279 130 730 24 1016"},
        {"(CH4)1(H2O)5.75 CH4 H2O", "", "-1 1 5.75", "-4 4 23"},
        {"(CH4)0.148(H2O)0.852 CH4 H2O", "", "-1 0.148 0.852", "-250 37 213"},
        {"(CH4)0.1481(H2O)0.8519 CH4 H2O", "", "-1 0.1481 0.8519", "-1 0.1481 0.8519"},
        {"NaH DCl NaCl HD", "", "-1 -1 1 1", "-1 -1 1 1"},
        {"{R}OH {R}2O H2O", "1e-3", "0.001 -0.0005 -0.0005", "2 -1 -1"},
        {"H2 H", "1E+20", "100000000000000000000 -200000000000000000000", "1 -2"},
        {"CH4 O2 CO2", "", "unable", "unable"},
        {"C O2 CO CO2", "", "ambiguous", "ambiguous"},
        {"KMnO4 H2O2 H2SO4 MnSO4 O2 H2O K2SO4", "", "ambiguous", "ambiguous"},
        {"C4H10 C4H10 O2 CO2 H2O", "", "ambiguous", "ambiguous"},
        {"K4Fe(CN)6 KMnO4 H2SO4 KHSO4 Fe2(SO4)3 MnSO4 HNO3 CO2", "", "unable", "unable"},
        {"H2O & None", "", "failed", "failed"},
        {"H2O Xx2", "", "failed", "failed"},
        {"CHNOPSClBr HI", "", "failed", "failed"},
    };
    for (const auto& one : cases) {
        const SlotTexts formulas = Split(one.formulas, ' '), typed = Split(one.typed, ' ');
        EXPECT_EQ(TextOf(Balance(formulas, typed)), one.asTyped) << one.formulas;
        EXPECT_EQ(TextOf(Balance(formulas, typed, BalanceScale::WholeNumbers)), one.whole)
            << one.formulas;
    }
}

TEST_F(Balancing, WhatIsLeftOverIsToldForEachSide) {
    const struct {
        const char *formulas, *typed;
        bool isBalanced;
        const char *reactants, *products;
    } cases[] = {
        {"C3H8 O2 CO2 H2O", "-1 -5 3 4", true, "", ""},
        {"C3H8 O2 & CO2 H2O", "-0.333333333333333 -1.66666666666667 & 1 1.33333333333333", true, "",
         ""},
        {"C3H8 O2 CO2 H2O", "-1 -5 3 4.0001", false, "", "H 0.0002, O 0.0001"},
        {"C3H8 O2 CO2", "-1 -5 4", false, "H 8, O 2", "C 1"},
        {"C3H8 O2 CO2 H2O", "-1 -5 3", false, "H 8, O 4", ""},
        {"H2O Xx", "1 1", false, "", "H 2, O 1"},
        {"& None", "", false, "", ""},
    };
    for (const auto& one : cases) {
        const SlotTexts formulas = Split(one.formulas, ' '), typed = Split(one.typed, ' ');
        EXPECT_EQ(IsBalanced(formulas, typed), one.isBalanced) << one.formulas;
        const SurplusTexts surplus = SurplusOf(ElementBalances(formulas, typed));
        EXPECT_EQ(surplus.reactants, one.reactants) << one.formulas;
        EXPECT_EQ(surplus.products, one.products) << one.formulas;
    }
}

// The same by another way: determinants in wide integers, the columns taken from the last to the
// first, all rows cleared at once.

using Wide = boost::multiprecision::number<boost::multiprecision::cpp_int_backend<
    1024, 1024, boost::multiprecision::signed_magnitude, boost::multiprecision::unchecked, void>>;

constexpr int Thousandths = 1000;
constexpr std::array<const char*, 8> Symbols = {"C", "H", "O", "N", "S", "P", "Cl", "K"};

/// Counts in thousandths by participant and element, and the coefficient that was typed.
struct System {
    std::vector<std::vector<long>> counts;
    std::size_t elements = 1;
    std::size_t anchor = 0;
    long typed = 0; // in thousandths, 0 for none
};

struct Answer {
    std::string outcome; // empty with a solution
    std::vector<Wide> above;
    Wide below = 1;
};

Answer Solve(const System& system) {
    const std::size_t n = system.counts.size();
    std::vector<std::vector<Wide>> rows(system.elements + 1, std::vector<Wide>(n + 1));
    rows[0][system.anchor] = 1000;
    rows[0][n] = system.typed != 0 ? system.typed : -1000;
    for (std::size_t e = 0; e < system.elements; ++e)
        for (std::size_t i = 0; i < n; ++i)
            rows[e + 1][i] = system.counts[i][e];
    Answer answer;
    std::size_t rank = 0;
    std::vector<std::size_t> pivots(n, rows.size());
    for (std::size_t column = n; column-- > 0;) {
        std::size_t pivot = rank;
        while (pivot < rows.size() && rows[pivot][column] == 0)
            ++pivot;
        if (pivot == rows.size()) continue;
        std::swap(rows[rank], rows[pivot]);
        for (std::size_t r = 0; r < rows.size(); ++r) {
            if (r == rank) continue;
            const Wide factor = rows[r][column];
            for (std::size_t k = 0; k <= n; ++k)
                rows[r][k] =
                    (rows[rank][column] * rows[r][k] - factor * rows[rank][k]) / answer.below;
        }
        answer.below = rows[rank][column];
        pivots[column] = rank++;
    }
    for (std::size_t r = rank; r < rows.size(); ++r)
        if (rows[r][n] != 0) return {"unable", {}, 1};
    if (rank < n) return {"ambiguous", {}, 1};
    for (std::size_t i = 0; i < n; ++i)
        answer.above.push_back(rows[pivots[i]][n]);
    return answer;
}

/// The text is the fraction to 15 digits, or to fewer when that is all of it.
bool IsRounded(std::string text, Wide above, Wide below) {
    if (below < 0) {
        below = -below;
        above = -above;
    }
    const bool isNegative = text.starts_with('-');
    if (isNegative != (above < 0)) return false;
    if (isNegative) text.erase(0, 1);
    above = abs(above);
    Wide scale = 1;
    if (const std::size_t point = text.find('.'); point != text.npos) {
        if (text.ends_with('0')) return false;
        for (std::size_t i = point + 1; i < text.size(); ++i)
            scale *= 10;
        text.erase(point, 1);
    }
    const std::size_t first = text.find_first_not_of('0');
    if (first == text.npos) return above == 0;
    text.erase(0, first);
    const Wide difference = abs(Wide(above * scale - below * Wide(text)));
    if (difference == 0) return true;
    // Zeros that were cut at the end count among the digits.
    Wide value(text);
    for (std::size_t length = text.size(); length < 15; ++length)
        scale *= 10, value *= 10;
    return text.size() <= 15 && 2 * abs(Wide(above * scale - below * value)) <= below;
}

class RandomSystems {
public:
    explicit RandomSystems(unsigned seed) : engine_(seed) {}

    System Next(bool builtToBalance) {
        System system;
        system.elements = static_cast<std::size_t>(Between(1, 8));
        const auto participants = static_cast<std::size_t>(Between(2, 8));
        const bool hasDecimals = Between(0, 1) == 1;
        for (std::size_t i = 0; i < participants; ++i) {
            auto& counts = system.counts.emplace_back();
            for (std::size_t e = 0; e < system.elements; ++e)
                counts.push_back(Count(hasDecimals));
        }
        if (builtToBalance) MakeBalance(system);
        for (auto& counts : system.counts)
            if (std::ranges::all_of(counts, [](long count) { return count == 0; }))
                counts[0] = Thousandths; // a formula needs an element
        if (Between(0, 2) == 0) {
            system.anchor =
                static_cast<std::size_t>(Between(0, static_cast<long>(participants) - 1));
            system.typed = Between(1, 20'000) * (Between(0, 1) == 0 ? -1 : 1);
        }
        return system;
    }

private:
    long Between(long low, long high) {
        return std::uniform_int_distribution<long>(low, high)(engine_);
    }
    long Count(bool hasDecimals) {
        if (Between(0, 2) == 0) return 0;
        const long most = Between(0, 1) == 0 ? 12 : 20'000;
        return hasDecimals ? Between(1, most * Thousandths) : Between(1, most) * Thousandths;
    }
    /// The products share the atoms of the reactants out, the last one takes the rest.
    void MakeBalance(System& system) {
        const auto participants = static_cast<long>(system.counts.size());
        const long reactants = Between(1, participants - 1);
        std::vector<long> times;
        for (long i = 0; i < participants; ++i)
            times.push_back(i + 1 == participants ? 1 : Between(1, 9));
        for (std::size_t e = 0; e < system.elements; ++e) {
            long left = 0;
            for (long i = 0; i < participants; ++i) {
                const auto at = static_cast<std::size_t>(i);
                long& count = system.counts[at][e];
                if (i < reactants) {
                    left += count * times[at];
                    continue;
                }
                if (i + 1 == participants)
                    count = left;
                else if (count != 0)
                    count = Between(0, left / times[at] / Thousandths) * Thousandths;
                left -= count * times[at];
            }
        }
    }

    std::mt19937 engine_;
};

std::string InThousandths(long number) {
    return NumberText(static_cast<double>(number) / Thousandths);
}

SlotTexts FormulasOf(const System& system) {
    SlotTexts formulas;
    for (const auto& counts : system.counts) {
        std::string& formula = formulas.emplace_back();
        for (std::size_t e = 0; e < counts.size(); ++e)
            if (counts[e] != 0) formula += Symbols[e] + InThousandths(counts[e]);
    }
    return formulas;
}

TEST_F(Balancing, RandomSystemsGetTheExactAnswer) {
    constexpr int systems = 20'000;
    RandomSystems random(20261122);
    std::map<std::string, int> outcomes;
    for (int n = 0; n < systems; ++n) {
        const System system = random.Next(n % 3 == 0);
        const SlotTexts formulas = FormulasOf(system);
        SlotTexts typed(formulas.size());
        if (system.typed != 0) typed[system.anchor] = InThousandths(system.typed);
        const BalanceResult result = Balance(formulas, typed);
        const Answer answer = Solve(system);
        ++outcomes[answer.outcome];
        bool isRight = result.outcome == BalanceOutcome::Balanced
                           ? answer.outcome.empty()
                           : TextOf(result) == answer.outcome;
        for (std::size_t i = 0; isRight && i < answer.above.size(); ++i)
            isRight = IsRounded(result.coefficients[i], answer.above[i], answer.below);
        ASSERT_TRUE(isRight) << n << ": " << ::testing::PrintToString(formulas) << " typed "
                             << ::testing::PrintToString(typed) << " gives " << TextOf(result)
                             << " and not " << answer.outcome;
    }
    for (const char* outcome : {"", "unable", "ambiguous"})
        EXPECT_GT(outcomes[outcome], systems / 10) << outcome;
}

} // namespace
} // namespace vexora
