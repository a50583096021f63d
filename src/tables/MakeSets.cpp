// The data sets of an analysed table of phase equilibria.
#include <algorithm>
#include <map>
#include <set>

#include "records/PropertyChain.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "tables/ColumnValues.h"
#include "tables/PhaseEquilibria.h"
#include "tables/ProcessedHeader.h"
#include "tables/ProcessedRows.h"
#include "tables/StoredFigures.h"

namespace vexora {

namespace {

/// Whether a row tells of two phases or more, and so ties them.
class TieTest {
public:
    TieTest(const ProcessTable& table, const PhaseAnalysis& analysis) : table_(table) {
        std::set<int> columns;
        for (const PlannedSet& set : analysis.sets) {
            columns.insert(set.property);
            columns.insert(set.variables.begin(), set.variables.end());
        }
        for (const int column : columns) {
            const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
            if (!head.IsState()) byPhase_[head.phase].push_back(column);
        }
    }
    bool TestTieline(int row) const {
        const auto count = std::ranges::count_if(byPhase_, [&](const auto& phase) {
            return std::ranges::any_of(
                phase.second, [&](int column) { return !table_.Cell(row, column).empty(); });
        });
        return count >= 2;
    }

private:
    const ProcessTable& table_;
    std::map<std::string, std::vector<int>> byPhase_;
};

std::int64_t HighestTie(const clsM& mixture) {
    std::int64_t highest = 0;
    for (const auto& set : mixture.recMV)
        for (const clsData& row : set->recData)
            highest = std::max(highest, ParseInteger(row.TIELINE).value_or(0));
    return highest;
}

/// The state variables that two sets have in common, whatever their order.
bool HaveSameVariables(const clsMV& a, const clsMV& b) {
    const auto has = [](const clsMV& set, const MixtureVariable& one) {
        return std::ranges::any_of(set.Variables, [&one](const MixtureVariable& other) {
            return other.code == one.code && other.phase == one.phase;
        });
    };
    if (a.nVar != b.nVar) return false;
    for (int n = 0; n < a.nVar; ++n)
        if (!has(b, a.Variables[static_cast<std::size_t>(n)])) return false;
    return true;
}

class SetMaker {
public:
    SetMaker(const ProcessTable& table, const PhaseAnalysis& analysis, const ProcessSystem& system)
        : table_(table), analysis_(analysis), system_(system) {
        if (table.origin) unused_ = table.origin->sets;
    }

    std::vector<std::shared_ptr<clsMV>> Make() {
        ProcessTieline();
        std::vector<std::shared_ptr<clsMV>> sets;
        for (const PlannedSet& planned : analysis_.sets)
            if (!planned.rows.empty()) sets.push_back(ProcessMV(planned));
        TakeUpStored(table_, analysis_, sets);
        return sets;
    }

private:
    const ProcessColumn& Head(int column) const {
        return table_.columns[static_cast<std::size_t>(column)];
    }

    /// The numbers of the ties, by row. Those that stored rows have stay, as long as there is still
    /// something to tie; new ones stand above all of the mixture.
    void ProcessTieline() {
        ties_.resize(table_.rows.size());
        const bool isTied = std::ranges::any_of(analysis_.sets, &PlannedSet::isTied);
        const TieTest test(table_, analysis_);
        std::int64_t last = HighestTie(*system_.mixture);
        std::set<std::string> taken;
        for (std::size_t row = 0; row < table_.rows.size(); ++row) {
            const std::string& old = table_.rows[row].tie;
            const bool ties = test.TestTieline(static_cast<int>(row));
            // What an untouched row is tied to need not be in the table.
            if (!old.empty() && (ties || IsUntouchedRow(table_, static_cast<int>(row))) &&
                taken.insert(old).second)
                ties_[row] = old;
            else if (ties && isTied)
                ties_[row] = std::to_string(++last);
        }
    }

    std::shared_ptr<clsMV> ProcessMV(const PlannedSet& planned) {
        auto set = std::make_shared<clsMV>();
        set->Parent = system_.mixture.get();
        RowColumns columns;
        Define(*set, planned, columns);
        if (const auto stored = TakeStored(*set)) {
            set = KeepStored(*set, *stored, columns);
        } else {
            set->DATATYPE = "Y";
            set->Header = ProcessedHeader(system_.mixture->Parent);
            set->PRPSETNO = FreeNumber(*set);
        }
        const ProcessedRows rows(table_, *set, columns);
        const bool isOriginal = set->isOriginalUnit;
        for (const int row : planned.rows)
            set->AddRow(rows.NewRow(row, ties_[static_cast<std::size_t>(row)]));
        set->isOriginalUnit = isOriginal;
        if (planned.uncertainty >= 0) StateUncertainties(*set);
        NameStatements(*set);
        return set;
    }

