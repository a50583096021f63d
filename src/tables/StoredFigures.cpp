#include "tables/StoredFigures.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <utility>

#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "tables/StoredColumns.h"

namespace vexora {

namespace {

bool IsOfSameQuantities(const clsMV& a, const clsMV& b) {
    if (a.nVar != b.nVar) return false;
    for (int n = 0; n <= a.nVar; ++n)
        if (a.VARIABLE(n) != b.VARIABLE(n) || a.PhaseFor(n) != b.PhaseFor(n)) return false;
    return true;
}

/// One new set and the stored one that its rows come from.
class SetFigures {
public:
    SetFigures(const ProcessTable& table, const PlannedSet& planned, clsMV& made,
               const clsMV& stored)
        : table_(table), planned_(planned), made_(made), stored_(stored) {
        isAsShown_.fill(true);
        for (int n = 0; n <= made.nVar; ++n) {
            const auto i = static_cast<std::size_t>(n);
            columns_[i] = ColumnOf(n);
            shown_[i] = ColumnUnit::Of(table.columns[static_cast<std::size_t>(columns_[i])]);
            isAsShown_[i] = ColumnUnit{stored.Conversion(n)} == shown_[i];
        }
    }

    void TakeUp() {
        TakeUnits();
        ofNewRows_ = std::exchange(made_.isOriginalUnit, false);
        std::size_t k = 0;
        for (clsData& row : made_.recData) {
            const int place = planned_.rows[k++];
            TakeRow(row, table_.rows[static_cast<std::size_t>(place)]);
            made_.isOriginalUnit = made_.isOriginalUnit || row.inOriginalUnits;
        }
    }

    /// Where a head names another unit now, the figures of the table are those of a paper.
    bool AreUnitsKept() const {
        for (int n = 0; n <= made_.nVar; ++n) {
            const auto column = static_cast<std::size_t>(columns_[static_cast<std::size_t>(n)]);
            const auto& before = table_.origin->columns;
            if (column >= before.size() || table_.columns[column].unit != before[column].unit ||
                table_.columns[column].factor != before[column].factor)
                return false;
        }
        return true;
    }
    /// A row of the stored sets stands in another unit than a row that was typed would.
    bool IsMixed() const {
        return std::ranges::find(isAsShown_, false) != isAsShown_.end() ||
               std::ranges::any_of(stored_.recData, [this](const clsData& row) {
                   return row.inOriginalUnits != made_.isOriginalUnit;
               });
    }

private:
    /// The variables of a stored set may stand in another order than those of the table.
    int ColumnOf(int n) const {
        if (n == 0) return planned_.property;
        for (const int column : planned_.variables) {
            const ProcessColumn& head = table_.columns[static_cast<std::size_t>(column)];
            if (head.quantity == made_.VARIABLE(n) &&
                (head.IsState() || head.phase == made_.PhaseFor(n)))
                return column;
        }
        return planned_.property;
    }

    void TakeUnits() {
        made_.PROPERTY_UNIT = stored_.PROPERTY_UNIT;
        made_.Factor = stored_.Factor;
        for (std::size_t i = 0; i < made_.Variables.size(); ++i)
            made_.Variables[i].unit = stored_.Variables[i].unit;
    }

    const CellOrigin* OriginOf(const ProcessRow& typed, int column) const {
        return table_.origin->At(typed.place, column);
    }
    bool IsUnedited(const ProcessRow& typed, int column) const {
        const CellOrigin* const origin = OriginOf(typed, column);
        const auto at = static_cast<std::size_t>(column);
        return origin != nullptr && origin->row != nullptr && at < typed.cells.size() &&
               origin->text == typed.cells[at];
    }

