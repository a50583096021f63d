#include "entry/FractionSums.h"

#include <algorithm>

#include "chem/clsProperty.h"
#include "entry/RowChecks.h"
#include "records/DataSet.h"
#include "records/FractionCode.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr double Tolerance = 1e-9; // of the decimals in a double

bool IsFraction(const std::string& code) {
    return FractionCode::Of(code).has_value();
}

/// Fractions that may be added: of a kind and in a phase.
struct Kind {
    char letter;
    std::string phase;
    bool operator==(const Kind&) const = default;
};

/// The sums of a set while they are gathered.
class Gathered {
public:
    FractionSum& Of(const std::string& code, const std::string& phase) {
        const Kind kind{code[0], phase};
        const auto at = std::ranges::find(kinds_, kind);
        if (at != kinds_.end()) return sums_[static_cast<std::size_t>(at - kinds_.begin())];
        kinds_.push_back(kind);
        FractionSum& sum = sums_.emplace_back();
        sum.phase = PhaseName(phase);
        return sum;
    }
    std::vector<FractionSum> Take() { return std::move(sums_); }

private:
    std::vector<Kind> kinds_;
    std::vector<FractionSum> sums_;
};

void AddConstant(FractionSum& sum, const HeldConstant& constant) {
    if (!IsNumeric(constant.value)) return;
    sum.constant += ToSystem(constant.unit, Val(constant.value), 0, 0);
    sum.rounding += ToSystem(constant.unit, LastPlace(constant.value), 0, 0) / 2;
}

struct Total {
    double all = 0, variables = 0, rounding = 0;
    bool isWhole = true; // every cell is a number
};

Total TotalOf(const FractionSum& sum, const ui::Grid& grid, const TableColumns& columns, int row,
              const clsProperty& chain) {
    Total total{sum.constant, 0, sum.rounding};
    for (const int n : sum.items) {
        const int column = columns.Find(TableColumn::Kind::Value, n);
        const std::string cell = NormalizeNumber(grid.Cell(row, column));
        const clsProperty* const item = ItemOf(chain, n);
        if (!item || !IsNumeric(cell)) return {.isWhole = false};
        const auto system = [&](double value) {
            return ToSystem(item->ConversionCode, value, item->Factor, 0);
        };
        total.all += system(Val(cell));
        total.rounding += system(LastPlace(cell)) / 2;
        if (n > 0) total.variables += system(Val(cell));
    }
    return total;
}

} // namespace

std::vector<FractionSum> FractionSums(const DataSet& set) {
    Gathered gathered;
    // Nobody says in which of its phases a participant of a reaction is meant.
    const bool isReaction = set.DataContext() == "React";
    const std::vector<std::string> phases = isReaction ? set.Phases() : std::vector<std::string>();
    if (isReaction && phases.size() != 1) return {};
    const auto phaseOf = [&](const std::string& stated) {
        return isReaction ? phases.front() : stated;
    };
    for (const HeldConstant& constant : set.Constants())
        if (IsFraction(constant.code))
            AddConstant(gathered.Of(constant.code, phaseOf(constant.phase)), constant);
    for (int n = 1; n <= set.nVar; ++n) {
        if (!IsFraction(set.VARIABLE(n))) continue;
        FractionSum& sum = gathered.Of(set.VARIABLE(n), phaseOf(set.PhaseFor(n)));
        sum.isRefused =
            !sum.items.empty() && set.DataContext() == "Tern" && set.VARIABLE(n).front() != 'V';
        sum.items.push_back(n);
    }
    if (IsFraction(set.PRPCODE) && set.Relation() == "A")
        gathered.Of(set.PRPCODE, set.PhaseFor(0)).items.push_back(0);
    std::vector<FractionSum> sums = gathered.Take();
    std::erase_if(sums, [](const FractionSum& sum) {
        return sum.items.empty() || (sum.items.size() == 1 && sum.constant == 0);
    });
    return sums;
}

std::vector<Finding> CheckFractions(const ui::Grid& grid, const TableColumns& columns, int row,
                                    const clsProperty& chain,
                                    const std::vector<FractionSum>& sums) {
    std::vector<Finding> findings;
    for (const FractionSum& sum : sums) {
        const Total total = TotalOf(sum, grid, columns, row, chain);
        if (!total.isWhole) continue;
        const bool isFault =
            sum.isRefused && (total.variables < -Tolerance || total.variables > 1 + Tolerance);
        if (!isFault && total.all <= 1 + total.rounding + Tolerance) continue;
        const double told = isFault ? total.variables : total.all;
        findings.push_back({row, columns.Find(TableColumn::Kind::Value, sum.items.back()),
                            "Composition error\nThe fractions in the phase " + sum.phase +
                                " add up to " + NumberText(told),
                            isFault});
    }
    return findings;
}

} // namespace vexora
