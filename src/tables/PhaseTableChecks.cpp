// What is to be mended in the cells of a table of phase equilibria.
#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

#include "chem/clsProperty.h"
#include "records/PropertyChain.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"
#include "tables/ColumnValues.h"
#include "tables/PhaseEquilibria.h"
#include "tables/PhaseHeads.h"

namespace vexora {

namespace {

/// What all cells of a column have in common.
struct CheckedColumn {
    CellRules rules;
    ColumnValues values;
};

/// The compositions of a phase that add up to 1 when they are whole.
struct Sum {
    std::vector<int> columns;
    int shown = -1; // the column in which a wrong sum is told
    std::string phase;
    bool isWhole = false; // of all components
};

class PhaseTableChecker {
public:
    PhaseTableChecker(const ProcessTable& table, const PhaseAnalysis& analysis,
                      const ProcessSystem& system)
        : table_(table), analysis_(analysis), system_(system) {
        std::string fault; // told by the analysis
        uncertainty_ = UncertaintyColumns(table, fault);
        const PhaseHeads heads = ReadHeads(table);
        for (const int state : {heads.TColumn, heads.PColumn})
            if (state >= 0) Add(state);
        for (const PhaseColumns& phase : heads.phases) {
            for (const int column : phase.compositions)
                Add(column);
            AddSum(phase);
        }
        std::ranges::sort(columns_, {}, [](const auto& one) { return one.rules.column; });
    }

    std::vector<Finding> Check() {
        for (int row = 0; row < static_cast<int>(table_.rows.size()); ++row)
            if (table_.IsUsed(row)) CheckRow(row);
        return std::move(findings_);
    }

private:
    bool Has(int row, int column) const { return !table_.Cell(row, column).empty(); }
    bool IsImplied(int column) const {
        return std::ranges::find(analysis_.implied, column) != analysis_.implied.end();
    }

    void Add(int column) {
        const ProcessColumn& head = table_.columns[static_cast<std::size_t>(column)];
        const bool isProperty = std::ranges::find(analysis_.sets, column, &PlannedSet::property) !=
                                analysis_.sets.end();
        const bool isState = head.IsState();
        const bool isVariable = std::ranges::any_of(analysis_.sets, [&](const PlannedSet& set) {
            return std::ranges::find(set.variables, column) != set.variables.end();
        });
        const bool isIndependent = !isProperty && (isState || isVariable);
        columns_.push_back({{column, head.quantity, NameOf(head, isIndependent), isIndependent},
                            ColumnValues(table_, column)});
    }
    /// As the table of a set with this column names it.
    std::string NameOf(const ProcessColumn& head, bool isVariable) const {
        clsMV set;
        set.MixType = table_.MixType;
        set.Parent = system_.mixture.get();
        set.PRPCODE = isVariable ? analysis_.sets.front().PRPCODE : head.quantity;
        set.PHASE1 = head.phase.empty() ? analysis_.PhaseList.front() : head.phase;
        set.Variables[0] = {head.quantity, "S", set.PHASE1};
        const auto chain = BuildChain(set);
        return isVariable ? chain->NextItem->Name : chain->Name;
    }
    void AddSum(const PhaseColumns& phase) {
        if (phase.compositions.size() < 2) return;
        const auto& first = table_.columns[static_cast<std::size_t>(phase.compositions.front())];
        if (first.quantity.starts_with('J')) return;
        Sum sum{phase.compositions, phase.compositions.back(), PhaseName(phase.phase),
                static_cast<int>(phase.compositions.size()) == table_.MixType};
        for (const int column : sum.columns)
            if (IsImplied(column)) sum.shown = column;
        sums_.push_back(std::move(sum));
    }

    void CheckRow(int row) {
        const std::size_t before = findings_.size();
        for (const CheckedColumn& one : columns_) {
            const int column = one.rules.column;
            if (auto found = CheckCell(table_, row, one.rules, one.values))
                findings_.push_back(*std::move(found));
            const int own = uncertainty_[static_cast<std::size_t>(column)];
            if (own < 0) continue;
            if (auto found = CheckUncertainty(table_, row, own, Has(row, column)))
                findings_.push_back(*std::move(found));
        }
        const bool isGood =
            std::none_of(findings_.begin() + static_cast<std::ptrdiff_t>(before), findings_.end(),
                         [](const Finding& one) { return one.isFault; });
        if (!isGood) return;
        if (!CheckPlaces(row)) return;
        for (const Sum& sum : sums_)
            CheckSum(row, sum);
    }