    void TakeRow(clsData& row, const ProcessRow& typed) const {
        const CellOrigin* const origin = OriginOf(typed, columns_[0]);
        const clsData* const from = origin && origin->item == 0 ? origin->row : nullptr;
        row.inOriginalUnits = from ? from->inOriginalUnits : ofNewRows_;
        if (from && from->isDigit) CountDigits(row);
        bool isUnchanged = from != nullptr;
        for (int n = 0; n <= made_.nVar; ++n) {
            const auto i = static_cast<std::size_t>(n);
            if (from && IsUnedited(typed, columns_[i])) {
                TakeItem(row, *from, n);
            } else {
                isUnchanged = false;
                Convert(row, n);
            }
        }
        if (isUnchanged) {
            row.PRPUNCERTY = from->PRPUNCERTY;
            if (from->Extras) row.Extras->CD = from->Extras->CD;
        }
        if (from && planned_.uncertainty >= 0) TakeUncertainty(row, typed, *from);
    }

    /// Beside a value that was taken up an edited one still stands in the unit of the column.
    void TakeUncertainty(clsData& row, const ProcessRow& typed, const clsData& from) const {
        if (!row.Extras) return;
        std::string& combined = row.Extras->userCU;
        const bool isTaken = IsUnedited(typed, columns_[0]);
        if (from.Extras && IsUnedited(typed, planned_.uncertainty))
            combined = from.Extras->userCU;
        else if (isTaken && !(row.inOriginalUnits && isAsShown_[0]))
            combined = InUnitOfRow(shown_[0].conversion.DifferenceText(combined), row);
    }
    std::string InUnitOfRow(const std::string& difference, const clsData& row) const {
        return row.inOriginalUnits ? made_.Conversion(0).EnteredDifferenceText(difference)
                                   : difference;
    }

    static void CountDigits(clsData& row) {
        for (std::size_t n = 0; n < row.Digits.size(); ++n)
            row.Digits[n] = static_cast<std::uint8_t>(row.DigitCount(static_cast<int>(n)));
        row.isDigit = true;
    }

    static void TakeItem(clsData& row, const clsData& from, int n) {
        const auto i = static_cast<std::size_t>(n);
        row.Values[i] = from.Values[i];
        row.Digits[i] = from.Digits[i];
        if (from.Extras) row.Statements(n) = from.Extras->items[i];
    }

    /// An edited value, out of the unit of its column into that of the row.
    void Convert(clsData& row, int n) const {
        const auto i = static_cast<std::size_t>(n);
        if (row.inOriginalUnits && isAsShown_[i]) return;
        row.Convert(n, shown_[i].conversion);
        if (!row.inOriginalUnits) return;
        row.Values[i] = made_.Conversion(n).EnteredText(row.Values[i]);
        if (n == 0 && row.Extras) row.Extras->userCU = InUnitOfRow(row.Extras->userCU, row);
    }

    const ProcessTable& table_;
    const PlannedSet& planned_;
    clsMV& made_;
    const clsMV& stored_;
    bool ofNewRows_ = true; // what rows that were typed stand in: the units of the paper
    static constexpr std::size_t MostItems = DataSet::MostVariables + 1;
    std::array<int, MostItems> columns_{}; // of the property and the variables
    std::array<bool, MostItems> isAsShown_{};
    std::array<ColumnUnit, MostItems> shown_;
};

} // namespace

void TakeUpStored(const ProcessTable& table, const PhaseAnalysis& analysis,
                  const std::vector<std::shared_ptr<clsMV>>& made) {
    if (!table.origin) return;
    std::unordered_map<const clsData*, const clsMV*> owners;
    for (const auto& set : table.origin->sets)
        for (const clsData& row : set->recData)
            owners[&row] = set.get();
    auto next = made.begin();
    for (const PlannedSet& planned : analysis.sets) {
        if (planned.rows.empty() || next == made.end()) continue;
        clsMV& set = **next++;
        if (set.recData.Count() != planned.rows.size()) continue;
        const clsMV* stored = nullptr;
        for (const int row : planned.rows) {
            const int place = table.rows[static_cast<std::size_t>(row)].place;
            const CellOrigin* const origin = table.origin->At(place, planned.property);
            const auto owner = owners.find(origin ? origin->row : nullptr);
            if (owner == owners.end() || origin->item != 0) continue;
            stored = owner->second;
            break;
        }
        if (!stored || !IsOfSameQuantities(set, *stored)) continue;
        SetFigures figures(table, planned, set, *stored);
        if (figures.AreUnitsKept() && figures.IsMixed()) figures.TakeUp();
    }
}

} // namespace vexora