    void Define(clsMV& set, const PlannedSet& planned, RowColumns& columns) const {
        MixtureLine line;
        line.MixType = table_.MixType;
        line.nVar = analysis_.nVar;
        line.PRPCODE = planned.PRPCODE;
        line.PROPERTY_FUNCT = "DIR";
        line.PHASE1 = planned.PHASE1;
        std::ranges::copy(planned.slots, line.slots.begin());
        columns.nVar = analysis_.nVar;
        columns.items[0] = planned.property;
        columns.uncertainty = planned.uncertainty;
        for (std::size_t n = 0; n < planned.variables.size(); ++n) {
            const ProcessColumn& head = Head(planned.variables[n]);
            line.variables[n] = {head.quantity, VariableUnit(head),
                                 head.IsState() ? planned.PHASE1 : head.phase};
            columns.items[n + 1] = planned.variables[n];
        }
        set.Define(line);
        const ProcessColumn& property = Head(planned.property);
        set.PROPERTY_UNIT = property.unit;
        if (property.unit == ProcessColumn::ByFactor)
            set.Factor = Val(NormalizeNumber(property.factor));
        for (int n = 1; n <= table_.MixType; ++n)
            set.SMPNM(n, system_.samples[static_cast<std::size_t>(n - 1)]);
    }
    /// A variable has no factor beside its code: the number is the code.
    static std::string VariableUnit(const ProcessColumn& head) {
        return head.unit == ProcessColumn::ByFactor ? NormalizeNumber(head.factor) : head.unit;
    }

    std::string FreeNumber(const clsMV& set) {
        int& last = numbers_[set.PRPCODE];
        last = std::max(last + 1, NextSetNumber(*system_.mixture, set));
        return std::to_string(last);
    }

    /// The set that filled the table with what this one will hold; null for none.
    std::shared_ptr<clsMV> TakeStored(const clsMV& made) {
        const auto found = std::ranges::find_if(unused_, [&made](const auto& stored) {
            return stored->PRPCODE == made.PRPCODE && stored->PHASE1 == made.PHASE1 &&
                   HaveSameVariables(*stored, made);
        });
        if (found == unused_.end()) return nullptr;
        const std::shared_ptr<clsMV> stored = *found;
        unused_.erase(found);
        return stored;
    }
    /// The definition of the table in the words of the stored set: what the table does not show
    /// stays, and so does the order of variables and constraints.
    static std::shared_ptr<clsMV> KeepStored(const clsMV& made, const clsMV& stored,
                                             RowColumns& columns) {
        const auto kept = std::static_pointer_cast<clsMV>(stored.Copy());
        kept->recData.Clear();
        KeepVariables(*kept, made, columns);
        kept->Constraints = ConstraintsOf(made, stored);
        for (int n = 1; n <= made.MixType; ++n)
            if (!made.SMPNM(n).empty()) kept->SMPNM(n, made.SMPNM(n));
        if (!StandsInSystemUnits(made, stored)) {
            kept->isOriginalUnit = true;
            kept->PROPERTY_UNIT = made.PROPERTY_UNIT;
            kept->Factor = made.Factor;
        }
        return kept;
    }
    /// Values that stand in system units bear the codes of the paper's units as a memory.
    static bool StandsInSystemUnits(const clsMV& made, const clsMV& stored) {
        if (stored.isOriginalUnit || made.PropertyConversion().ChangesValues()) return false;
        for (int n = 1; n <= made.nVar; ++n)
            if (made.VariableConversion(n).ChangesValues()) return false;
        return true;
    }
    static void KeepVariables(clsMV& kept, const clsMV& made, RowColumns& columns) {
        const RowColumns before = columns;
        const bool keepsUnits = StandsInSystemUnits(made, kept);
        for (int n = 0; n < made.nVar; ++n) {
            MixtureVariable& variable = kept.Variables[static_cast<std::size_t>(n)];
            const auto at = std::ranges::find_if(made.Variables, [&](const auto& one) {
                return one.code == variable.code && one.phase == variable.phase;
            });
            const auto from = static_cast<std::size_t>(at - made.Variables.begin());
            if (!keepsUnits) variable.unit = at->unit;
            columns.items[static_cast<std::size_t>(n) + 1] = before.items[from + 1];
        }
    }
    static std::array<ConstraintSlot, MixtureLine::MostSlots> ConstraintsOf(const clsMV& made,
                                                                            const clsMV& stored) {
        const auto codes = [](const clsMV& set) {
            std::multiset<std::string> all;
            for (int n = 1; n <= set.ConstraintCount(); ++n)
                all.insert(set.CONSTRAINT(n));
            return all;
        };
        if (codes(made) != codes(stored)) return made.Constraints;
        auto slots = stored.Constraints;
        for (ConstraintSlot& slot : slots) {
            if (slot.code != "T" && slot.code != "P") continue;
            const auto now = std::ranges::find(made.Constraints, slot.code, &ConstraintSlot::code);
            const bool isSame =
                DataSet::ConversionOf(slot.code, slot.unit).Converted(slot.value).text ==
                now->value;
            if (isSame) continue;
            slot.value = now->value;
            slot.unit = now->unit;
        }
        return slots;
    }

    const ProcessTable& table_;
    const PhaseAnalysis& analysis_;
    const ProcessSystem& system_;
    std::vector<std::string> ties_;      // by row, empty for none
    std::map<std::string, int> numbers_; // the last one given, by property
    std::vector<std::shared_ptr<clsMV>> unused_;
};

} // namespace

std::vector<std::shared_ptr<clsMV>>
MakeSets(const ProcessTable& table, const PhaseAnalysis& analysis, const ProcessSystem& system) {
    return SetMaker(table, analysis, system).Make();
}

} // namespace vexora
