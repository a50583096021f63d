#include "structures/CrystalTables.h"

#include <algorithm>
#include <utility>

#include "chem/Cif.h"
#include "entry/frmPasteView.h"
#include "grid/TableUndo.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr double LeastDistance = 0.1, LargestDistance = 99; // [A]
constexpr double LargestUncertainty = 0.1;
constexpr const char* IsThatCorrect = "\nIs that correct?";
constexpr int Distance = 2, DistanceUncertainty = 3, Occupancy = 7;
constexpr int Coordinates[] = {1, 3, 5};

/// The first letter large, the second one small.
std::string CleanSymbol(std::string symbol) {
    if (!symbol.empty()) symbol[0] = UpperAscii(symbol.substr(0, 1))[0];
    if (symbol.size() > 1) symbol[1] = LowerAscii(symbol.substr(1, 1))[0];
    return symbol;
}

bool IsDoubtful(const std::string& uncertainty) {
    const double value = Val(uncertainty);
    return value <= 0 || value >= LargestUncertainty;
}

template <class Row, std::size_t N>
std::vector<Row> RowsOf(const CrystalTable& table, const ui::Grid& grid,
                        std::string Row::*const (&fields)[N]) {
    std::vector<Row> rows;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        if (table.IsEmptyRow(row)) continue;
        Row& made = rows.emplace_back();
        for (std::size_t column = 0; column < N; ++column)
            made.*fields[column] = table.CleanCell(row, static_cast<int>(column));
    }
    return rows;
}

} // namespace

CrystalTable::CrystalTable(ui::Grid& grid, std::vector<std::string> heads, int symbols,
                           std::vector<int> values)
    : grid_(grid), symbols_(symbols), values_(std::move(values)) {
    for (std::size_t column = 0; column < heads.size(); ++column)
        grid.Cell(0, static_cast<int>(column), heads[column]);
}

std::string CrystalTable::ColumnName(int column) const {
    return column < grid_.Columns() ? grid_.Cell(0, column) : "column beside the table";
}

bool CrystalTable::IsWanted(const PastedTable& block) const {
    return IsWantedAsShown(block);
}

bool CrystalTable::HasUncertainty(int column) const {
    const auto next = std::ranges::find(values_, column + 1);
    return column >= symbols_ && column + 1 < grid_.Columns() && next == values_.end() &&
           std::ranges::find(values_, column) != values_.end();
}

void CrystalTable::Follow(TableEdit& edit, int row, int column, const std::string&,
                          const EnteredColumns& entered) const {
    CifNumber number;
    if (!entered.Any() || entered.Has(column + 1) || !HasUncertainty(column) ||
        !grid_.Cell(row, column + 1).empty())
        return;
    if (!ReadCifNumber(NormalizeNumber(grid_.Cell(row, column)), number) ||
        number.uncertainty.empty())
        return;
    edit.Cell(row, column, number.value);
    edit.Cell(row, column + 1, number.uncertainty);
}

bool CrystalTable::Prepare(BlockToPut& put) const {
    // Symbols are none, a wrong figure is marked where it stands, and brackets are understood.
    std::erase_if(put.block.notices, [](const PasteNotice& notice) {
        return notice.text.find("\" is no number") != std::string::npos ||
               notice.text.find("\" holds an uncertainty in brackets") != std::string::npos;
    });
    for (std::vector<std::string>& cells : put.block.rows)
        for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
            CifNumber number;
            const bool isPair = HasUncertainty(put.column + static_cast<int>(i)) &&
                                cells[i + 1].empty() && ReadCifNumber(cells[i], number);
            if (!isPair || number.uncertainty.empty()) continue;
            cells[i] = number.value;
            cells[i + 1] = number.uncertainty;
        }
    return true;
}

bool CrystalTable::IsEmptyRow(int row) const {
    for (int column = 0; column < grid_.Columns(); ++column)
        if (!Trim(grid_.Cell(row, column)).empty()) return false;
    return true;
}

std::string CrystalTable::CleanCell(int row, int column) const {
    const std::string& text = grid_.Cell(row, column);
    if (column < symbols_) return CleanSymbol(std::string(Trim(text)));
    return NormalizeNumber(text);
}

void CrystalTable::CleanCells(TableUndo& history) const {
    history.Do([this](TableEdit& edit) {
        for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row)
            for (int column = 0; column < grid_.Columns(); ++column)
                edit.Cell(row, column, CleanCell(row, column));
    });
}

