#include "records/MixtureAdvice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <unordered_map>

#include "records/MixtureWords.h"
#include "records/RowFractions.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

// More than rounding and smoothing leave; the small part is that of adding up.
constexpr double Tolerance = 0.005 + 1e-9;

/// The fractions of one kind in one phase at one state.
struct Parts {
    std::array<std::optional<double>, 4> of; // by component
    std::size_t row = 0;                     // the first that told one
    const clsMV* set = nullptr;
    bool isOfSeveral = false; // told by more than one row
    bool isAtOdds = false;    // one component has two values

    void Take(int component, double value, const clsMV& ofSet, std::size_t ofRow) {
        auto& known = of[static_cast<std::size_t>(component)];
        isAtOdds = isAtOdds || (known && std::abs(*known - value) > Tolerance);
        if (!known) known = value;
        if (set == nullptr) {
            set = &ofSet;
            row = ofRow;
        }
        isOfSeveral = isOfSeveral || set != &ofSet || row != ofRow;
    }
    /// What is wrong with the sum; empty when nothing is, or nobody can tell.
    std::string Fault(int components) const {
        double sum = 0;
        int known = 0;
        for (const auto& one : of) {
            sum += one.value_or(0);
            known += one ? 1 : 0;
        }
        const bool isAll = known == components;
        const bool isTooMuch = known > 1 && sum - 1 > Tolerance;
        const bool isTooLittle = isAll && 1 - sum > Tolerance;
        if (!isTooMuch && !isTooLittle) return {};
        return (isAll ? "sum to " : "of two components sum to ") +
               NumberText(std::round(sum * SumSteps) / SumSteps);
    }

private:
    static constexpr double SumSteps = 1e5; // what is told of a sum
};

/// "mole fractions in the liquid ".
std::string Words(char kind, const clsMV& set, const std::string& phase) {
    const std::string name = kind == 'X' ? "mole" : kind == 'W' ? "mass" : "volume";
    return name + " fractions" + (set.nPhases() > 1 ? InPhase(phase) : std::string()) + " ";
}

std::string PropertyOf(const clsMV& set) {
    return FirstCapital(QuantityInWords(set, 0)) + ": ";
}

/// By kind and phase.
using PartsOfState = std::map<std::pair<char, std::string>, Parts>;

/// What makes tie numbers of two sets mean the same states: the phases and what is constant in all
/// of them.
std::string EquilibriumOf(const clsMV& set) {
    std::vector<std::string> parts = set.Phases();
    for (const HeldConstant& constant : set.Constants())
        if (IsOneOf(constant.code, {"T", "P"}) && IsNumeric(constant.value))
            parts.push_back(
                constant.code +
                KeyOfNumber(set.Conversion(constant.item).Absolute(Val(constant.value))));
    std::ranges::sort(parts);
    std::string all;
    for (const std::string& part : parts)
        all += part + "\n";
    return all;
}

} // namespace

void AdviseOnFractions(const clsMV& set, Findings& findings) {
    const RowFractions fractions(set);
    const std::vector<StatedFraction> groups = fractions.Groups();
    std::vector<Parts> parts;
    RowTally faults;
    std::size_t place = 0;
    for (const clsData& row : set.recData) {
        ++place;
        parts.assign(groups.size(), {});
        fractions.Each(row, [&](const StatedFraction& stated, double value) {
            parts[stated.group].Take(stated.fraction.component, value, set, place);
        });
        for (std::size_t i = 0; i < groups.size(); ++i)
            if (const std::string fault = parts[i].Fault(set.MixType); !fault.empty())
                faults.Add(place, Words(groups[i].fraction.kind, set, groups[i].phase) + fault);
    }
    if (!faults.IsEmpty()) Remarks(findings, set).Hint(PropertyOf(set) + faults.Text());
}

void AdviseOnTiedFractions(const clsM& mixture, Findings& findings) {
    std::unordered_map<std::string, PartsOfState> ties;
    for (const auto& set : mixture.recMV) {
        const RowFractions fractions(*set);
        if (fractions.IsEmpty() || !set->IsTied()) continue;
        const std::string equilibrium = EquilibriumOf(*set);
        std::size_t place = 0;
        for (const clsData& row : set->recData) {
            ++place;
            if (IsBlankField(row.TIELINE)) continue;
            PartsOfState& tie = ties[equilibrium + std::string(row.TIELINE)];
            fractions.Each(row, [&](const StatedFraction& stated, double value) {
                tie[{stated.fraction.kind, stated.phase}].Take(stated.fraction.component, value,
                                                               *set, place);
            });
        }
    }
    // Told by the set that names a fraction of the tie line first.
    std::map<const clsMV*, std::map<std::size_t, std::string>> faults;
    for (const auto& [tie, parts] : ties)
        for (const auto& [of, known] : parts) {
            const std::string fault = known.Fault(mixture.MixType);
            if (!fault.empty() && known.isOfSeveral && !known.isAtOdds)
                faults[known.set][known.row] =
                    Words(of.first, *known.set, of.second) + "of the tied sets " + fault;
        }
    for (const auto& set : mixture.recMV) {
        RowTally ofSet;
        for (const auto& [row, fault] : faults[set.get()])
            ofSet.Add(row, fault);
        if (!ofSet.IsEmpty()) Remarks(findings, *set).Hint(PropertyOf(*set) + ofSet.Text());
    }
}

} // namespace vexora
