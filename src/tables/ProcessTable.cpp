#include "tables/ProcessTable.h"

#include <algorithm>

#include "records/clsM.h"
#include "reference/Text.h"

namespace vexora {

namespace {

bool IsIn(int place, std::size_t size) {
    return place >= 0 && static_cast<std::size_t>(place) < size;
}

} // namespace

const CellOrigin* TableOrigin::At(int place, int column) const {
    if (!IsIn(place, cells.size())) return nullptr;
    const auto& row = cells[static_cast<std::size_t>(place)];
    return IsIn(column, row.size()) ? &row[static_cast<std::size_t>(column)] : nullptr;
}

std::string_view ProcessTable::Cell(int row, int column) const {
    if (!IsIn(row, rows.size())) return {};
    const auto& cells = rows[static_cast<std::size_t>(row)].cells;
    return IsIn(column, cells.size()) ? Trim(cells[static_cast<std::size_t>(column)])
                                      : std::string_view();
}

bool ProcessTable::IsUsed(int row) const {
    for (std::size_t column = 0; column < columns.size(); ++column)
        if (columns[column].IsDescribed() && !Cell(row, static_cast<int>(column)).empty())
            return true;
    return false;
}

bool ProcessTable::HasUsedRow() const {
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (IsUsed(static_cast<int>(row))) return true;
    return false;
}

int ProcessTable::ColumnOf(std::string_view quantity) const {
    const auto found = std::ranges::find_if(columns, [quantity](const ProcessColumn& column) {
        return column.IsDescribed() && column.quantity == quantity;
    });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

int ProcessSystem::MixType() const {
    return mixture ? mixture->MixType : 1;
}

} // namespace vexora