void CrystalTable::FindGaps(int row, const std::vector<int>& needed,
                            std::vector<Finding>& found) const {
    for (const int column : needed) {
        if (!CleanCell(row, column).empty()) continue;
        found.push_back(
            {row, column, "Incomplete row " + std::to_string(row - grid_.FixedRows() + 1)});
        break;
    }
    for (int column = 0; column < symbols_; ++column) {
        const std::string symbol = CleanCell(row, column);
        if (!symbol.empty() && !IsOneOf(symbol, {"O", "N", "H", "C"}))
            found.push_back({row, column, "Invalid atom symbol: " + symbol});
    }
}

DistanceTable::DistanceTable(ui::Grid& grid)
    : CrystalTable(grid, {"Atom 1", "Atom 2", "Distance, A", "Uncertainty, A"}, 2, {0, 1, 2}) {}

std::vector<Finding> DistanceTable::FindingsOf(int row) const {
    std::vector<Finding> found;
    if (IsEmptyRow(row)) return found;
    FindGaps(row, {0, 1, Distance}, found);
    for (const int column : {Distance, DistanceUncertainty})
        if (const std::string text = CleanCell(row, column); !text.empty() && !IsNumeric(text))
            found.push_back({row, column, "Invalid number: " + text});
    if (const std::string text = CleanCell(row, Distance);
        IsNumeric(text) && (Val(text) < LeastDistance || Val(text) > LargestDistance))
        found.push_back(
            {row, Distance, "Suspicious interatomic distance: " + text + IsThatCorrect, false});
    if (const std::string text = CleanCell(row, DistanceUncertainty);
        IsNumeric(text) && IsDoubtful(text))
        found.push_back(
            {row, DistanceUncertainty, "Suspicious uncertainty: " + text + IsThatCorrect, false});
    return found;
}

std::vector<CrystalDistance> DistanceTable::Rows() const {
    return RowsOf<CrystalDistance>(*this, grid_, DistanceFields);
}

AtomTable::AtomTable(ui::Grid& grid)
    : CrystalTable(grid, {"Atom", "x", "dx", "y", "dy", "z", "dz", "Occupancy"}, 1,
                   {0, 1, 3, 5, Occupancy}) {}

std::vector<Finding> AtomTable::FindingsOf(int row) const {
    std::vector<Finding> found;
    if (IsEmptyRow(row)) return found;
    FindGaps(row, values_, found);
    for (const int column : Coordinates)
        if (const std::string text = CleanCell(row, column); !text.empty() && !IsNumeric(text))
            found.push_back({row, column, "Invalid interatomic distance: " + text});
    for (const int column : Coordinates)
        if (const std::string text = CleanCell(row, column + 1); !text.empty() && !IsNumeric(text))
            found.push_back({row, column + 1, "Invalid number: " + text});
    for (const int column : Coordinates)
        if (const std::string text = CleanCell(row, column);
            IsNumeric(text) && (Val(text) < -1 || Val(text) > 1))
            found.push_back({row, column, "Suspicious coordinate: " + text + IsThatCorrect, false});
    for (const int column : Coordinates)
        if (const std::string text = CleanCell(row, column + 1);
            IsNumeric(text) && IsDoubtful(text))
            found.push_back({row, column + 1,
                             "Suspicious coordinate uncertainty: " + text + IsThatCorrect, false});
    if (const std::string text = CleanCell(row, Occupancy);
        !text.empty() && (!IsNumeric(text) || Val(text) < 0 || Val(text) > 1))
        found.push_back({row, Occupancy, "Invalid Occupancy"});
    return found;
}

std::vector<CrystalAtom> AtomTable::Rows() const {
    return RowsOf<CrystalAtom>(*this, grid_, AtomFields);
}

/// Papers often print atom, x, y and z alone: four columns, of which the first one holds symbols.
bool AtomTable::Prepare(BlockToPut& put) const {
    const auto hasSymbol = [](const std::vector<std::string>& cells) {
        return !cells.empty() && !cells[0].empty() && !IsNumeric(cells[0]);
    };
    if (put.column == 0 && put.block.Columns() == 4 &&
        std::ranges::all_of(put.block.rows, hasSymbol)) {
        for (std::vector<std::string>& cells : put.block.rows) {
            cells.resize(4);
            cells = {cells[0], cells[1], "", cells[2], "", cells[3], ""};
        }
        put.block.notices.push_back({0, "Four columns are taken as atom, x, y and z"});
    }
    return CrystalTable::Prepare(put);
}

} // namespace vexora
