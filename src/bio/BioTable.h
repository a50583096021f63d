#pragma once

#include <memory>
#include <string>
#include <vector>

#include "entry/TableColumns.h"
#include "grid/Finding.h"
#include "records/clsX.h"
#include "ui/Grid.h"

namespace vexora {

class BioSet;
struct BioQuantity;
class clsProperty;

// What the table of a bio set is made of. Items are places among the quantities of the set.

/// Each property and then each variable, with a column behind it where rows state its uncertainty.
TableColumns ColumnsOf(const BioSet& set);
/// A quantity with its unit, as heads and axes show it.
std::string HeadOf(const BioSet& set, const BioQuantity& quantity);
/// A head in lines of a width that a column has room for.
std::string InLines(const std::string& head);
/// What is the same in all rows, in one line; empty for nothing.
std::string ConstantsOf(const BioSet& set);
/// The statements of the set with the codes, names and units of their quantities.
std::vector<clsX> NamedStatements(const BioSet& set);
/// The chain that checks a row and evaluates its uncertainties, a quantity behind the other. Only
/// quantities whose limits are known are absolute.
std::shared_ptr<clsProperty> ChainOf(const BioSet& set, const std::vector<clsX>& statements);

/// The entries of a row that are missing or no numbers; none for an empty row. Of several
/// properties one that was not measured may be left out.
std::vector<Finding> CheckBioRow(const ui::Grid& grid, const TableColumns& columns, int row,
                                 int properties);

} // namespace vexora