    bool IsRowOf(const PlannedSet& set, int row) const {
        return std::ranges::binary_search(set.rows, row);
    }
    /// A column of the row goes into some set.
    bool IsTaken(int row, int column) const {
        return std::ranges::any_of(analysis_.sets, [&](const PlannedSet& set) {
            const bool isOfSet = set.property == column ||
                                 std::ranges::find(set.variables, column) != set.variables.end();
            return isOfSet && IsRowOf(set, row);
        });
    }
    bool IsIndependent(int column) const {
        return std::ranges::any_of(analysis_.sets, [&](const PlannedSet& set) {
            return std::ranges::find(set.variables, column) != set.variables.end();
        });
    }
    /// The empty cell that keeps a property out of its set: of the set that lacks least.
    int MissingCell(int row, int property) const {
        int missing = -1;
        std::size_t least = 0;
        for (const PlannedSet& set : analysis_.sets) {
            if (set.property != property) continue;
            std::vector<int> empty;
            for (const int column : set.variables)
                if (!Has(row, column)) empty.push_back(column);
            if (empty.empty() || (missing >= 0 && empty.size() >= least)) continue;
            missing = empty.front();
            least = empty.size();
        }
        return missing;
    }
    /// Each number of a row goes into a set, or there is something to say; false for a fault.
    bool CheckPlaces(int row) {
        int alone = -1;
        for (const CheckedColumn& one : columns_) {
            const int column = one.rules.column;
            if (!Has(row, column) || IsImplied(column) || IsTaken(row, column)) continue;
            const int missing = MissingCell(row, column);
            if (missing >= 0) {
                findings_.push_back({row, missing, "Invalid value of independent variable"});
                return false;
            }
            if (alone < 0 && IsIndependent(column)) alone = column;
        }
        if (alone >= 0) findings_.push_back({row, alone, std::string(RowLeftOut), false});
        return true;
    }

    /// A fraction that is not stored has to follow from those that are.
    void CheckSum(int row, const Sum& sum) {
        constexpr double tolerance = 0.005;
        double total = 0;
        bool isComplete = true;
        for (const CheckedColumn& one : columns_) {
            if (std::ranges::find(sum.columns, one.rules.column) == sum.columns.end()) continue;
            const auto value = one.values.Value(row);
            isComplete = isComplete && value.has_value();
            total += value.value_or(0);
        }
        if (!isComplete) {
            for (const int column : sum.columns)
                if (IsImplied(column) && Has(row, column)) CheckOthers(row, column, sum);
            return;
        }
        const double excess = total - 1;
        if (sum.isWhole ? std::abs(excess) <= tolerance + 1e-12 : excess <= tolerance + 1e-12)
            return;
        findings_.push_back({row, sum.shown,
                             "Composition error\nThe fractions in the phase " + sum.phase +
                                 " add up to " + NumberText(total)});
    }
    void CheckOthers(int row, int implied, const Sum& sum) {
        for (const int column : sum.columns) {
            if (column == implied || Has(row, column)) continue;
            findings_.push_back({row, column,
                                 "Composition error\nEnter the other fractions of the phase " +
                                     sum.phase + " as well"});
            return;
        }
    }

    const ProcessTable& table_;
    const PhaseAnalysis& analysis_;
    const ProcessSystem& system_;
    std::vector<int> uncertainty_; // by column
    std::vector<CheckedColumn> columns_;
    std::vector<Sum> sums_;
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> CheckPhaseTable(const ProcessTable& table, const PhaseAnalysis& analysis,
                                     const ProcessSystem& system) {
    if (analysis.sets.empty()) return {};
    return PhaseTableChecker(table, analysis, system).Check();
}

} // namespace vexora
