#pragma once

#include <string>
#include <vector>

#include "entry/TableColumns.h"
#include "grid/Finding.h"
#include "ui/Grid.h"

namespace vexora {

class clsProperty;
class DataSet;

/// Fractions of one kind, of several components in one phase, that stand in each row of a mixture:
/// together they cannot be more than 1.
struct FractionSum {
    std::vector<int> items; // as in a row, 0 the property
    double constant = 0;    // what the definition holds constant of them
    double rounding = 0;    // of the constants, half a unit of their last digits
    bool isRefused = false; // for two of its variables alone
    std::string phase;      // as a reader knows it
};

/// Made once for a set, in front of its rows; empty for a pure set.
std::vector<FractionSum> FractionSums(const DataSet& set);

/// The sums of a row that are below 0 or above 1. The chain says the units. Nothing is said where
/// a cell is no number.
/// A fault for mole and mass fractions that vary in a ternary: the third component would have less
/// than nothing. Else a question, and none for what rounding explains: the fractions of all
/// components may come to a little more than 1 in print.
std::vector<Finding> CheckFractions(const ui::Grid& grid, const TableColumns& columns, int row,
                                    const clsProperty& chain, const std::vector<FractionSum>& sums);

} // namespace vexora
