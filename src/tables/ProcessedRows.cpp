#include "tables/ProcessedRows.h"

#include <algorithm>

#include "records/clsMV.h"
#include "reference/Numbers.h"
#include "tables/ColumnValues.h"

namespace vexora {

namespace {

/// How the rows of a set stand: their quantities and the units of their values.
struct Shape {
    std::vector<std::string> codes;
    std::vector<UnitConversion> units;

    explicit Shape(const DataSet& set) {
        for (int n = 0; n <= set.nVar; ++n) {
            codes.push_back(set.VARIABLE(n));
            units.push_back(set.isOriginalUnit ? set.Conversion(n) : UnitConversion());
        }
    }
    bool operator==(const Shape& other) const {
        return codes == other.codes && std::ranges::equal(units, other.units, IsSame);
    }
};

/// The text of a cell is that of the stored row, or it is as empty as it was.
bool IsUntouchedCell(const ProcessTable& table, int row, int column) {
    const CellOrigin* const origin =
        table.origin->At(table.rows[static_cast<std::size_t>(row)].place, column);
    return table.Cell(row, column) == (origin ? std::string_view(origin->text) : "");
}

} // namespace

bool IsUntouchedRow(const ProcessTable& table, int row) {
    if (!table.origin || table.rows[static_cast<std::size_t>(row)].place < 0) return false;
    for (std::size_t column = 0; column < table.columns.size(); ++column)
        if (!IsUntouchedCell(table, row, static_cast<int>(column))) return false;
    return true;
}

bool IsSame(const UnitConversion& a, const UnitConversion& b) {
    return Equal(a.Absolute(0), b.Absolute(0)) && Equal(a.Absolute(1), b.Absolute(1));
}

void StateUncertainties(DataSet& set) {
    const bool isStated = std::ranges::any_of(
        set.recData, [](const clsData& row) { return row.Extras && !row.Extras->userCU.empty(); });
    if (!isStated || set.UX[0].iCU) return;
    set.UX[0].iCU = true;
    set.UX[0].CType = "A";
    set.UX[0].PHASE = set.PhaseFor(0);
}

ProcessedRows::ProcessedRows(const ProcessTable& table, const DataSet& set,
                             const RowColumns& columns)
    : table_(table), set_(set), columns_(columns) {
    if (!table.origin) return;
    const Shape shape(set);
    for (const auto& stored : table.origin->sets) {
        const bool isAlike = Shape(*stored) == shape;
        for (const clsData& row : stored->recData)
            isAlike_[&row] = isAlike && row.inOriginalUnits == set.isOriginalUnit;
    }
}

std::string ProcessedRows::Text(int row, int column) const {
    return NormalizeNumber(table_.Cell(row, column));
}

const clsData* ProcessedRows::StoredRow(int row) const {
    if (!table_.origin) return nullptr;
    const CellOrigin* const origin =
        table_.origin->At(table_.rows[static_cast<std::size_t>(row)].place, columns_.items[0]);
    return origin && origin->item == 0 ? origin->row : nullptr;
}

bool ProcessedRows::IsOfThisKind(const clsData& stored) const {
    const auto found = isAlike_.find(&stored);
    return found != isAlike_.end() && found->second;
}

bool ProcessedRows::IsUntouched(int row) const {
    const clsData* const stored = StoredRow(row);
    if (!stored || !IsOfThisKind(*stored)) return false;
    for (int n = 0; n <= columns_.nVar; ++n)
        if (!IsUntouchedCell(table_, row, columns_.items[static_cast<std::size_t>(n)]))
            return false;
    return columns_.uncertainty < 0 || IsUntouchedCell(table_, row, columns_.uncertainty);
}

/// Cells that nobody has touched keep their count of digits and their statements. What an
/// evaluation found for the row as a whole is no longer true of it.
void ProcessedRows::TakeStored(clsData& made, const clsData& stored, int row) const {
    for (int n = 0; n <= columns_.nVar; ++n) {
        const auto place = static_cast<std::size_t>(n);
        made.Digits[place] = static_cast<std::uint8_t>(SignificantDigits(made.Values[place]));
        if (!IsUntouchedCell(table_, row, columns_.items[place])) continue;
        made.Digits[place] = static_cast<std::uint8_t>(stored.DigitCount(n));
        if (!stored.StatementsOf(n).IsEmpty()) made.Statements(n) = stored.StatementsOf(n);
    }
    made.isDigit = stored.isDigit;
    const bool hasOwn = columns_.uncertainty < 0 && stored.Extras &&
                        IsUntouchedCell(table_, row, columns_.items[0]);
    if (!hasOwn || stored.Extras->userCU.empty()) return;
    made.Statements(0);
    made.Extras->userCU = stored.Extras->userCU;
}

clsData ProcessedRows::NewRow(int row, const std::string& tie) const {
    const clsData* const stored = StoredRow(row);
    if (stored && IsUntouched(row)) {
        clsData same = *stored;
        same.TIELINE = tie;
        return same;
    }
    clsData made;
    made.nVar = static_cast<std::int8_t>(columns_.nVar);
    made.inOriginalUnits = set_.isOriginalUnit;
    made.TIELINE = tie;
    for (int n = 0; n <= columns_.nVar; ++n) {
        const auto place = static_cast<std::size_t>(n);
        made.Values[place] = Text(row, columns_.items[place]);
        made.Digits[place] = static_cast<std::uint8_t>(SignificantDigits(made.Values[place]));
    }
    if (stored && IsOfThisKind(*stored)) TakeStored(made, *stored, row);
    const std::string combined =
        columns_.uncertainty < 0 ? std::string() : Text(row, columns_.uncertainty);
    if (!combined.empty()) {
        made.Statements(0);
        made.Extras->userCU = combined;
    }
    return made;
}

} // namespace vexora
