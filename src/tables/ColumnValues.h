// The cells of a described column as numbers in the system unit, and what is to be said of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "grid/Finding.h"
#include "records/HiddenRows.h"
#include "records/UnitConversion.h"
#include "tables/ProcessTable.h"

namespace vexora {

/// How the cells of a column lead to the system unit. The look-up of a unit without a letter is
/// made here, once.
UnitConversion ColumnConversion(const ProcessColumn& column, std::string_view systemUnit);

/// One column of a table, made once for all of its rows.
class ColumnValues {
public:
    /// molarMass [g/mol] for a unit by mass, 0 when it is not known.
    ColumnValues(const ProcessTable& table, int column, double molarMass = 0);

    bool Has(int row) const { return !table_->Cell(row, column_).empty(); }
    /// In the system unit; nothing for a cell that is empty or no number.
    std::optional<double> Value(int row) const;
    const UnitConversion& Conversion() const { return conversion_; }

private:
    const ProcessTable* table_;
    int column_;
    UnitConversion conversion_;
};

/// Of a row that holds values of variables alone; a question.
inline constexpr std::string_view RowLeftOut = "The row has no property and will be left out";

/// What can be wrong with a cell of a column.
struct CellRules {
    int column = 0;
    std::string code, name; // code and name with unit, as messages show it
    bool isIndependent = false;
    bool isAbsolute = true; // the limits of its code hold for it
};

/// A cell that is no number, that cannot be true, or that is suspicious; nothing for an empty one.
std::optional<Finding> CheckCell(const ProcessTable& table, int row, const CellRules& rules,
                                 const ColumnValues& values);
/// A combined uncertainty that is no number, is negative, or stands beside no value.
std::optional<Finding> CheckUncertainty(const ProcessTable& table, int row, int column,
                                        bool hasValue);

/// Why a described column cannot be read: "A unit for column 4"; empty for none. The heads of
/// uncertainties are not asked.
std::string HeadFault(const ProcessTable& table, int column);
/// For each column that of its combined uncertainties, -1 for none; `fault` gets what stands
/// without a value on its left.
std::vector<int> UncertaintyColumns(const ProcessTable& table, std::string& fault);
/// "column 4", as a person counts.
std::string ColumnText(int column);

} // namespace vexora
