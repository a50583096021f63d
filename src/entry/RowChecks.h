#pragma once

#include <string>
#include <vector>

#include "entry/TableColumns.h"
#include "grid/Finding.h"
#include "ui/Grid.h"

namespace vexora {

class clsProperty;

/// The item n of a chain from its head, the property, which is 0; null where the chain is shorter.
const clsProperty* ItemOf(const clsProperty& chain, int n);
/// A cell without the blanks and commas of pasting, a "%" at its end kept.
/// A cell keeps the text that was typed; this is how it is read.
std::string CleanCell(const TableColumn& column, const std::string& cell);
/// Nothing stands in the row but, at most, that its evaluation has failed.
/// Cells beside the columns of the table count too.
bool IsEmptyRow(const ui::Grid& grid, const TableColumns& columns, int row);

/// The entries of one row that are missing or no numbers, first those of the values and then those
/// of the statements; none for an empty row.
/// A finding names the first thing to mend in a cell; rows and columns count as in the grid.
std::vector<Finding> CheckRow(const ui::Grid& grid, const TableColumns& columns, int row);
/// The entries of a row that stand beside the columns of the table.
std::vector<Finding> CheckBeside(const ui::Grid& grid, const TableColumns& columns, int row);
/// The values of a row that cannot be true, or hardly. The chain says codes and units; molarMass in
/// g/mol. Nothing is asked and nothing changes.
/// Faults for what is not valid, questions for what is suspicious. A cell that is no number is
/// passed over, it is found by CheckRow.
std::vector<Finding> CheckLimits(const ui::Grid& grid, const TableColumns& columns, int row,
                                 const clsProperty& chain, double molarMass);
/// Cells with a comma or a blank that may be read otherwise than they were meant.
/// Questions only: a decimal comma and a comma between thousands cannot be told apart.
std::vector<Finding> CheckReading(const ui::Grid& grid, const TableColumns& columns, int row);
/// The evaluation of the row has failed.
/// "Error" in the last column stands for it, until the row is evaluated again.
std::vector<Finding> CheckEvaluation(const ui::Grid& grid, const TableColumns& columns, int row);

} // namespace vexora
