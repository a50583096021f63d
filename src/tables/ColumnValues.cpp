#include "tables/ColumnValues.h"

#include "chem/PropertyLimits.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// A quantity has one system unit, whether it becomes a property or a variable.
std::string SystemUnitOf(const ProcessColumn& head) {
    return head.IsState() ? UnitOfVariable(head.quantity) : UnitOfProperty(head.quantity);
}

} // namespace

UnitConversion ColumnConversion(const ProcessColumn& column, std::string_view systemUnit) {
    UnitConversion conversion{column.unit, 0, 0, std::string(systemUnit)};
    if (column.unit == ProcessColumn::ByFactor)
        conversion.factor = Val(NormalizeNumber(column.factor));
    else if (IsUnitLong(column.unit))
        conversion.factor = ConversionFactor(column.unit, systemUnit);
    return conversion;
}

ColumnValues::ColumnValues(const ProcessTable& table, int column, double molarMass)
    : table_(&table), column_(column) {
    const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
    conversion_ = ColumnConversion(head, SystemUnitOf(head));
    conversion_.molarMass = molarMass;
}

std::optional<double> ColumnValues::Value(int row) const {
    const std::string_view cell = table_->Cell(row, column_);
    if (cell.empty()) return std::nullopt;
    const std::string text = NormalizeNumber(cell);
    if (!IsNumeric(text)) return std::nullopt;
    return conversion_.Absolute(Val(text));
}

std::optional<Finding> CheckCell(const ProcessTable& table, int row, const CellRules& rules,
                                 const ColumnValues& values) {
    if (table.Cell(row, rules.column).empty()) return std::nullopt;
    const std::optional<double> value = values.Value(row);
    if (!value)
        return Finding{row, rules.column,
                       rules.isIndependent ? "Invalid value of independent variable"
                                           : "Invalid property value"};
    if (!rules.isAbsolute) return std::nullopt;
    const bool isValid = IsValidValue(rules.code, *value);
    if (isValid && IsPlausibleValue(rules.code, *value)) return std::nullopt;
    return Finding{row, rules.column,
                   "Value " + NumberText(*value) + " " + rules.name +
                       (isValid ? " is suspicious" : " is not valid"),
                   !isValid};
}

std::optional<Finding> CheckUncertainty(const ProcessTable& table, int row, int column,
                                        bool hasValue) {
    const std::string_view cell = table.Cell(row, column);
    if (cell.empty()) return std::nullopt;
    const bool isPercent = cell.ends_with('%');
    const std::string text = NormalizeNumber(cell.substr(0, cell.size() - (isPercent ? 1 : 0)));
    if (!IsNumeric(text) || Val(text) < 0)
        return Finding{row, column, "Invalid value of combined uncertainty"};
    if (!hasValue) return Finding{row, column, "There is no value for this combined uncertainty"};
    return std::nullopt;
}

std::string ColumnText(int column) {
    return "column " + std::to_string(column + 1);
}

std::string HeadFault(const ProcessTable& table, int column) {
    const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
    if (!head.IsDescribed() || head.IsUncertainty()) return {};
    if (head.unit.empty()) return "A unit for " + ColumnText(column);
    if (head.unit == ProcessColumn::ByFactor) {
        const std::string factor = NormalizeNumber(head.factor);
        return IsNumeric(factor) && Val(factor) > 0
                   ? std::string()
                   : "A factor above 0 as the unit of " + ColumnText(column);
    }
    return ConversionFactor(head.unit, SystemUnitOf(head)) > 0
               ? std::string()
               : "Another unit for " + ColumnText(column);
}

std::vector<int> UncertaintyColumns(const ProcessTable& table, std::string& fault) {
    std::vector<int> uncertainty(table.columns.size(), -1);
    int last = -1; // the value column on the left
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column) {
        const ProcessColumn& head = table.columns[static_cast<std::size_t>(column)];
        if (!head.IsDescribed()) continue;
        if (!head.IsUncertainty()) {
            last = column;
        } else if (last < 0) {
            fault = "A column of values on the left of the uncertainties in " + ColumnText(column);
        } else if (int& own = uncertainty[static_cast<std::size_t>(last)]; own >= 0) {
            fault = "Only one column of uncertainties for " + ColumnText(last);
        } else {
            own = column;
        }
    }
    return uncertainty;
}

} // namespace vexora
