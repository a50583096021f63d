#include "entry/RowChecks.h"

#include "chem/PropertyLimits.h"
#include "chem/clsProperty.h"
#include "grid/TablePaste.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

/// Without a sign: for counts.
bool IsWhole(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

/// Empty is good: the statement of the set holds for that row.
bool IsGoodStatement(const TableColumn& column, const std::string& cell) {
    if (cell.empty()) return true;
    if (column.kind == Kind::KVO) return IsNumeric(cell) || cell == "Error";
    // Rows of other sets bear the same number, digit by digit.
    if (column.kind == Kind::Tie) return cell.size() <= 9 && IsWhole(cell);
    // More than 99 digits nobody has measured; a record keeps the count in a byte.
    if (column.kind == Kind::Digits) return cell.size() <= 2 && IsWhole(cell);
    const bool mayBePercent = column.kind != Kind::Repetitions;
    if (mayBePercent && cell.ends_with('%')) return IsNumeric(cell.substr(0, cell.size() - 1));
    return IsNumeric(cell);
}

std::string ValueFault(const std::string& cell) {
    // A row is either whole or empty: half of one is no datum.
    if (cell.empty()) return "Missing value\nEnter the value or clear the line";
    if (!IsNumeric(cell)) return "Invalid number\nCorrect it or clear the line";
    return {};
}

} // namespace

const clsProperty* ItemOf(const clsProperty& chain, int n) {
    const clsProperty* item = &chain;
    for (; item && n > 0; --n)
        item = item->isLast ? nullptr : item->NextItem.get();
    return item;
}

std::string CleanCell(const TableColumn& column, const std::string& cell) {
    if (column.IsStatement() && cell.ends_with('%'))
        return NormalizeNumber(cell.substr(0, cell.size() - 1)) + "%";
    return NormalizeNumber(cell);
}

bool IsEmptyRow(const ui::Grid& grid, const TableColumns& columns, int row) {
    for (int column = 0; column < grid.Columns(); ++column) {
        const bool isFigure = column < columns.Count() && columns[column].kind == Kind::KVO;
        const std::string& cell = grid.Cell(row, column);
        if (!cell.empty() && !(isFigure && cell == "Error")) return false;
    }
    return true;
}

std::vector<Finding> CheckRow(const ui::Grid& grid, const TableColumns& columns, int row) {
    std::vector<Finding> findings;
    if (IsEmptyRow(grid, columns, row)) return findings;
    const auto cell = [&](int column) {
        return CleanCell(columns[column], grid.Cell(row, column));
    };
    for (int column = 0; column < columns.Count(); ++column) {
        if (columns[column].kind != Kind::Value) continue;
        const std::string fault = ValueFault(cell(column));
        if (!fault.empty()) findings.push_back({row, column, fault});
    }
    for (int column = 0; column < columns.Count(); ++column) {
        if (columns[column].kind == Kind::Value || IsGoodStatement(columns[column], cell(column)))
            continue;
        const bool isTie = columns[column].kind == Kind::Tie && IsNumeric(cell(column));
        findings.push_back({row, column,
                            isTie ? "A tie line is numbered by whole numbers\n"
                                    "Correct it or clear the cell"
                                  : "Invalid number\nCorrect it or clear the cell"});
    }
    const auto beside = CheckBeside(grid, columns, row);
    findings.insert(findings.end(), beside.begin(), beside.end());
    return findings;
}

std::vector<Finding> CheckBeside(const ui::Grid& grid, const TableColumns& columns, int row) {
    std::vector<Finding> findings;
    for (int column = columns.Count(); column < grid.Columns(); ++column) {
        if (grid.Cell(row, column).empty()) continue;
        findings.push_back(
            {row, column, "The cell lies outside the columns of the table\nClear the cell"});
    }
    return findings;
}

std::vector<Finding> CheckLimits(const ui::Grid& grid, const TableColumns& columns, int row,
                                 const clsProperty& chain, double molarMass) {
    std::vector<Finding> findings;
    for (int column = 0; column < columns.Count(); ++column) {
        if (columns[column].kind != Kind::Value) continue;
        const clsProperty* item = ItemOf(chain, columns[column].item);
        const std::string cell = NormalizeNumber(grid.Cell(row, column));
        if (!item || item->Relation != "A" || !IsNumeric(cell)) continue;
        // Only the property may be by mass of the compound; variables are not.
        const double mass = item == &chain ? molarMass : 0;
        // It would convert to 0 and be told of for the wrong reason; the unit itself is refused on
        // Accept.
        if (item->Factor <= 0 && mass <= 0 && IsMassBased(item->ConversionCode)) continue;
        const double value = ToSystem(item->ConversionCode, Val(cell), item->Factor, mass);
        const bool valid = IsValidValue(item->PropertyCode, value);
        if (valid && IsPlausibleValue(item->PropertyCode, value)) continue;
        findings.push_back({row, column,
                            "Value " + NumberText(value) + " " + item->Name +
                                (valid ? " is suspicious" : " is not valid"),
                            !valid});
    }
    return findings;
}

std::vector<Finding> CheckReading(const ui::Grid& grid, const TableColumns& columns, int row) {
    std::vector<Finding> findings;
    for (int column = 0; column < columns.Count(); ++column) {
        const std::string typed(TrimBlanks(grid.Cell(row, column)));
        // A blank within a number parts thousands or two columns.
        const bool parted = typed.find(' ') != typed.npos;
        if (!parted && !MayPartThousands(typed)) continue;
        const std::string read = CleanCell(columns[column], typed);
        if (read == typed || !IsNumeric(read)) continue;
        findings.push_back({row, column, "\"" + typed + "\" will be read as " + read, false});
    }
    return findings;
}

std::vector<Finding> CheckEvaluation(const ui::Grid& grid, const TableColumns& columns, int row) {
    const int column = columns.Find(Kind::KVO);
    if (grid.Cell(row, column) != "Error") return {};
    return {{row, column, "Erroneous data combination\nPlease correct it"}};
}

} // namespace vexora
