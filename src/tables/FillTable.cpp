#include "tables/FillTable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <list>
#include <unordered_map>
#include <utility>

#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "tables/FillRules.h"
#include "tables/PhaseEquilibria.h"
#include "tables/StoredColumns.h"

namespace vexora {

namespace {

using Sets = std::vector<std::shared_ptr<clsMV>>;

/// The rows of the sets that stand in one row of the table, by set; null for none.
struct JoinedRow {
    std::vector<const clsData*> rows;
    std::string tie;
};

/// Rows of a tie line stand together. Each set keeps the order of its rows as far as ties allow: a
/// row that is not there yet comes behind the one before it.
std::vector<JoinedRow> Joined(const Sets& sets) {
    std::list<JoinedRow> joined;
    using At = std::list<JoinedRow>::iterator;
    std::unordered_map<std::string, std::vector<At>> ofTie; // a number may be there twice
    for (std::size_t s = 0; s < sets.size(); ++s) {
        std::unordered_map<std::string, std::size_t> count; // of each number in this set
        At last = joined.end();
        for (const clsData& row : sets[s]->recData) {
            std::string tie = IsBlankField(row.TIELINE) ? std::string() : std::string(row.TIELINE);
            std::vector<At>* const places = tie.empty() ? nullptr : &ofTie[tie];
            const std::size_t n = places ? count[tie]++ : 0;
            if (places && n < places->size()) {
                last = (*places)[n];
            } else {
                const At next = last == joined.end() ? joined.begin() : std::next(last);
                last = joined.insert(next, {std::vector<const clsData*>(sets.size()), tie});
                if (places) places->push_back(last);
            }
            last->rows[s] = &row;
        }
    }
    return {std::move_iterator(joined.begin()), std::move_iterator(joined.end())};
}

class Filling {
public:
    explicit Filling(const Sets& sets)
        : sets_(sets), columns_(ColumnsOf(sets)), origin_(std::make_shared<TableOrigin>()) {
        for (std::size_t s = 0; s < sets.size(); ++s)
            placeOf_[sets[s].get()] = s;
        for (const auto& set : sets)
            constants_.push_back(set->Constants());
    }

    FilledTable Run() {
        FilledTable filled;
        filled.table.MixType = sets_.front()->MixType;
        filled.table.columns = columns_.heads;
        filled.table.notStated = columns_.notStated;
        for (const JoinedRow& joined : Joined(sets_)) {
            Fill(joined);
            if (!contradiction_.empty()) return {{}, contradiction_};
            ProcessRow row;
            for (const CellOrigin& cell : origin_->cells.back())
                row.cells.push_back(cell.text);
            row.place = static_cast<int>(filled.table.rows.size());
            row.tie = joined.tie;
            filled.table.rows.push_back(std::move(row));
        }
        origin_->sets = sets_;
        origin_->columns = columns_.heads;
        filled.table.origin = std::move(origin_);
        return filled;
    }

private:
    void Fill(const JoinedRow& joined) {
        std::vector<CellOrigin> cells(columns_.heads.size());
        for (const StoredItem& item : columns_.items) {
            const std::size_t s = placeOf_.at(item.set);
            const clsData* const row = joined.rows[s];
            if (row == nullptr) continue;
            const ColumnUnit& unit = columns_.units[item.column];
            const auto n = static_cast<std::size_t>(item.item);
            const std::string text = item.isConstant
                                         ? item.Shown(constants_[s][n].value, true, unit)
                                         : item.Shown(row->Values[n], row->inOriginalUnits, unit);
            Put(cells[item.column], {row, item.isConstant ? -1 : item.item, text}, item, joined);
            const int beside = columns_.uncertainties[item.column];
            if (item.item > 0 || item.isConstant || beside < 0 || !row->Extras) continue;
            cells[static_cast<std::size_t>(beside)] = {
                row, 0, item.ShownDifference(row->Extras->userCU, row->inOriginalUnits, unit)};
        }
        origin_->cells.push_back(std::move(cells));
    }

    /// One cell may show what several sets hold; that of a property is the one that it belongs to.
    void Put(CellOrigin& cell, CellOrigin stored, const StoredItem& item, const JoinedRow& joined) {
        if (stored.text.empty()) return;
        if (!cell.text.empty() && cell.text != stored.text && !SayTheSame(cell.text, stored.text))
            contradiction_ = "The sets of tie line " + joined.tie + " do not agree in " +
                             Name(columns_.heads[item.column]) + ": " + cell.text + " and " +
                             stored.text;
        if (cell.text.empty() || (stored.item == 0 && cell.item != 0)) cell = std::move(stored);
    }

    static bool SayTheSame(const std::string& a, const std::string& b) {
        if (!IsNumeric(a) || !IsNumeric(b)) return false;
        return std::abs(Val(a) - Val(b)) < 0.5 * std::min(LastPlace(a), LastPlace(b));
    }

    static std::string Name(const ProcessColumn& head) {
        const std::string phase = PhaseName(head.phase);
        return VariableName(head.quantity) + (phase.empty() ? "" : ", " + phase);
    }

    const Sets& sets_;
    StoredColumns columns_;
    std::shared_ptr<TableOrigin> origin_;
    std::unordered_map<const clsMV*, std::size_t> placeOf_;
    std::vector<std::vector<HeldConstant>> constants_; // set by set
    std::string contradiction_;
};

/// The set with all its rows is among those that the table gives.
bool IsGiven(const clsMV& set, const ProcessTable& table, const PhaseAnalysis& analysis) {
    return std::ranges::any_of(analysis.sets, [&](const PlannedSet& planned) {
        const auto isVariable = [&](int column) {
            const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
            for (int n = 1; n <= set.nVar; ++n)
                if (set.VARIABLE(n) == head.quantity &&
                    (head.IsState() || set.PhaseFor(n) == head.phase))
                    return true;
            return false;
        };
        return planned.PRPCODE == set.PRPCODE && planned.PHASE1 == set.PHASE1 &&
               planned.rows.size() == set.recData.Count() && analysis.nVar == set.nVar &&
               std::ranges::all_of(planned.variables, isVariable);
    });
}

/// Sets may be told in other ways than a table is: against other variables, or with gaps.
std::string WhyNotAgain(const Sets& sets, const ProcessTable& table) {
    const PhaseAnalysis analysis = AnalyseVLE(table);
    for (const auto& set : sets)
        if (!analysis.Ok || !IsGiven(*set, table, analysis))
            return "A table of phase equilibria gives other sets than these. They can be edited "
                   "one by one.\n" +
                   set->ShowKey();
    return {};
}

} // namespace

FilledTable FillTable(const Sets& sets) {
    if (std::string why = WhyNotInTable(sets); !why.empty()) return {{}, std::move(why)};
    FilledTable filled = Filling(sets).Run();
    if (filled.refusal.empty()) filled.refusal = WhyNotAgain(sets, filled.table);
    return filled;
}

} // namespace vexora
